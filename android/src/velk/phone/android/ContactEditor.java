package velk.phone.android;

import android.content.ContentProviderOperation;
import android.content.ContentResolver;
import android.content.ContentUris;
import android.content.OperationApplicationException;
import android.content.SyncAdapterType;
import android.database.Cursor;
import android.net.Uri;
import android.os.RemoteException;
import android.provider.ContactsContract;
import android.provider.ContactsContract.CommonDataKinds.Phone;
import android.provider.ContactsContract.CommonDataKinds.StructuredName;
import android.provider.ContactsContract.Data;
import android.provider.ContactsContract.RawContacts;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

/**
 * Changes contacts. A contact is what the phone shows of one or several raw contacts, each of which belongs to
 * an account; some accounts take no changes. An edit is done as a whole or not at all.
 */
final class ContactEditor {
    private static final int BATCH = 50;

    private final ContentResolver resolver;

    ContactEditor(ContentResolver resolver) {
        this.resolver = resolver;
    }

    /** Adds a contact of the phone itself, of no account; gives its id. */
    long add(String name, String number) throws Refusal {
        ArrayList<ContentProviderOperation> edits = new ArrayList<ContentProviderOperation>();
        // The phone would make one contact of two that have the same name.
        edits.add(ContentProviderOperation.newInsert(RawContacts.CONTENT_URI)
                .withValue(RawContacts.ACCOUNT_TYPE, null)
                .withValue(RawContacts.ACCOUNT_NAME, null)
                .withValue(RawContacts.AGGREGATION_MODE, RawContacts.AGGREGATION_MODE_DISABLED)
                .build());
        edits.add(insert(StructuredName.CONTENT_ITEM_TYPE)
                .withValueBackReference(Data.RAW_CONTACT_ID, 0)
                .withValue(StructuredName.DISPLAY_NAME, name)
                .build());
        if (!number.isEmpty()) {
            edits.add(insertNumber(number).withValueBackReference(Data.RAW_CONTACT_ID, 0).build());
        }
        return contactOf(ContentUris.parseId(apply(edits)));
    }

    /** Gives a contact another name and another number in place of the one that the list shows. */
    void change(long id, String name, String number) throws Refusal {
        List<Long> owners = writableOwners(id, readOnlyAccountTypes());
        ArrayList<ContentProviderOperation> edits = new ArrayList<ContentProviderOperation>();
        changeName(id, name, owners, edits);
        changeNumber(id, number, owners, edits);
        if (!edits.isEmpty()) apply(edits);
    }

    void delete(long id) throws Refusal {
        writableOwners(id, readOnlyAccountTypes());
        resolver.delete(contact(id), null, null);
        if (exists(id)) throw readOnly();
    }

    /** Deletes all contacts but those of accounts that take no changes; gives how many went. */
    int deleteAll() throws Refusal {
        List<Long> ids = allIds();
        Set<String> readOnlyTypes = readOnlyAccountTypes();
        int refused = 0;
        ArrayList<ContentProviderOperation> edits = new ArrayList<ContentProviderOperation>();
        for (long id : ids) {
            if (ownersOf(id, readOnlyTypes).isEmpty()) ++refused;
            else edits.add(ContentProviderOperation.newDelete(contact(id)).build());
            if (edits.size() == BATCH) apply(edits);
        }
        if (!edits.isEmpty()) apply(edits);
        if (refused > 0 && refused == ids.size()) throw readOnly();
        return ids.size() - Query.count(resolver, Contacts.LISTED, null, null);
    }

    private void changeName(long id, String name, List<Long> owners,
            List<ContentProviderOperation> edits) throws Refusal {
        String displayed = displayName(id);
        if (name.equals(displayed)) return;
        List<DataRow> rows = data(id, StructuredName.CONTENT_ITEM_TYPE, Data._ID);
        DataRow shown = writableRow(rows, displayed, owners);
        if (shown == null) {
            edits.add(insert(StructuredName.CONTENT_ITEM_TYPE)
                    .withValue(Data.RAW_CONTACT_ID, owners.get(0))
                    .withValue(StructuredName.DISPLAY_NAME, name).build());
            return;
        }
        // The phone derives given and family name from this one.
        ContentProviderOperation.Builder edit = update(shown)
                .withValue(StructuredName.DISPLAY_NAME, name);
        // Of several names the phone would choose another one, perhaps.
        if (rows.size() > 1) edit.withValue(Data.IS_SUPER_PRIMARY, 1);
        edits.add(edit.build());
    }

    private void changeNumber(long id, String number, List<Long> owners,
            List<ContentProviderOperation> edits) throws Refusal {
        List<DataRow> rows = data(id, Phone.CONTENT_ITEM_TYPE, Contacts.NUMBER_ORDER);
        String shown = rows.isEmpty() ? "" : rows.get(0).text;
        if (number.equals(shown)) return;
        DataRow changed = writableRow(rows, shown, owners);
        if (changed == null) {
            edits.add(insertNumber(number).withValue(Data.RAW_CONTACT_ID, owners.get(0)).build());
            return;
        }
        if (number.isEmpty()) {
            edits.add(ContentProviderOperation.newDelete(changed.uri()).build());
            return;
        }
        ContentProviderOperation.Builder edit = update(changed).withValue(Phone.NUMBER, number);
        // Of several numbers the list would go on showing another one.
        if (rows.size() > 1) edit.withValue(Data.IS_SUPER_PRIMARY, 1);
        edits.add(edit.build());
    }

