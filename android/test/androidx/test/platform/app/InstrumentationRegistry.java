package androidx.test.platform.app;

import android.app.Instrumentation;
import android.os.Bundle;

/** As much of it as the tests' framework calls. */
public final class InstrumentationRegistry {
    private static volatile Instrumentation instance;

    private InstrumentationRegistry() {}

    public static Instrumentation getInstrumentation() {
        return instance;
    }

    public static void registerInstance(Instrumentation instrumentation, Bundle arguments) {
        instance = instrumentation;
    }
}
