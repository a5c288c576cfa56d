package velk.phone.android;

import android.content.ContentResolver;
import android.content.ContentUris;
import android.content.Context;
import android.database.Cursor;
import android.net.Uri;
import android.os.Build;
import android.provider.MediaStore;
import android.util.JsonWriter;
import java.io.File;
import java.io.IOException;

/** A kind of files of the phone's media catalogue: music, videos or photos. */
class Media extends Kind<MediaFile> {
    private static final String ID = MediaStore.MediaColumns._ID;
    private static final String PATH = MediaStore.MediaColumns.DATA;
    private static final String SIZE = MediaStore.MediaColumns.SIZE;
    private static final String DURATION = MediaStore.Audio.Media.DURATION;
    private static final String ARTIST = MediaStore.Audio.Media.ARTIST;
    private static final String ALBUM = MediaStore.Audio.Media.ALBUM;
    private static final String RING = MediaStore.Audio.Media.IS_RINGTONE;

    final Rights rights;
    private final ContentResolver resolver;
    private final Uri uri;
    private final String[] columns;
    private final String where;

    static Media music(Context context, Rights rights) {
        return new Media(context, rights, "music", MediaStore.Audio.Media.EXTERNAL_CONTENT_URI, null,
                ID, PATH, SIZE, DURATION, ARTIST, ALBUM, RING);
    }

    static Media videos(Context context, Rights rights) {
        return new Media(context, rights, "videos", MediaStore.Video.Media.EXTERNAL_CONTENT_URI, null,
                ID, PATH, SIZE, DURATION);
    }

    static Media photos(Context context, Rights rights) {
        return new Media(context, rights, "photos", MediaStore.Images.Media.EXTERNAL_CONTENT_URI, null,
                ID, PATH, SIZE);
    }

    /** Columns come in the order in which read() looks at them; `also` is a further condition. */
    Media(Context context, Rights rights, String name, Uri uri, String also, String... columns) {
        super(name);
        resolver = context.getContentResolver();
        this.rights = rights;
        this.uri = uri;
        this.columns = columns;
        where = also == null ? present() : present() + " AND " + also;
    }

    /** Neither files that are still being written nor those in the trash. */
    private static String present() {
        String where = PATH + " IS NOT NULL";
        if (Build.VERSION.SDK_INT >= 29) where += " AND is_pending=0";
        if (Build.VERSION.SDK_INT >= 30) where += " AND is_trashed=0";
        return where;
    }

    @Override
    String readProblem() {
        return rights.readFiles();
    }

    @Override
    String writeProblem() {
        return rights.changeFiles();
    }

    @Override
    int count() throws RequestError {
        Rights.demand(readProblem());
        return Query.count(resolver, uri, where, null);
    }

    @Override
    void each(RowHandler<MediaFile> handler) throws IOException, RequestError {
        Rights.demand(readProblem());
        try (Cursor rows = Query.rows(resolver, uri, columns, where, null, ID)) {
            while (rows.moveToNext()) handler.handle(read(rows));
        }
    }

    private MediaFile read(Cursor row) {
        MediaFile file = new MediaFile(row.getLong(0), Query.text(row, 1), row.getLong(2));
        if (columns.length > 3) file.duration = row.getLong(3);
        if (columns.length > 4) {
            file.artist = Query.text(row, 4);
            file.album = Query.text(row, 5);
            file.ring = row.getInt(6) != 0;
        }
        return file;
    }

    @Override
    void write(MediaFile file, JsonWriter json) throws IOException {
        json.name("id").value(Long.toString(file.id)).name("path").value(file.path);
        if (columns.length > 4) json.name("artist").value(file.artist).name("album").value(file.album);
        if (columns.length > 3) json.name("duration").value(file.duration);
        json.name("size").value(file.size);
        if (columns.length > 4) json.name("ring").value(file.ring);
    }

    @Override
    void delete(Item item) throws RequestError {
        delete(item.path(), ID + "=?", Long.toString(item.id()));
    }

    /** Deletes the one file of this path. The first wire's ids are cut, so there the path alone decides. */
    void deleteByPath(String path) throws RequestError {
        delete(path, null, null);
    }

    private void delete(String path, String also, String argument) throws RequestError {
        Rights.demand(writeProblem());
        Uri row = find(path, also, argument);
        // No path is taken from outside: it is one that the phone's own catalogue has.
        remove(new File(path));
        resolver.delete(row, null, null);
    }

    private Uri find(String path, String also, String argument) throws RequestError {
        String condition = where + " AND " + PATH + "=?" + (also == null ? "" : " AND " + also);
        String[] arguments = also == null ? new String[] {path} : new String[] {path, argument};
        try (Cursor rows = Query.rows(resolver, uri, new String[] {ID}, condition, arguments, null)) {
            if (rows.getCount() > 1) {
                throw new RequestError(RequestError.FAILED, "The phone has several files of this path.");
            }
            if (!rows.moveToNext()) throw gone();
            Uri row = ContentUris.withAppendedId(uri, rows.getLong(0));
            File file = new File(path);
            if (file.exists()) return row;
            File folder = file.getParentFile();
            if (folder == null || folder.list() == null) {
                // It may be on a card that is not in the phone now.
                throw new RequestError(RequestError.FAILED, "The phone shows Velk no folder of this file.");
            }
            // The file went without the catalogue's knowledge.
            resolver.delete(row, null, null);
            throw gone();
        }
    }

    private static void remove(File file) throws RequestError {
        if (file.delete() || !file.exists()) return;
        File folder = file.getParentFile();
        if (file.isDirectory() || (folder != null && folder.canWrite())) {
            throw new RequestError(RequestError.FAILED, "The phone did not delete the file.");
        }
        throw new RequestError(RequestError.READ_ONLY,
                "The phone lets applications change nothing in this folder.");
    }

    private static RequestError gone() {
        return new RequestError(RequestError.GONE, "There is no such file any more.");
    }
}
