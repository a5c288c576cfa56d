package velk.phone.android;

import static org.robolectric.Shadows.shadowOf;

import android.app.Activity;
import android.app.AppOpsManager;
import android.app.Application;
import android.app.PendingIntent;
import android.content.BroadcastReceiver;
import android.content.ContentProvider;
import android.content.Context;
import android.content.Intent;
import android.content.SyncAdapterType;
import android.content.pm.ProviderInfo;
import android.media.MediaScannerConnection;
import android.net.Uri;
import android.os.Environment;
import android.os.Looper;
import android.os.Process;
import android.provider.ContactsContract;
import android.provider.MediaStore;
import android.telephony.SmsManager;
import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.File;
import java.io.FileOutputStream;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import org.json.JSONException;
import org.json.JSONObject;
import org.robolectric.RuntimeEnvironment;
import org.robolectric.annotation.Implementation;
import org.robolectric.annotation.Implements;
import org.robolectric.shadows.ShadowContentResolver;
import org.robolectric.shadows.ShadowEnvironment;
import org.robolectric.shadows.ShadowSmsManager;

/** The framework of this computer with a phone's databases in it, and all rights given. */
final class FakePhone {
    /** What the radio says of the next message. */
    static volatile int radio = Activity.RESULT_OK;
    static volatile String sentText;

    final Application application = RuntimeEnvironment.getApplication();
    final FakeContacts contacts = new FakeContacts();
    final FakeMessages messages = new FakeMessages();
    final FakeMedia media = new FakeMedia();
    final Phone phone;

    FakePhone() {
        radio = Activity.RESULT_OK;
        register(contacts, ContactsContract.AUTHORITY);
        register(messages, "sms");
        register(media, MediaStore.AUTHORITY);
        shadowOf(application).grantPermissions(Rights.CONTACTS);
        shadowOf(application).grantPermissions(Rights.MESSAGES);
        shadowOf(application).grantPermissions(Rights.FILES);
        letWriteMessages(true);
        ShadowEnvironment.setIsExternalStorageLegacy(true);
        ShadowContentResolver.setSyncAdapterTypes(new SyncAdapterType[0]);
        for (String feature : new String[] {"android.hardware.telephony", "android.hardware.telephony.messaging"}) {
            shadowOf(application.getPackageManager()).setSystemFeature(feature, true);
        }
        phone = new Phone(application);
    }

    void close() {
        contacts.database.close();
        messages.database.close();
        media.database.close();
    }

    private void register(ContentProvider provider, String authority) {
        ProviderInfo info = new ProviderInfo();
        info.authority = authority;
        provider.attachInfo(application, info);
        ShadowContentResolver.registerProviderInternal(authority, provider);
    }

    /** Sets the operation as the computer does with `appops set`. */
    void letWriteMessages(boolean allowed) {
        AppOpsManager operations =
                (AppOpsManager) application.getSystemService(Context.APP_OPS_SERVICE);
        int mode = allowed ? AppOpsManager.MODE_ALLOWED : AppOpsManager.MODE_IGNORED;
        String us = application.getPackageName();
        if (android.os.Build.VERSION.SDK_INT < 23) shadowOf(operations).setMode(15, Process.myUid(), us, mode);
        else shadowOf(operations).setMode("android:write_sms", Process.myUid(), us, mode);
        messages.writable = allowed;
    }

    /** A file in the phone's storage. */
    File file(String name) throws IOException {
        File file = new File(Environment.getExternalStorageDirectory(), name);
        file.getParentFile().mkdirs();
        try (FileOutputStream out = new FileOutputStream(file)) {
            out.write(1);
        }
        return file;
    }

    /** The reply of a wire to these bytes, while the phone's main thread goes on. */
    static byte[] serve(final Wire wire, final byte[] request) throws Exception {
        final ByteArrayOutputStream reply = new ByteArrayOutputStream();
        final Throwable[] failure = new Throwable[1];
        Thread worker = new Thread(new Runnable() {
            @Override
            public void run() {
                try {
                    wire.serve(new ByteArrayInputStream(request), reply);
                } catch (Throwable thrown) {
                    failure[0] = thrown;
                }
            }
        });
        worker.start();
        while (worker.isAlive()) {
            shadowOf(Looper.getMainLooper()).idle();
            worker.join(2);
        }
        if (failure[0] != null) throw new AssertionError(failure[0]);
        return reply.toByteArray();
    }

    /** The lines of the second wire's reply. */
    List<JSONObject> ask(String request) throws Exception {
        return lines(serve(new SecondWire(phone), (request + "\n").getBytes(StandardCharsets.UTF_8)));
    }

    static List<JSONObject> lines(byte[] reply) throws JSONException {
        String text = new String(reply, StandardCharsets.UTF_8);
        if (!text.endsWith("\n")) throw new AssertionError("cut: " + text);
        List<JSONObject> lines = new ArrayList<>();
        for (String line : text.split("\n")) lines.add(new JSONObject(line));
        return lines;
    }

    /** Looks at files at once. */
    @Implements(MediaScannerConnection.class)
    public static final class Scanner {
        static final List<String> scanned = new ArrayList<>();

        @Implementation
        protected static void scanFile(Context context, String[] paths, String[] types,
                MediaScannerConnection.OnScanCompletedListener listener) {
            for (String path : paths) {
                scanned.add(path);
                listener.onScanCompleted(path, Uri.EMPTY);
            }
        }
    }

    /** Says of each part what the radio says. */
    @Implements(SmsManager.class)
    public static final class Sender extends ShadowSmsManager {
        @Override
        @Implementation
        protected void sendMultipartTextMessage(String number, String center, ArrayList<String> parts,
                ArrayList<PendingIntent> sent, ArrayList<PendingIntent> delivered) {
            StringBuilder text = new StringBuilder();
            for (String part : parts) text.append(part);
            sentText = text.toString();
            report(sent, 0);
        }

        @Implementation
        protected ArrayList<String> divideMessage(String text) {
            ArrayList<String> parts = new ArrayList<>();
            for (int at = 0; at < text.length(); at += 70) {
                parts.add(text.substring(at, Math.min(text.length(), at + 70)));
            }
            return parts;
        }

        /** One part after the other, as the framework on this computer needs it. */
        private static void report(final List<PendingIntent> sent, final int part) {
            if (part == sent.size()) return;
            BroadcastReceiver next = new BroadcastReceiver() {
                @Override
                public void onReceive(Context context, Intent intent) {
                    report(sent, part + 1);
                }
            };
            RuntimeEnvironment.getApplication().sendOrderedBroadcast(
                    shadowOf(sent.get(part)).getSavedIntent(), null, next, null, radio, null, null);
        }
    }
}
