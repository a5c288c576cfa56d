package velk.phone.android;

import java.io.IOException;

/** Where connections come in. */
interface Listener {
    /** Waits for the next connection. */
    Connection accept() throws IOException;

    /** Makes a waiting accept() return or throw, and takes no connection any more. */
    void close();
}
