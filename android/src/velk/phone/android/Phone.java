package velk.phone.android;

import android.content.Context;
import android.content.Intent;
import android.content.IntentFilter;
import android.content.pm.PackageManager;
import android.os.BatteryManager;
import android.os.Environment;
import android.os.StatFs;
import java.io.File;
import java.util.Arrays;
import java.util.List;

/** The phone that the agent runs on: its kinds of data and its facts. */
final class Phone {
    final Contacts contacts;
    final Messages messages;
    final Applications applications;
    final Media music;
    final Media photos;
    final Media videos;
    final Books books;
    final AddedFiles addedFiles;

    private final Context context;

    Phone(Context context) {
        this.context = context;
        Rights rights = new Rights(context);
        contacts = new Contacts(context, rights);
        messages = new Messages(context, rights);
        applications = new Applications(context);
        music = Media.music(context, rights);
        photos = Media.photos(context, rights);
        videos = Media.videos(context, rights);
        books = new Books(context, rights);
        addedFiles = new AddedFiles(context, rights);
    }

    /** All that is listed and counted. */
    List<Kind<?>> kinds() {
        return Arrays.<Kind<?>>asList(contacts, messages, applications, music, photos, videos, books);
    }

    Kind<?> kind(String name) throws RequestError {
        for (Kind<?> kind : kinds()) if (kind.name.equals(name)) return kind;
        if (addedFiles.name.equals(name)) return addedFiles;
        if (name.isEmpty()) throw new RequestError(RequestError.BAD_REQUEST, "The request names no kind.");
        throw new RequestError(RequestError.UNKNOWN_KIND, "This agent has no kind of this name.");
    }

    String agentVersion() {
        try {
            String name = context.getPackageName();
            String version = context.getPackageManager().getPackageInfo(name, 0).versionName;
            return version == null ? "" : version;
        } catch (PackageManager.NameNotFoundException removed) {
            return "";
        }
    }

    /** The battery's level in per cent; 0 when the phone does not tell. */
    int battery() {
        Intent state = context.registerReceiver(null, new IntentFilter(Intent.ACTION_BATTERY_CHANGED));
        if (state == null) return 0;
        int scale = state.getIntExtra(BatteryManager.EXTRA_SCALE, 100);
        int level = state.getIntExtra(BatteryManager.EXTRA_LEVEL, 0);
        return scale <= 0 ? 0 : Math.max(0, Math.min(100, level * 100 / scale));
    }

    /** The phone's own memory. */
    static StatFs memory() {
        return statistics(Environment.getDataDirectory());
    }

    /** What people's files are in. */
    static StatFs storage() {
        return statistics(Environment.getExternalStorageDirectory());
    }

    private static StatFs statistics(File folder) {
        return new StatFs(folder.getPath());
    }
}
