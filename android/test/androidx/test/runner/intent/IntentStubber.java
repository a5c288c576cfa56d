package androidx.test.runner.intent;

import android.app.Instrumentation;
import android.content.Intent;

/** As much of it as the tests' framework names. */
public interface IntentStubber {
    Instrumentation.ActivityResult getActivityResultForIntent(Intent intent);
}
