package androidx.test.runner.intent;

/** As much of it as the tests' framework calls. */
public final class IntentMonitorRegistry {
    private IntentMonitorRegistry() {}

    public static void registerInstance(IntentMonitor monitor) {}
}
