package velk.phone.android;

import android.content.ContentValues;
import android.net.Uri;
import android.os.Build;
import android.provider.MediaStore;

/** The catalogue of files, with the columns that this Android has. */
final class FakeMedia extends TableProvider {
    FakeMedia() {
        String since29 = Build.VERSION.SDK_INT >= 29 ? ", is_pending INTEGER DEFAULT 0" : "";
        String since30 = Build.VERSION.SDK_INT >= 30 ? ", is_trashed INTEGER DEFAULT 0" : "";
        for (String table : new String[] {"audio", "video", "images", "files"}) {
            database.execSQL("CREATE TABLE " + table + " (_id INTEGER PRIMARY KEY, _data TEXT,"
                    + " _size INTEGER, duration INTEGER, artist TEXT, album TEXT, is_ringtone INTEGER"
                    + since29 + since30 + ")");
            String path = table.equals("files") ? "external/file" : "external/" + table + "/media";
            serve(MediaStore.AUTHORITY, path, table);
        }
    }

    /** Adds a file; `mark` is a column to set to 1, or null. */
    void add(Uri kind, long id, String path, long size, String mark) {
        ContentValues row = new ContentValues();
        row.put("_id", id);
        row.put("_data", path);
        row.put("_size", size);
        if (mark != null) row.put(mark, 1);
        insert(kind, row);
    }
}
