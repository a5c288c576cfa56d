package androidx.test.internal.runner.lifecycle;

import android.app.Activity;
import androidx.test.runner.lifecycle.ActivityLifecycleMonitor;
import androidx.test.runner.lifecycle.Stage;

/** As much of it as the tests' framework calls. */
public final class ActivityLifecycleMonitorImpl implements ActivityLifecycleMonitor {
    public void signalLifecycleChange(Stage stage, Activity activity) {}
}
