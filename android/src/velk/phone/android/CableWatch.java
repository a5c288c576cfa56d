package velk.phone.android;

import android.content.Context;
import android.content.Intent;
import android.content.IntentFilter;
import android.os.Handler;
import android.os.Looper;

/**
 * Says when the computer has been away for a while: the cable is out and nobody has connected. All of it
 * runs on the main thread.
 */
final class CableWatch {
    /** The system's name of this broadcast; it stays with the phone, so that the state now is known too. */
    static final String USB_STATE = "android.hardware.usb.action.USB_STATE";
    static final String CONNECTED = "connected";

    static final long AFTER_CABLE_MS = 60000;
    /** Without any cable adb may work over the air, where nothing tells that it has ended. */
    static final long NEVER_A_CABLE_MS = 600000;
    private static final long LOOK_MS = 10000;

    /** How long nobody has been connected. */
    interface IdleTime {
        long milliseconds();
    }

    private final Context context;
    private final IdleTime idle;
    private final Runnable away;
    private final Handler handler = new Handler(Looper.getMainLooper());
    private final Runnable look = new Runnable() {
        @Override
        public void run() {
            look();
        }
    };
    private boolean wasPlugged;
    private long unpluggedSince;

    /** `away` runs when the computer has been away for a while, and again until stop(). */
    CableWatch(Context context, IdleTime idle, Runnable away) {
        this.context = context;
        this.idle = idle;
        this.away = away;
    }

    void start() {
        unpluggedSince = now();
        look();
    }

    void stop() {
        handler.removeCallbacks(look);
    }

    private void look() {
        handler.postDelayed(look, LOOK_MS);
        if (plugged()) {
            wasPlugged = true;
            unpluggedSince = now();
            return;
        }
        long timeout = wasPlugged ? AFTER_CABLE_MS : NEVER_A_CABLE_MS;
        if (now() - unpluggedSince >= timeout && idle.milliseconds() >= timeout) away.run();
    }

    private boolean plugged() {
        Intent state = context.registerReceiver(null, new IntentFilter(USB_STATE));
        return state != null && state.getBooleanExtra(CONNECTED, false);
    }

    private static long now() {
        return android.os.SystemClock.elapsedRealtime();
    }
}
