package velk.phone.android;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.OutputStream;
import java.nio.charset.StandardCharsets;

/**
 * A reply of the first wire: a header that counts what comes after it, and fields. Numbers begin with the
 * high byte.
 */
final class FirstReply {
    /** A field's length is read in 16 bits. */
    private static final int LONGEST_TEXT = 65535;
    private static final int LONGEST_VALUE = 127;

    private final ByteArrayOutputStream bytes = new ByteArrayOutputStream();

    int size() {
        return bytes.size();
    }

    void number(long value, int width) {
        for (int i = width - 1; i >= 0; --i) bytes.write((int) (value >> (8 * i)));
    }

    void text(String text) {
        text(text, LONGEST_TEXT);
    }

    /** A text of at most `longest` bytes, cut between two characters. */
    void text(String text, int longest) {
        byte[] utf8 = text.getBytes(StandardCharsets.UTF_8);
        int length = Math.min(utf8.length, longest);
        while (length > 0 && length < utf8.length && (utf8[length] & 0xC0) == 0x80) --length;
        number(length, 4);
        bytes.write(utf8, 0, length);
    }

    void decimal(long value) {
        text(Long.toString(value));
    }

    /**
     * Sends header and fields in one piece, and is empty again. The computer takes a header with a pause after
     * it for the end of a list.
     */
    void send(int code, OutputStream out) throws IOException {
        FirstReply whole = new FirstReply();
        whole.number(0, 1);
        whole.number(code, 1);
        whole.number(bytes.size() + 1, 4);
        whole.number(0, 1);
        bytes.writeTo(whole.bytes);
        bytes.reset();
        whole.bytes.writeTo(out);
    }

    /** Sends a value as text. Its length is read from one byte, as a signed number. */
    static void sendValue(int code, String value, OutputStream out) throws IOException {
        FirstReply field = new FirstReply();
        field.text(value, LONGEST_VALUE);
        FirstReply reply = new FirstReply();
        reply.number(0, 1);
        reply.number(code, 1);
        reply.number(field.size(), 4);
        field.bytes.writeTo(reply.bytes);
        reply.bytes.writeTo(out);
    }
}
