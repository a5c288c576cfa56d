package velk.phone.android;

import android.content.BroadcastReceiver;
import android.content.Context;
import android.content.Intent;
import android.content.IntentFilter;
import android.os.Handler;
import android.os.Looper;

/**
 * Says when the computer has been away for a while: the cable is out and nobody has connected. All of it
 * runs on the main thread.
 */
final class CableWatch extends BroadcastReceiver {
    /** The system's name of this broadcast; it stays with the phone, so that the state now is known too. */
    static final String USB_STATE = "android.hardware.usb.action.USB_STATE";
    static final String CONNECTED = "connected";

    static final long AFTER_CABLE_MS = 60000;
    /** Without any cable adb may work over the air, where nothing tells that it has ended. */
    static final long NEVER_A_CABLE_MS = 600000;
    private static final long LOOK_MS = 10000;

    /** How long nobody has been connected. */
    interface Quiet {
        long milliseconds();
    }

    private final Context context;
    private final Quiet quiet;
    private final Runnable away;
    private final Handler handler = new Handler(Looper.getMainLooper());
    private final Runnable look = new Runnable() {
        @Override
        public void run() {
            look();
        }
    };
    private boolean plugged;
    private boolean wasPlugged;
    private long unpluggedSince;

    /** `away` runs once, when the computer has been away for a while. */
    CableWatch(Context context, Quiet quiet, Runnable away) {
        this.context = context;
        this.quiet = quiet;
        this.away = away;
    }

    void start() {
        unpluggedSince = now();
        // Not the state of the power: a phone may stop charging while the cable goes on carrying data.
        Intent state = context.registerReceiver(this, new IntentFilter(USB_STATE));
        if (state != null) onReceive(context, state);
        handler.postDelayed(look, LOOK_MS);
    }

    void stop() {
        handler.removeCallbacks(look);
        context.unregisterReceiver(this);
    }

    @Override
    public void onReceive(Context where, Intent intent) {
        boolean before = plugged;
        plugged = intent.getBooleanExtra(CONNECTED, false);
        wasPlugged |= plugged;
        if (before && !plugged) unpluggedSince = now();
    }

    private void look() {
        long patience = wasPlugged ? AFTER_CABLE_MS : NEVER_A_CABLE_MS;
        boolean gone = !plugged && now() - unpluggedSince >= patience;
        if (gone && quiet.milliseconds() >= patience) away.run();
        else handler.postDelayed(look, LOOK_MS);
    }

    private static long now() {
        return android.os.SystemClock.elapsedRealtime();
    }
}
