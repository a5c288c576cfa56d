package androidx.test.runner.intent;

/** As much of it as the tests' framework names. */
public interface IntentMonitor {}
