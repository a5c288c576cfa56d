package velk.phone.android;

import java.io.IOException;

/** Where connections come in. */
interface Door {
    /** Waits for the next connection. */
    Peer accept() throws IOException;

    /** Makes a waiting accept() return or throw, and takes no connection any more. */
    void close();
}
