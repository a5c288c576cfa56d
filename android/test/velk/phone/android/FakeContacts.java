package velk.phone.android;

import android.content.ContentUris;
import android.content.ContentValues;
import android.net.Uri;
import android.provider.ContactsContract;
import android.provider.ContactsContract.CommonDataKinds.Phone;
import android.provider.ContactsContract.CommonDataKinds.StructuredName;
import android.provider.ContactsContract.RawContacts;

/** Contacts made of raw contacts and their entries; entries of the same name come together unless told not to. */
final class FakeContacts extends TableProvider {
    private static final String NAME = "'" + StructuredName.CONTENT_ITEM_TYPE + "'";

    /** Every row to update has just gone. */
    boolean frozen;
    /** A contact that cannot be deleted. */
    long broken;

    FakeContacts() {
        database.execSQL("CREATE TABLE raw_contacts (_id INTEGER PRIMARY KEY, contact_id INTEGER,"
                + " account_type TEXT, account_name TEXT, aggregation_mode INTEGER, deleted INTEGER DEFAULT 0)");
        database.execSQL("CREATE TABLE data (_id INTEGER PRIMARY KEY, raw_contact_id INTEGER, mimetype TEXT,"
                + " data1 TEXT, data2 TEXT, is_primary INTEGER DEFAULT 0, is_super_primary INTEGER DEFAULT 0)");
        database.execSQL("CREATE INDEX by_raw ON data (raw_contact_id, mimetype)");
        database.execSQL("CREATE INDEX by_contact ON raw_contacts (contact_id)");
        database.execSQL("CREATE VIEW entries AS SELECT data.*, contact_id FROM data JOIN raw_contacts"
                + " ON raw_contact_id = raw_contacts._id WHERE deleted = 0");
        database.execSQL("CREATE VIEW phones AS SELECT * FROM entries WHERE mimetype = '"
                + Phone.CONTENT_ITEM_TYPE + "'");
        String name = "(SELECT data1 FROM entries WHERE entries.contact_id = raw_contacts.contact_id AND"
                + " mimetype = " + NAME + " ORDER BY is_super_primary DESC, entries._id LIMIT 1)";
        database.execSQL("CREATE VIEW contacts AS SELECT contact_id AS _id, " + name + " AS display_name, "
                + name + " AS sort_key FROM raw_contacts WHERE deleted = 0 GROUP BY contact_id");
        serve(ContactsContract.AUTHORITY, "raw_contacts", "raw_contacts");
        serve(ContactsContract.AUTHORITY, "contacts", "contacts");
        serve(ContactsContract.AUTHORITY, "data/phones", "phones");
        serve(ContactsContract.AUTHORITY, "data", "data");
    }

    @Override
    public android.database.Cursor query(Uri uri, String[] columns, String where, String[] arguments,
            String order) {
        if (!uri.equals(ContactsContract.Data.CONTENT_URI)) {
            return super.query(uri, columns, where, arguments, order);
        }
        return database.query("entries", columns, where, arguments, null, null, order);
    }

    @Override
    public Uri insert(Uri uri, ContentValues values) {
        Uri row = super.insert(uri, values);
        if (uri.equals(RawContacts.CONTENT_URI)) {
            database.execSQL("UPDATE raw_contacts SET contact_id = 1000 + _id WHERE contact_id IS NULL");
        } else {
            comeTogether(values.getAsLong("raw_contact_id"));
        }
        return row;
    }

    private void comeTogether(long raw) {
        database.execSQL("UPDATE raw_contacts SET contact_id = (SELECT MIN(o.contact_id) FROM entries o, data m"
                + " WHERE m.raw_contact_id = raw_contacts._id AND o.data1 = m.data1 AND o.mimetype = " + NAME
                + " AND m.mimetype = " + NAME + ") WHERE _id = " + raw + " AND aggregation_mode <> "
                + RawContacts.AGGREGATION_MODE_DISABLED);
    }

    @Override
    public int update(Uri uri, ContentValues values, String selection, String[] arguments) {
        if (frozen) return 0;
        if (values.containsKey("is_super_primary")) {
            database.execSQL("UPDATE data SET is_super_primary = 0 WHERE mimetype ="
                    + " (SELECT mimetype FROM data WHERE _id = " + ContentUris.parseId(uri) + ")");
        }
        return super.update(uri, values, selection, arguments);
    }

    @Override
    public int delete(Uri uri, String selection, String[] arguments) {
        if (!uri.getPath().startsWith("/contacts/")) return super.delete(uri, selection, arguments);
        if (ContentUris.parseId(uri) == broken) throw new IllegalStateException("disk full");
        ContentValues values = new ContentValues();
        values.put("deleted", 1);
        return database.update("raw_contacts", values, "contact_id=" + ContentUris.parseId(uri), null);
    }

    /** Adds a raw contact to a contact; gives its id. */
    long addRaw(long contact, String account, String name) {
        ContentValues raw = new ContentValues();
        raw.put("contact_id", contact);
        raw.put("account_type", account);
        long id = database.insertOrThrow("raw_contacts", null, raw);
        addData(id, StructuredName.CONTENT_ITEM_TYPE, name, false);
        return id;
    }

    void addNumber(long raw, String number, boolean isDefault) {
        addData(raw, Phone.CONTENT_ITEM_TYPE, number, isDefault);
    }

    void addData(long raw, String type, String text, boolean isDefault) {
        ContentValues entry = new ContentValues();
        entry.put("raw_contact_id", raw);
        entry.put("mimetype", type);
        entry.put("data1", text);
        entry.put("is_super_primary", isDefault ? 1 : 0);
        database.insertOrThrow("data", null, entry);
    }
}
