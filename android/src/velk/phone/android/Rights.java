package velk.phone.android;

import android.Manifest;
import android.app.AppOpsManager;
import android.content.Context;
import android.content.pm.PackageManager;
import android.os.Build;
import android.os.Environment;
import android.os.Process;
import java.lang.reflect.Method;

/** What the phone's owner lets the agent do, as sentences where it does not. */
final class Rights {
    static final String[] CONTACTS = {
        Manifest.permission.READ_CONTACTS, Manifest.permission.WRITE_CONTACTS
    };
    private static final boolean SENDING_NEEDS_PHONE_STATE = Build.VERSION.SDK_INT <= 26;
    static final String[] MESSAGES = SENDING_NEEDS_PHONE_STATE
            ? new String[] {Manifest.permission.READ_SMS, Manifest.permission.SEND_SMS,
                Manifest.permission.READ_PHONE_STATE}
            : new String[] {Manifest.permission.READ_SMS, Manifest.permission.SEND_SMS};
    static final String[] FILES = {
        Manifest.permission.READ_EXTERNAL_STORAGE, Manifest.permission.WRITE_EXTERNAL_STORAGE
    };

    private static final String OPEN = " Open Velk on the phone and allow it there.";
    /** The number of this operation on phones that do not know its name yet. */
    private static final int OP_WRITE_SMS = 15;

    private final Context context;

    Rights(Context context) {
        this.context = context;
    }

    boolean has(String permission) {
        return context.checkPermission(permission, Process.myPid(), Process.myUid())
                == PackageManager.PERMISSION_GRANTED;
    }

    boolean hasAll(String[] permissions) {
        for (String permission : permissions) if (!has(permission)) return false;
        return true;
    }

    String readContacts() {
        return sentence(Manifest.permission.READ_CONTACTS, "read the contacts");
    }

    String changeContacts() {
        String problem = readContacts();
        if (problem != null) return problem;
        return sentence(Manifest.permission.WRITE_CONTACTS, "change the contacts");
    }

    String readMessages() {
        return sentence(Manifest.permission.READ_SMS, "read the messages");
    }

    String sendMessages() {
        String problem = sentence(Manifest.permission.SEND_SMS, "send messages");
        if (problem != null || !SENDING_NEEDS_PHONE_STATE) return problem;
        return sentence(Manifest.permission.READ_PHONE_STATE,
                "read the phone's state, without which it sends no messages");
    }

    /**
     * The messages' database changes nothing, and says nothing, unless this operation is allowed to the
     * application. No page of the phone's settings has it; the computer sets it.
     */
    String deleteMessages() {
        if (mayWriteMessages()) return null;
        return "The phone lets Velk delete no messages until the computer allows it:"
                + " adb shell appops set " + context.getPackageName() + " WRITE_SMS allow";
    }

    String readFiles() {
        return sentence(Manifest.permission.READ_EXTERNAL_STORAGE, "find files");
    }

    /** Files of any type; the phone may show an application its media alone. */
    String readAllFiles() {
        String problem = readFiles();
        return problem != null ? problem : onlyMedia();
    }

    String changeFiles() {
        String problem = sentence(Manifest.permission.WRITE_EXTERNAL_STORAGE, "change files");
        return problem != null ? problem : onlyMedia();
    }

    /** The older storage model is kept or refused when the application is installed. */
    private static String onlyMedia() {
        if (Build.VERSION.SDK_INT < 29 || Environment.isExternalStorageLegacy()) return null;
        return "The phone shows Velk its media but not its files. Install Velk's agent again.";
    }

    /** Refuses with `problem` when there is one. */
    static void demand(String problem) throws RequestError {
        if (problem != null) throw new RequestError(RequestError.PERMISSION, problem);
    }

    private String sentence(String permission, String what) {
        return has(permission) ? null : "The phone does not let Velk " + what + "." + OPEN;
    }

    /** True also where the phone does not tell: a delete looks afterwards whether it worked. */
    private boolean mayWriteMessages() {
        AppOpsManager operations =
                (AppOpsManager) context.getSystemService(Context.APP_OPS_SERVICE);
        String us = context.getPackageName();
        try {
            return allowed(operations.checkOpNoThrow("android:write_sms", Process.myUid(), us));
        } catch (RuntimeException nameUnknown) {
            return mayWriteMessagesByNumber(operations, us);
        }
    }

    private static boolean mayWriteMessagesByNumber(AppOpsManager operations, String us) {
        try {
            Method check = AppOpsManager.class.getMethod(
                    "checkOpNoThrow", int.class, int.class, String.class);
            return allowed((Integer) check.invoke(operations, OP_WRITE_SMS, Process.myUid(), us));
        } catch (ReflectiveOperationException | RuntimeException untold) {
            return true;
        }
    }

    private static boolean allowed(int mode) {
        return mode == AppOpsManager.MODE_ALLOWED;
    }
}
