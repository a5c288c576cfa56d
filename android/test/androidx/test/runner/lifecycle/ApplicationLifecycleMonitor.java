package androidx.test.runner.lifecycle;

/** As much of it as the tests' framework names. */
public interface ApplicationLifecycleMonitor {}
