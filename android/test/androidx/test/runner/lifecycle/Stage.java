package androidx.test.runner.lifecycle;

/** As much of it as the tests' framework names. */
public enum Stage { PRE_ON_CREATE, CREATED, STARTED, RESUMED, PAUSED, STOPPED, RESTARTED, DESTROYED }
