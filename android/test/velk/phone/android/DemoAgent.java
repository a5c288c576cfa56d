package velk.phone.android;

import static org.robolectric.Shadows.shadowOf;

import android.content.Intent;
import android.content.pm.ApplicationInfo;
import android.content.pm.PackageInfo;
import android.net.Uri;
import android.os.BatteryManager;
import android.os.Environment;
import android.os.Looper;
import android.provider.MediaStore;
import java.io.File;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.net.InetAddress;
import java.net.ServerSocket;
import java.net.Socket;
import org.junit.Test;
import org.junit.runner.JUnitCore;
import org.junit.runner.Result;
import org.junit.runner.RunWith;
import org.junit.runner.notification.Failure;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.annotation.Config;
import org.robolectric.shadows.ShadowStatFs;

/** The agent behind two ports of this computer, with a simulated phone. */
@RunWith(RobolectricTestRunner.class)
@Config(sdk = 34, shadows = {FakePhone.Scanner.class, FakePhone.Sender.class})
public class DemoAgent {
    private static final String[] STRANGE = {
        "star*name", "pipe|name", "a\\b \"q\" 'r'", "line\nbreak\r\ttab", "nul\0name",
        "\u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627", "\uD83D\uDE00 \uD83D\uDC69\u200D\uD83D\uDE80", ""
    };
    private static final int FILES = 50;

    /** Arguments: the ports of both wires, and how many contacts and messages the phone has. */
    public static void main(String[] arguments) {
        String[] names = {"first", "second", "contacts", "messages"};
        for (int i = 0; i < arguments.length; ++i) System.setProperty("demo." + names[i], arguments[i]);
        Result result = JUnitCore.runClasses(DemoAgent.class);
        for (Failure failure : result.getFailures()) System.err.println(failure.getTrace());
        System.exit(result.wasSuccessful() ? 0 : 1);
    }

    private static int argument(String name, int otherwise) {
        return Integer.getInteger("demo." + name, otherwise);
    }

    @Test
    public void serve() throws Exception {
        FakePhone phone = new FakePhone();
        fillContacts(phone, argument("contacts", 100));
        fillMessages(phone, argument("messages", 1000));
        fillFiles(phone);
        installApplications(phone);
        setFacts(phone);
        Runnable stay = new Runnable() {
            @Override
            public void run() {
                System.out.println("goodbye");
            }
        };
        new ConnectionServer(new Port(argument("first", 0)), new FirstWire(phone.phone, stay), "first");
        new ConnectionServer(new Port(argument("second", 0)), new SecondWire(phone.phone), "second");
        System.out.println("ready");
        while (!Thread.interrupted()) {
            shadowOf(Looper.getMainLooper()).idle();
            Thread.sleep(5);
        }
    }

    private static void fillContacts(FakePhone phone, int count) {
        phone.contacts.database.beginTransaction();
        for (int i = 0; i < count; ++i) {
            String strange = i % 10 == 0 ? " " + STRANGE[i / 10 % STRANGE.length] : "";
            long id = i % 7 == 0 ? 5000000000L + i : 1 + i;
            long raw = phone.contacts.addRaw(id, null, String.format("Person %05d", i) + strange);
            if (i % 5 > 0) phone.contacts.addNumber(raw, "+38100" + (1000000 + i), false);
            if (i % 5 > 3) phone.contacts.addNumber(raw, "*|" + i, true);
        }
        phone.contacts.database.setTransactionSuccessful();
        phone.contacts.database.endTransaction();
    }

    private static void fillMessages(FakePhone phone, int count) {
        phone.messages.database.beginTransaction();
        for (int i = 0; i < count; ++i) {
            long id = i % 7 == 0 ? 5000000000L + i : 70001 + i;
            phone.messages.add(id, 300 + i % 40, "+38100" + (1000000 + i % 40),
                    "Message " + i + " " + STRANGE[i % STRANGE.length], 1700000000000L + 60000L * i, 1 + i % 2);
        }
        phone.messages.database.setTransactionSuccessful();
        phone.messages.database.endTransaction();
    }

    private static void fillFiles(FakePhone phone) throws IOException {
        Uri[] kinds = {
            MediaStore.Audio.Media.EXTERNAL_CONTENT_URI, MediaStore.Images.Media.EXTERNAL_CONTENT_URI,
            MediaStore.Video.Media.EXTERNAL_CONTENT_URI, MediaStore.Files.getContentUri("external")
        };
        String[] names = {"music/%s%d.mp3", "photo/%s%d.jpg", "movies/%s%d.mp4", "book/%s%d.epub"};
        for (int i = 0; i < FILES; ++i) {
            String strange = STRANGE[i % STRANGE.length].replace("\0", "");
            for (int kind = 0; kind < kinds.length; ++kind) {
                File file = phone.file(String.format(names[kind], strange, i));
                long id = i % 7 == 0 ? 5000000000L + i : 70001 + i;
                phone.media.add(kinds[kind], id, file.getPath(), 1 + i * 100000000L, null);
            }
        }
    }

    private static void setFacts(FakePhone phone) {
        phone.application.sendStickyBroadcast(new Intent(Intent.ACTION_BATTERY_CHANGED)
                .putExtra(BatteryManager.EXTRA_LEVEL, 85).putExtra(BatteryManager.EXTRA_SCALE, 100));
        ShadowStatFs.registerStats(Environment.getDataDirectory(), 400000, 150000, 150000);
        ShadowStatFs.registerStats(Environment.getExternalStorageDirectory(), 450000, 200000, 200000);
    }

    private static void installApplications(FakePhone phone) {
        for (int i = 0; i < 10; ++i) {
            PackageInfo info = new PackageInfo();
            info.packageName = "org.example.number" + i;
            info.versionName = "1." + i;
            info.applicationInfo = new ApplicationInfo();
            info.applicationInfo.packageName = info.packageName;
            info.applicationInfo.name = "Application " + STRANGE[i % STRANGE.length];
            info.applicationInfo.sourceDir = "/data/app/" + info.packageName + "/base.apk";
            if (i == 9) info.applicationInfo.flags = ApplicationInfo.FLAG_SYSTEM;
            shadowOf(phone.application.getPackageManager()).installPackage(info);
        }
    }

    /** A port of this computer's own network, where everybody counts as the shell. */
    private static final class Port implements Listener {
        private final ServerSocket server;

        Port(int port) throws IOException {
            server = new ServerSocket(port, 50, InetAddress.getByName("127.0.0.1"));
        }

        @Override
        public Connection accept() throws IOException {
            final Socket socket = server.accept();
            return new Connection() {
                @Override
                public int uid() {
                    return 2000;
                }

                @Override
                public InputStream in() throws IOException {
                    return socket.getInputStream();
                }

                @Override
                public OutputStream out() throws IOException {
                    return socket.getOutputStream();
                }

                @Override
                public void close() {
                    try {
                        socket.close();
                    } catch (IOException ignored) {
                        // The connection is over either way.
                    }
                }
            };
        }

        @Override
        public void close() {
            try {
                server.close();
            } catch (IOException ignored) {
                // It takes no connection any more, either way.
            }
        }
    }
}
