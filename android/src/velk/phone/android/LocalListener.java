package velk.phone.android;

import android.net.LocalServerSocket;
import android.net.LocalSocket;
import android.net.LocalSocketAddress;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;

/** An abstract local socket. Unlike a TCP port it tells who connects, and takes no INTERNET permission. */
final class LocalListener implements Listener {
    /** A connection on which nothing comes for so long is closed. */
    private static final int TIMEOUT_MS = 60000;

    private final String name;
    private final LocalServerSocket socket;
    private volatile boolean closed;

    LocalListener(String name) throws IOException {
        this.name = name;
        socket = new LocalServerSocket(name);
    }

    @Override
    public Connection accept() throws IOException {
        LocalSocket accepted = socket.accept();
        if (!closed) return new LocalConnection(accepted);
        accepted.close();
        throw new IOException("closed");
    }

    @Override
    public void close() {
        closed = true;
        // On many versions closing a local socket leaves accept() waiting; a connection ends that.
        LocalSocket waker = new LocalSocket();
        try {
            waker.connect(new LocalSocketAddress(name));
        } catch (IOException nobodyWaits) {
            // Then there is nobody to wake.
        }
        closeQuietly(waker);
        try {
            socket.close();
        } catch (IOException ignored) {
            // It is of no use any more, closed or not.
        }
    }

    private static void closeQuietly(LocalSocket socket) {
        try {
            socket.close();
        } catch (IOException ignored) {
            // The connection is over either way.
        }
    }

    private static final class LocalConnection implements Connection {
        private final LocalSocket socket;

        LocalConnection(LocalSocket socket) {
            this.socket = socket;
        }

        @Override
        public int uid() throws IOException {
            return socket.getPeerCredentials().getUid();
        }

        @Override
        public InputStream in() throws IOException {
            socket.setSoTimeout(TIMEOUT_MS);
            return socket.getInputStream();
        }

        @Override
        public OutputStream out() throws IOException {
            return socket.getOutputStream();
        }

        @Override
        public void close() {
            closeQuietly(socket);
        }
    }
}
