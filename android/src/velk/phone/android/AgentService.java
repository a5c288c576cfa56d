package velk.phone.android;

import android.app.Service;
import android.content.BroadcastReceiver;
import android.content.Context;
import android.content.Intent;
import android.content.IntentFilter;
import android.os.Build;
import android.os.Handler;
import android.os.IBinder;
import android.os.Looper;
import android.util.Log;
import java.io.IOException;

/**
 * Keeps the agent alive and its two sockets open, until the computer says goodbye, the person presses Stop,
 * or the cable has been gone for a while. Nothing starts it but the page and the computer.
 */
public final class AgentService extends Service {
    static final String STOP = "velk.phone.android.STOP";
    /** What the computer broadcasts to have the sockets opened. */
    static final String OPEN = "openUSBConnect";

    private static final String TAG = "velk";
    private static final String FIRST = "velk.phone.android.wire1";
    private static final String SECOND = "velk.phone.android.wire2";
    /** The sockets of an agent that has just ended may take a moment to go. */
    private static final long FIRST_RETRY_MS = 300;
    private static final long LONGEST_RETRY_MS = 10000;

    private final Handler handler = new Handler(Looper.getMainLooper());
    private final Runnable open = new Runnable() {
        @Override
        public void run() {
            openSockets();
        }
    };
    private final BroadcastReceiver opener = new BroadcastReceiver() {
        @Override
        public void onReceive(Context context, Intent intent) {
            retryMs = FIRST_RETRY_MS;
            openSockets();
        }
    };
    private CableWatch cable;
    private ConnectionServer first;
    private ConnectionServer second;
    private long retryMs = FIRST_RETRY_MS;
    private boolean nameTaken;
    private int lastStart;

    static void start(Context context) {
        Intent service = new Intent(context, AgentService.class);
        if (Build.VERSION.SDK_INT >= 26) context.startForegroundService(service);
        else context.startService(service);
    }

    @Override
    public void onCreate() {
        super.onCreate();
        showNotification();
        registerReceiver(opener, new IntentFilter(OPEN));
        cable = new CableWatch(this, new CableWatch.IdleTime() {
            @Override
            public long milliseconds() {
                return idleFor();
            }
        }, new Runnable() {
            @Override
            public void run() {
                stop();
            }
        });
        cable.start();
        openSockets();
    }

    @Override
    public int onStartCommand(Intent intent, int flags, int id) {
        // Whoever starts a service in the foreground must show this each time.
        showNotification();
        lastStart = id;
        if (intent != null && STOP.equals(intent.getAction())) stop();
        return START_NOT_STICKY;
    }

    private void showNotification() {
        startForeground(ServiceNotification.ID, ServiceNotification.make(this, nameTaken));
    }

    /** Ends the agent unless somebody has started it again meanwhile; on the main thread. */
    private void stop() {
        stopSelf(lastStart);
    }

    @Override
    public void onDestroy() {
        handler.removeCallbacksAndMessages(null);
        unregisterReceiver(opener);
        cable.stop();
        closeSockets();
        stopForeground(true);
        super.onDestroy();
    }

    @Override
    public IBinder onBind(Intent intent) {
        return null;
    }

    /** Opens what is not open yet. */
    private void openSockets() {
        handler.removeCallbacks(open);
        try {
            Phone phone = new Phone(getApplicationContext());
            if (first == null) first = server(FIRST, new FirstWire(phone, goodbye()));
            if (second == null) second = server(SECOND, new SecondWire(phone));
            retryMs = FIRST_RETRY_MS;
            setNameTaken(false);
        } catch (IOException taken) {
            if (!nameTaken) Log.w(TAG, "A socket cannot be opened yet", taken);
            setNameTaken(true);
            handler.postDelayed(open, retryMs);
            retryMs = Math.min(2 * retryMs, LONGEST_RETRY_MS);
        }
    }

    private void setNameTaken(boolean taken) {
        if (taken == nameTaken) return;
        nameTaken = taken;
        showNotification();
    }

    private static ConnectionServer server(String name, Wire wire) throws IOException {
        return new ConnectionServer(new LocalListener(name), wire, name);
    }

    private Runnable goodbye() {
        return new Runnable() {
            @Override
            public void run() {
                handler.post(new Runnable() {
                    @Override
                    public void run() {
                        stop();
                    }
                });
            }
        };
    }

    private void closeSockets() {
        final ConnectionServer[] open = {first, second};
        first = null;
        second = null;
        // Closing connects to the sockets once more, which the main thread should not wait for.
        new Thread(new Runnable() {
            @Override
            public void run() {
                for (ConnectionServer one : open) if (one != null) one.stop();
            }
        }, "velk closing").start();
    }

    private long idleFor() {
        long idle = Long.MAX_VALUE;
        if (first != null) idle = Math.min(idle, first.idleFor());
        if (second != null) idle = Math.min(idle, second.idleFor());
        return idle;
    }
}
