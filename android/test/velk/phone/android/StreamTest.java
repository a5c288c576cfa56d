package velk.phone.android;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import android.content.ContentProvider;
import android.content.ContentValues;
import android.database.AbstractCursor;
import android.database.Cursor;
import android.net.Uri;
import android.provider.MediaStore;
import java.io.ByteArrayInputStream;
import java.io.OutputStream;
import org.junit.Test;
import org.junit.runner.RunWith;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.annotation.Config;
import org.robolectric.shadows.ShadowContentResolver;

/** A list of any length leaves while it is read: nothing but what is in a buffer is held. */
@RunWith(RobolectricTestRunner.class)
@Config(sdk = {19, 28, 34})
public class StreamTest {
    private static final int MESSAGES = 50000;
    private static final int SHORTEST_RECORD = 50;
    private static final int BUFFERS = 200000;

    private long sent;
    private long mostHeld;

    /** Rows that are made when they are looked at. */
    private final class Endless extends AbstractCursor {
        private final String[] columns;

        Endless(String[] columns) {
            this.columns = columns;
        }

        @Override
        public boolean onMove(int from, int to) {
            mostHeld = Math.max(mostHeld, (long) to * SHORTEST_RECORD - sent);
            return true;
        }

        @Override
        public int getCount() {
            return MESSAGES;
        }

        @Override
        public String[] getColumnNames() {
            return columns;
        }

        @Override
        public String getString(int column) {
            return "a text of some length";
        }

        @Override
        public long getLong(int column) {
            return getPosition();
        }

        @Override
        public int getInt(int column) {
            return 1;
        }

        @Override
        public short getShort(int column) {
            return 1;
        }

        @Override
        public float getFloat(int column) {
            return 1;
        }

        @Override
        public double getDouble(int column) {
            return 1;
        }

        @Override
        public boolean isNull(int column) {
            return false;
        }
    }

    private final class EndlessProvider extends ContentProvider {
        @Override
        public Cursor query(Uri uri, String[] columns, String where, String[] arguments, String order) {
            return new Endless(columns);
        }

        @Override
        public Uri insert(Uri uri, ContentValues values) {
            return null;
        }

        @Override
        public int update(Uri uri, ContentValues values, String where, String[] arguments) {
            return 0;
        }

        @Override
        public int delete(Uri uri, String where, String[] arguments) {
            return 0;
        }

        @Override
        public boolean onCreate() {
            return true;
        }

        @Override
        public String getType(Uri uri) {
            return null;
        }
    }

    private void serve(Wire wire, String request) throws Exception {
        sent = 0;
        mostHeld = 0;
        wire.serve(new ByteArrayInputStream(request.getBytes()), new OutputStream() {
            @Override
            public void write(int one) {
                ++sent;
            }

            @Override
            public void write(byte[] bytes, int from, int count) {
                sent += count;
            }
        });
        assertTrue("held " + mostHeld, mostHeld < BUFFERS);
        assertTrue("sent " + sent, sent > (long) MESSAGES * SHORTEST_RECORD);
    }

    @Test
    public void listsLeaveWhileTheyAreRead() throws Exception {
        FakePhone phone = new FakePhone();
        ShadowContentResolver.registerProviderInternal("sms", new EndlessProvider());
        serve(new SecondWire(phone.phone), "{\"op\":\"list\",\"kind\":\"messages\"}\n");
        serve(new FirstWire(phone.phone, null), "/");
        ShadowContentResolver.registerProviderInternal(MediaStore.AUTHORITY, new EndlessProvider());
        serve(new SecondWire(phone.phone), "{\"op\":\"list\",\"kind\":\"photos\"}\n");
        assertEquals(MESSAGES, phone.phone.messages.count());
        phone.close();
    }
}
