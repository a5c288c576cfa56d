package velk.phone.android;

import android.content.ContentResolver;
import android.database.Cursor;
import android.net.Uri;

/** Asks the phone's databases. */
final class Query {
    private Query() {}

    /** The rows, never null: some phones lack a database, which then is an error. The caller closes them. */
    static Cursor rows(ContentResolver resolver, Uri uri, String[] columns, String where,
            String[] arguments, String order) throws RequestError {
        Cursor rows = resolver.query(uri, columns, where, arguments, order);
        if (rows == null) {
            throw new RequestError(RequestError.FAILED,
                    "The phone has no database of " + uri.getAuthority() + ".");
        }
        return rows;
    }

    static int count(ContentResolver resolver, Uri uri, String where, String[] arguments)
            throws RequestError {
        try (Cursor rows = rows(resolver, uri, new String[] {"_id"}, where, arguments, null)) {
            return rows.getCount();
        }
    }

    /** The text in a column; empty where there is none. */
    static String text(Cursor row, int column) {
        String text = row.getString(column);
        return text == null ? "" : text;
    }
}
