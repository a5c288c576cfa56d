package androidx.test.runner.lifecycle;

/** As much of it as the tests' framework calls. */
public final class ApplicationLifecycleMonitorRegistry {
    private ApplicationLifecycleMonitorRegistry() {}

    public static void registerInstance(ApplicationLifecycleMonitor monitor) {}
}
