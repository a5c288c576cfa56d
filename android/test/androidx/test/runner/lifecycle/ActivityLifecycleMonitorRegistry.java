package androidx.test.runner.lifecycle;

/** As much of it as the tests' framework calls. */
public final class ActivityLifecycleMonitorRegistry {
    private ActivityLifecycleMonitorRegistry() {}

    public static void registerInstance(ActivityLifecycleMonitor monitor) {}
}
