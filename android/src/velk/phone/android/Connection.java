package velk.phone.android;

import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;

/** A connection of the computer, or of whoever else connects. */
interface Connection {
    /** The user that the other end runs as; the system says so, not the peer. */
    int uid() throws IOException;

    InputStream in() throws IOException;

    OutputStream out() throws IOException;

    void close();
}
