package velk.phone.android;

import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;

/** One of the two languages that the computer speaks with the agent. */
interface Wire {
    /** Serves one connection: reads a request and answers it. The caller closes both streams. */
    void serve(InputStream in, OutputStream out) throws IOException;
}
