package androidx.test.internal.runner.intent;

import android.content.Intent;
import androidx.test.runner.intent.IntentMonitor;

/** As much of it as the tests' framework calls. */
public final class IntentMonitorImpl implements IntentMonitor {
    public void signalIntent(Intent intent) {}
}
