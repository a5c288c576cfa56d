package velk.phone.android;

import android.os.SystemClock;
import android.util.Log;
import java.io.IOException;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.RejectedExecutionException;
import java.util.concurrent.ThreadPoolExecutor;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.atomic.AtomicInteger;

/** Accepts the connections of the computer and of nobody else, and gives each one a thread. */
final class Doorkeeper {
    private static final String TAG = "velk";
    /** adbd runs as one of these two. */
    private static final int ROOT_UID = 0;
    private static final int SHELL_UID = 2000;

    private static final int MOST_AT_ONCE = 8;
    private static final int MOST_WAITING = 64;
    private static final long FIRST_PAUSE_MS = 100;
    private static final long LONGEST_PAUSE_MS = 5000;

    private final Door door;
    private final Wire wire;
    private final ThreadPoolExecutor workers;
    private final AtomicInteger inside = new AtomicInteger();
    private volatile long lastVisit = SystemClock.elapsedRealtime();
    private volatile boolean stopped;

    /** Accepts connections from now on, until stop(). */
    Doorkeeper(Door door, Wire wire, String name) {
        this.door = door;
        this.wire = wire;
        workers = new ThreadPoolExecutor(MOST_AT_ONCE, MOST_AT_ONCE, 10, TimeUnit.SECONDS,
                new LinkedBlockingQueue<Runnable>(MOST_WAITING));
        workers.allowCoreThreadTimeOut(true);
        new Thread(new Runnable() {
            @Override
            public void run() {
                acceptAll();
            }
        }, name).start();
    }

    /** Takes no connection any more; those that are served go on to their end. */
    void stop() {
        stopped = true;
        door.close();
        workers.shutdown();
    }

    /** Milliseconds since the last connection ended; 0 during one. */
    long quietFor() {
        return inside.get() > 0 ? 0 : SystemClock.elapsedRealtime() - lastVisit;
    }

    private void acceptAll() {
        long pause = FIRST_PAUSE_MS;
        while (!stopped) {
            try {
                receive(door.accept());
                pause = FIRST_PAUSE_MS;
            } catch (IOException failed) {
                if (stopped) return;
                if (pause == FIRST_PAUSE_MS) Log.e(TAG, "A connection cannot be accepted", failed);
                // The phone may have run out of memory or of files, and have some again later.
                SystemClock.sleep(pause);
                pause = Math.min(2 * pause, LONGEST_PAUSE_MS);
            }
        }
    }

    private void receive(final Peer peer) {
        if (!mayEnter(peer)) {
            peer.close();
            return;
        }
        inside.incrementAndGet();
        try {
            workers.execute(new Runnable() {
                @Override
                public void run() {
                    serve(peer);
                }
            });
        } catch (RejectedExecutionException full) {
            leave(peer);
        }
    }

    private static boolean mayEnter(Peer peer) {
        try {
            int uid = peer.uid();
            return uid == ROOT_UID || uid == SHELL_UID;
        } catch (IOException unknown) {
            return false;
        }
    }

    private void serve(Peer peer) {
        try {
            wire.serve(peer.in(), peer.out());
        } catch (IOException gone) {
            // The computer has hung up; there is nobody to tell.
        } catch (RuntimeException | OutOfMemoryError broken) {
            Log.e(TAG, "A request ended in an error", broken);
        } finally {
            leave(peer);
        }
    }

    private void leave(Peer peer) {
        peer.close();
        lastVisit = SystemClock.elapsedRealtime();
        inside.decrementAndGet();
    }
}
