package velk.phone.android;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;
import static org.robolectric.Shadows.shadowOf;

import android.provider.MediaStore;
import java.io.ByteArrayOutputStream;
import java.io.DataInputStream;
import java.io.ByteArrayInputStream;
import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import org.junit.After;
import org.junit.Before;
import org.junit.Test;
import org.junit.runner.RunWith;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.annotation.Config;

@RunWith(RobolectricTestRunner.class)
@Config(sdk = {19, 28, 34}, shadows = {FakePhone.Scanner.class, FakePhone.Sender.class})
public class FirstWireTest {
    private static final int LARGE = 70000;
    private static final String LONG_NAME = new String(new char[200]).replace('\0', '\u05D0');

    private FakePhone phone;
    private boolean saidGoodbye;

    @Before
    public void setUp() {
        phone = new FakePhone();
    }

    @After
    public void tearDown() {
        phone.close();
    }

    private byte[] ask(byte[] request) throws Exception {
        return FakePhone.serve(new FirstWire(phone.phone, new Runnable() {
            @Override
            public void run() {
                saidGoodbye = true;
            }
        }), request);
    }

    private byte[] ask(int code) throws Exception {
        return ask(new byte[] {(byte) code});
    }

    private static byte[] utf8(String text) {
        return text.getBytes(StandardCharsets.UTF_8);
    }

    /** A framed request; lengths lose their high bit. `second` is the second length, -1 for the content's. */
    private static byte[] framed(int code, int second, byte[]... content) throws IOException {
        ByteArrayOutputStream all = new ByteArrayOutputStream();
        for (byte[] part : content) all.write(part);
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.write(new byte[] {(byte) code, 0, (byte) (all.size() + 4 & 127), 0, 0, 0});
        out.write(new byte[] {(byte) ((second < 0 ? all.size() : second) & 127), 0, 0, 0});
        all.writeTo(out);
        return out.toByteArray();
    }

    private boolean isDone(byte[] request) throws Exception {
        byte[] reply = ask(request);
        if (reply.length == 0) return false;
        assertArrayEquals(new byte[] {0, request[0], 0, 0, 0, 2, 0, 1}, reply);
        return true;
    }

    /** A value as the computer cuts it out. */
    private String value(int code) throws Exception {
        byte[] reply = ask(code);
        assertEquals(reply.length - 10, reply[9]);
        return new String(reply, 10, reply.length - 10, StandardCharsets.UTF_8);
    }

    /** The records of a list whose header counts what follows. */
    private DataInputStream list(int code) throws Exception {
        byte[] reply = ask(code);
        DataInputStream in = new DataInputStream(new ByteArrayInputStream(reply));
        assertEquals(code, in.readUnsignedShort());
        assertEquals(reply.length - 6, in.readInt());
        assertEquals(0, in.read());
        return in;
    }

    private static String text(DataInputStream in) throws IOException {
        byte[] text = new byte[in.readInt()];
        in.readFully(text);
        return new String(text, StandardCharsets.UTF_8);
    }

    private void deleteMessage(int id, int thread, boolean answered) throws Exception {
        for (int variant : new int[] {2, 1, 20}) {
            byte[] request = {78, 0, 8, 0, 0, 0, (byte) id, 0, 0, 0, (byte) thread, (byte) variant, 0, 0};
            assertEquals(answered, isDone(request));
        }
    }

    @Test
    public void valuesAreTextWithTheirLength() throws Exception {
        phone.contacts.addRaw(1, null, "Ann");
        phone.messages.add(1, 1, "1", "x", 1, 1);
        assertEquals("1", value(65));
        assertEquals("1", value(66));
        for (int code : new int[] {67, 68, 70, 72, 74}) assertEquals("0", value(code));
        assertEquals("2.0", value(114));
        assertEquals(android.os.Build.VERSION.RELEASE, value(75));
        assertEquals(android.os.Build.MODEL, value(77));
        for (int code : new int[] {79, 81, 83, 85}) assertTrue(value(code).matches("\\d+"));
        assertEquals(8, ask(38).length);
        assertFalse(saidGoodbye);
        assertEquals("1", value(90));
        assertTrue(saidGoodbye);
    }

    @Test
    public void whatIsNoRequestIsNotAnswered() throws Exception {
        assertEquals(0, ask(1).length);
        assertEquals(0, ask(new byte[0]).length);
        assertEquals(0, ask(new byte[] {53, 0, 12, 0, 0}).length);
        assertEquals(0, ask(new byte[100000]).length);
        shadowOf(phone.application).denyPermissions(Rights.CONTACTS);
        assertEquals(0, ask(65).length);
        assertEquals(0, ask(14).length);
    }

