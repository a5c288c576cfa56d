package velk.phone.android;

import android.content.ContentValues;
import android.net.Uri;

/** The messages as any application but the phone's messaging one gets them: no drafts, and writing does nothing. */
final class FakeMessages extends TableProvider {
    boolean writable = true;

    FakeMessages() {
        database.execSQL("CREATE TABLE sms (_id INTEGER PRIMARY KEY, thread_id INTEGER, address TEXT,"
                + " body TEXT, date INTEGER, type INTEGER, read INTEGER)");
        database.execSQL("CREATE VIEW restricted AS SELECT * FROM sms WHERE type IN (1, 2)");
        serve("sms", null, "restricted");
        serve("sms", "", "restricted");
    }

    @Override
    public int delete(Uri uri, String selection, String[] arguments) {
        return writable ? database.delete("sms", where(uri, selection), arguments) : 0;
    }

    void add(long id, long thread, String number, String text, long date, int type) {
        ContentValues row = new ContentValues();
        row.put("_id", id);
        row.put("thread_id", thread);
        row.put("address", number);
        row.put("body", text);
        row.put("date", date);
        row.put("type", type);
        row.put("read", 1);
        database.insertOrThrow("sms", null, row);
    }
}
