package velk.phone.android;

import java.io.IOException;
import java.io.InputStream;
import java.util.Arrays;

/** Reads a line of bytes that has a limit. */
final class Lines {
    static final int LONGEST = 8 << 20;
    /** Of a line that is too long so much is read, so that the one who writes it comes to read the answer. */
    private static final long MOST_DISCARDED = 256L << 20;
    private static final int CHUNK = 8192;

    private Lines() {}

    /** What stands before the first line feed. */
    static byte[] read(InputStream in) throws IOException, RequestError {
        byte[] line = new byte[CHUNK];
        int length = 0;
        byte[] chunk = new byte[CHUNK];
        for (int count = in.read(chunk); count >= 0; count = in.read(chunk)) {
            int end = lineFeed(chunk, count);
            int used = end < 0 ? count : end;
            if (length + used > LONGEST) {
                if (end < 0) discard(in, chunk);
                throw new RequestError(RequestError.TOO_LONG, "A request has at most " + LONGEST + " bytes.");
            }
            if (length + used > line.length) {
                line = Arrays.copyOf(line, Math.max(2 * line.length, length + used));
            }
            System.arraycopy(chunk, 0, line, length, used);
            length += used;
            if (end >= 0) return Arrays.copyOf(line, length);
        }
        throw new RequestError(RequestError.BAD_REQUEST, "The request was cut off.");
    }

    private static void discard(InputStream in, byte[] chunk) throws IOException {
        long discarded = 0;
        for (int count = in.read(chunk); count >= 0; count = in.read(chunk)) {
            discarded += count;
            if (lineFeed(chunk, count) >= 0 || discarded > MOST_DISCARDED) return;
        }
    }

    private static int lineFeed(byte[] chunk, int count) {
        for (int i = 0; i < count; ++i) if (chunk[i] == '\n') return i;
        return -1;
    }
}