    @Test
    public void contactsAreEditedAndListed() throws Exception {
        byte[] added = ask(framed(53, -1, utf8("Bob*12*|")));
        String id = new String(added, 11, added.length - 11, StandardCharsets.UTF_8);
        DataInputStream list = list(14);
        assertEquals(id, text(list));
        assertEquals("Bob", text(list));
        assertEquals("12", text(list));
        assertEquals(0, list.available());
        int number = Integer.parseInt(id);
        byte[] idBytes = {(byte) number, (byte) (number >> 8), (byte) (number >> 16), 0, 3, 0, 0, 0};
        byte[] name = utf8(LONG_NAME);
        assertTrue(isDone(framed(123, name.length, name, idBytes, utf8("777"))));
        list = list(14);
        text(list);
        assertEquals(LONG_NAME, text(list));
        assertEquals("777", text(list));
        assertFalse(isDone(framed(122, -1, utf8("99|"))));
        assertFalse(isDone(framed(122, -1, utf8("x|"))));
        assertTrue(isDone(framed(122, -1, utf8(id + "|"))));
        assertTrue(isDone(new byte[] {120, 0, 0, 0, 0, 0}));
        assertEquals("0", value(65));
    }

    @Test
    public void aDeleteThatFitsSeveralMessagesChangesNothing() throws Exception {
        phone.messages.add(300, 12, "1", "a", 1, 1);
        phone.messages.add(44, 268, "1", "b", 1, 1);
        phone.messages.add(45, 12, "1", "c", 1, 1);
        deleteMessage(44, 12, false);
        assertEquals("3", value(66));
        deleteMessage(45, 12, true);
        assertEquals("2", value(66));
        phone.messages.writable = false;
        phone.messages.add(46, 12, "1", "d", 1, 1);
        deleteMessage(46, 12, false);
    }

    @Test
    public void messagesComeInPacketsUpToABareHeader() throws Exception {
        String text = new String(new char[400]).replace('\0', '\u05D0');
        for (int i = 0; i < 100; ++i) phone.messages.add(LARGE + i, 300, "+1", text, 1000L * i, 1);
        DataInputStream in = new DataInputStream(new ByteArrayInputStream(ask(47)));
        int records = 0;
        int packets = 0;
        for (int left = header(in); left > 0; left = header(in), ++packets) {
            while (left > 0) {
                int before = in.available();
                assertEquals("+1", text(in));
                assertEquals(text, text(in));
                text(in);
                assertEquals(1, in.readUnsignedShort());
                assertEquals(LARGE + 99 - records++, in.readInt());
                assertEquals(300, in.readInt());
                assertEquals(1, in.readUnsignedShort());
                left -= before - in.available();
            }
        }
        assertEquals(100, records);
        assertTrue(packets > 1);
        assertEquals(0, in.available());
    }

    /** The number of bytes in a packet of messages. */
    private static int header(DataInputStream in) throws IOException {
        assertEquals(47, in.readUnsignedShort());
        int count = in.readInt() - 1;
        assertTrue(count < 65535);
        assertEquals(0, in.read());
        return count;
    }

    @Test
    public void aMessageIsSent() throws Exception {
        String text = new String(new char[150]).replace('\0', 'x') + "*|";
        assertTrue(isDone(framed(50, -1, utf8("123*|" + text))));
        assertEquals(text, FakePhone.sentText);
        FakePhone.radio = android.telephony.SmsManager.RESULT_ERROR_NO_SERVICE;
        assertFalse(isDone(framed(50, -1, utf8("123*|x"))));
    }

    @Test
    public void filesAreListedAndGoByTheirPath() throws Exception {
        File song = phone.file("music/*x|.mp3");
        phone.media.add(MediaStore.Audio.Media.EXTERNAL_CONTENT_URI, LARGE, song.getPath(), 5, "is_ringtone");
        DataInputStream music = list(115);
        assertEquals(LARGE, music.readInt());
        assertEquals("", text(music));
        assertEquals("", text(music));
        assertEquals(song.getPath(), text(music));
        assertEquals("0", text(music));
        assertEquals("5", text(music));
        assertEquals(1, music.readUnsignedShort());
        assertEquals(0, music.available());
        assertFalse(isDone(framed(80, -1, utf8(song.getPath() + "x*4464*|"))));
        assertTrue(isDone(framed(80, -1, utf8(song.getPath() + "*4464*|"))));
        assertFalse(song.exists());
        for (int code : new int[] {117, 118, 119, 116}) assertEquals(0, list(code).available());
    }

    @Test
    public void addedFilesAreAnnounced() throws Exception {
        FakePhone.Scanner.scanned.clear();
        File book = phone.file("book/" + LONG_NAME.substring(0, 90) + ".pdf");
        assertTrue(isDone(framed(108, -1, utf8("/home/" + book.getName() + "|"))));
        assertEquals(java.util.Collections.singletonList(book.getPath()), FakePhone.Scanner.scanned);
        assertFalse(isDone(framed(108, -1, utf8("/home/none.pdf|"))));
    }
}
