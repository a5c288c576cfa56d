package velk.phone.android;

import android.content.ContentProvider;
import android.content.ContentProviderOperation;
import android.content.ContentProviderResult;
import android.content.ContentUris;
import android.content.ContentValues;
import android.content.OperationApplicationException;
import android.content.UriMatcher;
import android.database.Cursor;
import android.database.sqlite.SQLiteDatabase;
import android.net.Uri;
import java.util.ArrayList;

/** A content provider that keeps its rows in a real database, like those of a phone. */
abstract class TableProvider extends ContentProvider {
    final SQLiteDatabase database = SQLiteDatabase.create(null);
    private final UriMatcher tables = new UriMatcher(UriMatcher.NO_MATCH);
    private final ArrayList<String> names = new ArrayList<>();

    /** Serves `path`, and the rows below it by their id, from a table or view. */
    final void serve(String authority, String path, String table) {
        tables.addURI(authority, path, names.size());
        tables.addURI(authority, path + "/#", names.size());
        names.add(table);
    }

    private String table(Uri uri) {
        int match = tables.match(uri);
        if (match < 0) throw new IllegalArgumentException("Unknown URL " + uri);
        return names.get(match);
    }

    static boolean isRow(Uri uri) {
        String last = uri.getLastPathSegment();
        return last != null && last.matches("\\d+");
    }

    static String where(Uri uri, String selection) {
        String row = isRow(uri) ? "_id=" + ContentUris.parseId(uri) : "1";
        return selection == null ? row : row + " AND (" + selection + ")";
    }

    @Override
    public Cursor query(Uri uri, String[] columns, String selection, String[] arguments, String order) {
        return database.query(table(uri), columns, where(uri, selection), arguments, null, null, order);
    }

    @Override
    public Uri insert(Uri uri, ContentValues values) {
        return ContentUris.withAppendedId(uri, database.insertOrThrow(table(uri), null, values));
    }

    @Override
    public int update(Uri uri, ContentValues values, String selection, String[] arguments) {
        return database.update(table(uri), values, where(uri, selection), arguments);
    }

    @Override
    public int delete(Uri uri, String selection, String[] arguments) {
        return database.delete(table(uri), where(uri, selection), arguments);
    }

    @Override
    public ContentProviderResult[] applyBatch(ArrayList<ContentProviderOperation> edits)
            throws OperationApplicationException {
        database.beginTransaction();
        try {
            ContentProviderResult[] results = super.applyBatch(edits);
            database.setTransactionSuccessful();
            return results;
        } finally {
            database.endTransaction();
        }
    }

    @Override
    public boolean onCreate() {
        return true;
    }

    @Override
    public String getType(Uri uri) {
        return null;
    }
}
