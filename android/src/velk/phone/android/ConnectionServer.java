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
final class ConnectionServer {
    private static final String TAG = "velk";
    /** adbd runs as one of these two. */
    private static final int ROOT_UID = 0;
    private static final int SHELL_UID = 2000;

    private static final int MAX_THREADS = 8;
    private static final int MAX_QUEUED = 64;
    private static final long FIRST_PAUSE_MS = 100;
    private static final long LONGEST_PAUSE_MS = 5000;

    private final Listener listener;
    private final Wire wire;
    private final ThreadPoolExecutor workers;
    private final AtomicInteger active = new AtomicInteger();
    private volatile long lastClosed = SystemClock.elapsedRealtime();
    private volatile boolean stopped;

    /** Accepts connections from now on, until stop(). */
    ConnectionServer(Listener listener, Wire wire, String name) {
        this.listener = listener;
        this.wire = wire;
        workers = new ThreadPoolExecutor(MAX_THREADS, MAX_THREADS, 10, TimeUnit.SECONDS,
                new LinkedBlockingQueue<Runnable>(MAX_QUEUED));
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
        listener.close();
        workers.shutdown();
    }

    /** Milliseconds since the last connection ended; 0 during one. */
    long idleFor() {
        return active.get() > 0 ? 0 : SystemClock.elapsedRealtime() - lastClosed;
    }

    private void acceptAll() {
        long pause = FIRST_PAUSE_MS;
        while (!stopped) {
            try {
                receive(listener.accept());
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

    private void receive(final Connection connection) {
        if (!isAllowed(connection)) {
            connection.close();
            return;
        }
        active.incrementAndGet();
        try {
            workers.execute(new Runnable() {
                @Override
                public void run() {
                    serve(connection);
                }
            });
        } catch (RejectedExecutionException full) {
            finish(connection);
        }
    }

    private static boolean isAllowed(Connection connection) {
        try {
            int uid = connection.uid();
            return uid == ROOT_UID || uid == SHELL_UID;
        } catch (IOException unknown) {
            return false;
        }
    }

    private void serve(Connection connection) {
        try {
            wire.serve(connection.in(), connection.out());
        } catch (IOException gone) {
            // The computer has hung up; there is nobody to tell.
        } catch (RuntimeException | OutOfMemoryError broken) {
            Log.e(TAG, "A request ended in an error", broken);
        } finally {
            finish(connection);
        }
    }

    private void finish(Connection connection) {
        connection.close();
        lastClosed = SystemClock.elapsedRealtime();
        active.decrementAndGet();
    }
}
