package velk.phone.android;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;
import static org.robolectric.Shadows.shadowOf;

import android.content.Intent;
import android.os.Build;
import android.os.Looper;
import android.view.View;
import android.view.ViewGroup;
import android.widget.Button;
import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import org.junit.Test;
import org.junit.runner.RunWith;
import org.robolectric.Robolectric;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.RuntimeEnvironment;
import org.robolectric.android.controller.ActivityController;
import org.robolectric.android.controller.ServiceController;
import org.robolectric.annotation.Config;

/** Who gets in, and how long the agent lives. */
@RunWith(RobolectricTestRunner.class)
@Config(sdk = {19, 28, 34})
public class LifeTest {
    private static final int UNKNOWN = -1;

    private static final class FakeConnection implements Connection {
        final int uid;
        final ByteArrayOutputStream got = new ByteArrayOutputStream();
        final CountDownLatch closed = new CountDownLatch(1);
        volatile boolean read;

        FakeConnection(int uid) {
            this.uid = uid;
        }

        @Override
        public int uid() throws IOException {
            if (uid == UNKNOWN) throw new IOException("no credentials");
            return uid;
        }

        @Override
        public InputStream in() {
            read = true;
            return new ByteArrayInputStream("x".getBytes());
        }

        @Override
        public OutputStream out() {
            return got;
        }

        @Override
        public void close() {
            closed.countDown();
        }
    }

    private static final class FakeListener implements Listener {
        final LinkedBlockingQueue<FakeConnection> connections = new LinkedBlockingQueue<>();

        @Override
        public Connection accept() throws IOException {
            try {
                FakeConnection connection = connections.take();
                if (connection.closed.getCount() > 0) return connection;
            } catch (InterruptedException stopped) {
                Thread.currentThread().interrupt();
            }
            throw new IOException("closed");
        }

        @Override
        public void close() {
            FakeConnection last = new FakeConnection(0);
            last.close();
            connections.add(last);
        }
    }

    @Test
    public void onlyRootAndTheShellGetIn() throws Exception {
        FakeListener listener = new FakeListener();
        ConnectionServer server = new ConnectionServer(listener, new Wire() {
            @Override
            public void serve(InputStream in, OutputStream out) throws IOException {
                out.write(in.read());
                throw new IllegalStateException("A broken request lets the next one in all the same.");
            }
        }, "server");
        int[] uids = {0, 2000, 1000, 1001, 10050, UNKNOWN, 102000};
        for (int uid : uids) {
            FakeConnection connection = new FakeConnection(uid);
            listener.connections.add(connection);
            assertTrue(connection.closed.await(10, TimeUnit.SECONDS));
            boolean welcome = uid == 0 || uid == 2000;
            assertEquals("uid " + uid, welcome, connection.read);
            assertEquals("uid " + uid, welcome ? "x" : "", connection.got.toString());
        }
        server.stop();
    }

    /** Runs what the main thread has to do in so many seconds. */
    private static void pass(int seconds) {
        shadowOf(Looper.getMainLooper()).idleFor(seconds, TimeUnit.SECONDS);
    }

    private static void cable(boolean connected) {
        RuntimeEnvironment.getApplication().sendStickyBroadcast(
                new Intent(CableWatch.USB_STATE).putExtra(CableWatch.CONNECTED, connected));
        pass(0);
    }

    private static final class Watch implements CableWatch.IdleTime, Runnable {
        final CableWatch watch = new CableWatch(RuntimeEnvironment.getApplication(), this, this);
        long idle = Long.MAX_VALUE;
        boolean away;

        @Override
        public long milliseconds() {
            return idle;
        }

        @Override
        public void run() {
            away = true;
        }
    }

    @Test
    public void theAgentEndsAWhileAfterTheCable() {
        cable(true);
        Watch watch = new Watch();
        watch.watch.start();
        pass(3600);
        assertFalse("The cable is in.", watch.away);
        cable(false);
        pass(30);
        cable(true);
        pass(600);
        assertFalse("It was out for a moment.", watch.away);
        cable(false);
        watch.idle = 1000;
        pass(600);
        assertFalse("Somebody was here all the same.", watch.away);
        watch.idle = Long.MAX_VALUE;
        pass(20);
        assertTrue(watch.away);
        watch.watch.stop();
    }

    @Test
    public void withoutACableItWaitsLonger() {
        cable(false);
        Watch watch = new Watch();
        watch.watch.start();
        pass(300);
        assertFalse(watch.away);
        pass(330);
        assertTrue(watch.away);
        watch.watch.stop();
    }

    @Test
    public void theServiceShowsANoticeWithStopAndIsNotStartedAgain() {
        ServiceController<AgentService> service = Robolectric.buildService(AgentService.class).create();
        assertEquals(android.app.Service.START_NOT_STICKY,
                service.get().onStartCommand(new Intent(), 0, 1));
        android.app.Notification notice = shadowOf(service.get()).getLastForegroundNotification();
        assertEquals("Stop", notice.actions[0].title.toString());
        if (Build.VERSION.SDK_INT >= 26) assertNotNull(notice.getChannelId());
        assertFalse(shadowOf(service.get()).isStoppedBySelf());
        service.get().onStartCommand(shadowOf(notice.actions[0].actionIntent).getSavedIntent(), 0, 2);
        assertTrue(shadowOf(service.get()).isStoppedBySelf());
        assertEquals("not when it was started again meanwhile", 2, shadowOf(service.get()).getStopSelfId());
        service.destroy();
    }

    @Test
    public void thePageStartsTheAgentAndAsksForWhatIsMissing() {
        shadowOf(RuntimeEnvironment.getApplication()).grantPermissions(Rights.CONTACTS);
        ActivityController<PhoneConnActivity> controller =
                Robolectric.buildActivity(PhoneConnActivity.class).setup();
        PhoneConnActivity page = controller.get();
        assertEquals(AgentService.class.getName(), nextStarted());
        controller.newIntent(new Intent());
        assertEquals("opened again", AgentService.class.getName(), nextStarted());
        controller.recreate();
        page = controller.get();
        assertNull("rotated", shadowOf(RuntimeEnvironment.getApplication()).getNextStartedService());
        assertNull(button(page.findViewById(android.R.id.content), "Allow contacts"));
        Button messages = button(page.findViewById(android.R.id.content), "Allow messages");
        assertEquals(Build.VERSION.SDK_INT >= 23, messages != null);
        if (messages == null) return;
        messages.performClick();
        String[] asked = shadowOf(page).getLastRequestedPermission().requestedPermissions;
        assertEquals("android.permission.READ_SMS", asked[0]);
        page.onRequestPermissionsResult(0, asked, new int[asked.length]);
        assertEquals("not asked any more", android.provider.Settings.ACTION_APPLICATION_DETAILS_SETTINGS,
                shadowOf(page).getNextStartedActivity().getAction());
    }

    private static String nextStarted() {
        return shadowOf(RuntimeEnvironment.getApplication()).getNextStartedService().getComponent()
                .getClassName();
    }

    private static Button button(View view, String text) {
        if (view instanceof Button && ((Button) view).getText().toString().equals(text)) return (Button) view;
        if (!(view instanceof ViewGroup)) return null;
        for (int i = 0; i < ((ViewGroup) view).getChildCount(); ++i) {
            Button found = button(((ViewGroup) view).getChildAt(i), text);
            if (found != null) return found;
        }
        return null;
    }
}