    /**
     * The row with the text that the list shows, in a raw contact that may be changed: a messenger's account
     * often has a copy of it that may not. Null when the contact has no row at all.
     */
    private static DataRow writableRow(List<DataRow> rows, String shown, List<Long> owners)
            throws Refusal {
        for (DataRow row : rows) {
            if (row.text.equals(shown) && owners.contains(row.owner)) return row;
        }
        for (DataRow row : rows) if (owners.contains(row.owner)) return row;
        if (!rows.isEmpty()) throw readOnly();
        return null;
    }

    private static ContentProviderOperation.Builder insert(String type) {
        return ContentProviderOperation.newInsert(Data.CONTENT_URI).withValue(Data.MIMETYPE, type);
    }

    private static ContentProviderOperation.Builder insertNumber(String number) {
        return insert(Phone.CONTENT_ITEM_TYPE)
                .withValue(Phone.NUMBER, number)
                .withValue(Phone.TYPE, Phone.TYPE_MOBILE);
    }

    private static ContentProviderOperation.Builder update(DataRow row) {
        return ContentProviderOperation.newUpdate(row.uri()).withExpectedCount(1);
    }

    /** Carries out and empties the list; gives the address of what the first edit made. */
    private Uri apply(ArrayList<ContentProviderOperation> edits) throws Refusal {
        try {
            return resolver.applyBatch(ContactsContract.AUTHORITY, edits)[0].uri;
        } catch (RemoteException | OperationApplicationException failed) {
            throw Refusal.of(failed);
        } finally {
            edits.clear();
        }
    }

    private long contactOf(long rawContact) throws Refusal {
        Uri uri = ContentUris.withAppendedId(RawContacts.CONTENT_URI, rawContact);
        try (Cursor row = Query.rows(resolver, uri, new String[] {RawContacts.CONTACT_ID},
                null, null, null)) {
            if (row.moveToNext() && row.getLong(0) != 0) return row.getLong(0);
        }
        throw new Refusal(Refusal.FAILED, "The phone does not show the contact that was added.");
    }

    /** One entry of a contact: a name, a number. */
    private static final class DataRow {
        final long id;
        final long owner;
        final String text;

        DataRow(Cursor row) {
            id = row.getLong(0);
            owner = row.getLong(1);
            text = Query.text(row, 2);
        }

        Uri uri() {
            return ContentUris.withAppendedId(Data.CONTENT_URI, id);
        }
    }

    private List<DataRow> data(long contact, String type, String order) throws Refusal {
        List<DataRow> found = new ArrayList<DataRow>();
        String[] columns = {Data._ID, Data.RAW_CONTACT_ID, Data.DATA1};
        try (Cursor rows = Query.rows(resolver, Data.CONTENT_URI, columns,
                Data.CONTACT_ID + "=? AND " + Data.MIMETYPE + "=?",
                new String[] {Long.toString(contact), type}, order)) {
            while (rows.moveToNext()) found.add(new DataRow(rows));
        }
        return found;
    }

    /**
     * The raw contacts of a contact that may be changed; none when it belongs to read-only accounts alone, or
     * is gone.
     */
    private List<Long> ownersOf(long contact, Set<String> readOnlyTypes) throws Refusal {
        List<Long> writable = new ArrayList<Long>();
        String[] columns = {RawContacts._ID, RawContacts.ACCOUNT_TYPE};
        try (Cursor rows = Query.rows(resolver, RawContacts.CONTENT_URI, columns,
                RawContacts.CONTACT_ID + "=? AND " + RawContacts.DELETED + "=0",
                new String[] {Long.toString(contact)}, RawContacts._ID)) {
            while (rows.moveToNext()) {
                if (!readOnlyTypes.contains(Query.text(rows, 1))) writable.add(rows.getLong(0));
            }
        }
        return writable;
    }

    /** Refuses when there is none. */
    private List<Long> writableOwners(long contact, Set<String> readOnlyTypes) throws Refusal {
        if (!exists(contact)) throw gone();
        List<Long> writable = ownersOf(contact, readOnlyTypes);
        if (writable.isEmpty()) throw readOnly();
        return writable;
    }

    /** Accounts whose contacts are only shown on the phone say so of their synchronization. */
    private static Set<String> readOnlyAccountTypes() {
        Set<String> types = new HashSet<String>();
        for (SyncAdapterType adapter : ContentResolver.getSyncAdapterTypes()) {
            if (ContactsContract.AUTHORITY.equals(adapter.authority) && !adapter.supportsUploading()) {
                types.add(adapter.accountType);
            }
        }
        return types;
    }

    private static Uri contact(long id) {
        return ContentUris.withAppendedId(ContactsContract.Contacts.CONTENT_URI, id);
    }

    private boolean exists(long id) throws Refusal {
        return Query.count(resolver, contact(id), null, null) > 0;
    }

    private String displayName(long id) throws Refusal {
        String[] columns = {ContactsContract.Contacts.DISPLAY_NAME_PRIMARY};
        try (Cursor row = Query.rows(resolver, contact(id), columns, null, null, null)) {
            if (!row.moveToNext()) throw gone();
            return Query.text(row, 0);
        }
    }

    private List<Long> allIds() throws Refusal {
        List<Long> ids = new ArrayList<Long>();
        try (Cursor rows = Query.rows(resolver, Contacts.LISTED,
                new String[] {ContactsContract.Contacts._ID}, null, null, null)) {
            while (rows.moveToNext()) ids.add(rows.getLong(0));
        }
        return ids;
    }

    private static Refusal gone() {
        return new Refusal(Refusal.GONE, "There is no such contact any more.");
    }

    private static Refusal readOnly() {
        return new Refusal(Refusal.READ_ONLY,
                "This contact belongs to an account that takes no changes.");
    }
}
