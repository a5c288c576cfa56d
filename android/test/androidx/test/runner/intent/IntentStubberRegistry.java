package androidx.test.runner.intent;

/** As much of it as the tests' framework calls. */
public final class IntentStubberRegistry {
    private IntentStubberRegistry() {}

    public static boolean isLoaded() {
        return false;
    }

    public static IntentStubber getInstance() {
        throw new IllegalStateException("There is none.");
    }
}
