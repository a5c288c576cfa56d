package velk.phone.android;

import static org.junit.Assert.assertTrue;

import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.nio.charset.StandardCharsets;
import java.util.List;
import java.util.Random;
import org.json.JSONObject;
import org.junit.Test;
import org.junit.runner.RunWith;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.annotation.Config;

/** Damaged requests, the same ones in each run: a wire answers or hangs up, and never breaks. */
@RunWith(RobolectricTestRunner.class)
@Config(sdk = {19, 28, 34}, shadows = {FakePhone.Scanner.class, FakePhone.Sender.class})
public class DamageTest {
    private static final int ROUNDS = 4000;
    private static final String[] LINES = {
        "{\"op\":\"add\",\"kind\":\"contacts\",\"items\":[{\"name\":\"\\u05d0\\n\",\"number\":\"5\"},{\"x\":[1e9,null]}]}\n",
        "{\"op\":\"delete\",\"kind\":\"messages\",\"items\":[{\"id\":\"70001\",\"thread\":\"12\"}]}\n",
        "{\"op\":\"delete\",\"kind\":\"photos\",\"items\":[{\"id\":70001,\"path\":\"/x\"}],\"all\":false}\n",
        "{\"kind\":\"music\",\"op\":\"list\"}\n",
    };
    private static final String[] BYTES = {
        "5\0\14\0\0\0\10\0\0\0Bob*12*|", "{\0\17\0\0\0\2\0\0\0Al\54\1\0\0\1\0\0\0009",
        "P\0\34\0\0\0\30\0\0\0/sdcard/music/x.mp3*12*|", "N\0\10\0\0\0\54\0\0\0\5\2\0\0",
        "l\0\22\0\0\0\16\0\0\0/sdcard/a.mp3|",
    };

    private final Random random = new Random(1);

    private byte[] damaged(String request) {
        byte[] bytes = request.getBytes(StandardCharsets.ISO_8859_1);
        for (int i = random.nextInt(4); i >= 0; --i) {
            int at = random.nextInt(bytes.length - 1);
            if (random.nextInt(3) == 0) System.arraycopy(bytes, at, bytes, random.nextInt(at + 1), bytes.length - at);
            else bytes[at] = (byte) random.nextInt(256);
        }
        return bytes;
    }

    private static byte[] serve(Wire wire, byte[] request) throws Exception {
        ByteArrayOutputStream reply = new ByteArrayOutputStream();
        wire.serve(new ByteArrayInputStream(request), reply);
        return reply.toByteArray();
    }

    @Test
    public void damagedRequestsAreAnsweredOrRefused() throws Exception {
        FakePhone phone = new FakePhone();
        SecondWire second = new SecondWire(phone.phone);
        FirstWire first = new FirstWire(phone.phone, new Thread());
        for (int i = 0; i < ROUNDS; ++i) {
            byte[] line = damaged(LINES[i % LINES.length]);
            List<JSONObject> reply = FakePhone.lines(serve(second, line));
            JSONObject last = reply.get(reply.size() - 1);
            assertTrue(new String(line, StandardCharsets.ISO_8859_1), last.has("end") != last.has("error"));
            byte[] bytes = damaged(BYTES[i % BYTES.length]);
            // To send waits for the phone's main thread, which this test keeps busy.
            if (bytes[0] != FirstRequest.SEND_MESSAGE) serve(first, bytes);
        }
        phone.close();
    }
}
