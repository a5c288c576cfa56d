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
    long add(String name, String number) throws RequestError {
        if (name.isEmpty() && number.isEmpty()) {
            throw new RequestError(RequestError.BAD_REQUEST, "A contact needs a name or a number.");
        }
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
        try {
            return contactOf(ContentUris.parseId(apply(edits)));
        } catch (OperationApplicationException failed) {
            throw RequestError.of(failed);
        }
    }

    /** Gives a contact another name and another number in place of the one that the list shows. */
    void change(long id, String name, String number) throws RequestError {
        List<Long> owners = writableOwners(id);
        ArrayList<ContentProviderOperation> edits = new ArrayList<ContentProviderOperation>();
        changeName(id, name, owners, edits);
        changeNumber(id, number, owners, edits);
        if (edits.isEmpty()) return;
        try {
            apply(edits);
        } catch (OperationApplicationException changed) {
            throw new RequestError(RequestError.GONE,
                    "The contact has just been changed or deleted on the phone.");
        }
    }

    void delete(long id) throws RequestError {
        // Contacts that are partly writable can be deleted: messengers add read-only raw contacts to many.
        writableOwners(id);
        resolver.delete(contact(id), null, null);
        if (exists(id)) throw readOnly();
    }

    /** Deletes all contacts but those of accounts that take no changes; gives how many went. */
    int deleteAll() throws RequestError {
        List<Long> ids = allIds();
        try {
            deleteEach(ids);
        } catch (RequestError | OperationApplicationException | RuntimeException failed) {
            RequestError error = RequestError.of(failed);
            error.deleted = ids.size() - count();
            throw error;
        }
        return ids.size() - count();
    }

    private void deleteEach(List<Long> ids) throws RequestError, OperationApplicationException {
        Set<String> readOnlyTypes = readOnlyAccountTypes();
        int refused = 0;
        ArrayList<ContentProviderOperation> edits = new ArrayList<ContentProviderOperation>();
        for (long id : ids) {
            Owners owners = ownersOf(id, readOnlyTypes);
            if (owners.all == 0) continue; // deleted on the phone in the meantime
            if (owners.writable.isEmpty()) ++refused;
            else edits.add(ContentProviderOperation.newDelete(contact(id)).build());
            if (edits.size() == BATCH) apply(edits);
        }
        if (!edits.isEmpty()) apply(edits);
        if (refused > 0 && refused == ids.size()) throw readOnly();
    }

    private int count() throws RequestError {
        return Query.count(resolver, Contacts.LIST, null, null);
    }

    private void changeName(long id, String name, List<Long> owners,
            List<ContentProviderOperation> edits) throws RequestError {
        List<DataRow> rows = data(id, StructuredName.CONTENT_ITEM_TYPE, Data._ID);
        String shown = displayName(id);
        if (name.equals(shown)) return;
        if (rows.isEmpty()) {
            edits.add(insert(StructuredName.CONTENT_ITEM_TYPE)
                    .withValue(Data.RAW_CONTACT_ID, owners.get(0))
                    .withValue(StructuredName.DISPLAY_NAME, name).build());
            return;
        }
        List<DataRow> writable = writable(rows, owners);
        DataRow row = withText(writable, shown);
        if (row == null && !writable.isEmpty()) row = writable.get(0);
        if (row == null) throw readOnly();
        // The phone derives given and family name from this one.
        ContentProviderOperation.Builder edit = update(row).withValue(StructuredName.DISPLAY_NAME, name);
        // Of several names the phone would choose another one, perhaps.
        if (rows.size() > 1) edit.withValue(Data.IS_SUPER_PRIMARY, 1);
        edits.add(edit.build());
    }

    private void changeNumber(long id, String number, List<Long> owners,
            List<ContentProviderOperation> edits) throws RequestError {
        List<DataRow> rows = data(id, Phone.CONTENT_ITEM_TYPE, Contacts.NUMBER_ORDER);
        String shown = rows.isEmpty() ? "" : rows.get(0).text;
        if (number.equals(shown)) return;
        if (rows.isEmpty()) {
            edits.add(insertNumber(number).withValue(Data.RAW_CONTACT_ID, owners.get(0)).build());
            return;
        }
        // A writable row with another number is not touched: that number would be lost.
        DataRow row = withText(writable(rows, owners), shown);
        if (row == null) throw readOnly();
        if (number.isEmpty()) {
            edits.add(ContentProviderOperation.newDelete(row.uri()).build());
            return;
        }
        ContentProviderOperation.Builder edit = update(row).withValue(Phone.NUMBER, number);
        // The list shows the default one of several numbers.
        if (rows.size() > 1) edit.withValue(Data.IS_SUPER_PRIMARY, 1);
        edits.add(edit.build());
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
    private Uri apply(ArrayList<ContentProviderOperation> edits)
            throws RequestError, OperationApplicationException {
        try {
            return resolver.applyBatch(ContactsContract.AUTHORITY, edits)[0].uri;
        } catch (RemoteException failed) {
            throw RequestError.of(failed);
        } finally {
            edits.clear();
        }
    }

    private long contactOf(long rawContact) throws RequestError {
        Uri uri = ContentUris.withAppendedId(RawContacts.CONTENT_URI, rawContact);
        try (Cursor row = Query.rows(resolver, uri, new String[] {RawContacts.CONTACT_ID},
                null, null, null)) {
            if (row.moveToNext() && row.getLong(0) != 0) return row.getLong(0);
        }
        throw new RequestError(RequestError.FAILED, "The phone does not show the contact that was added.");
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

    private List<DataRow> data(long contact, String type, String order) throws RequestError {
        List<DataRow> found = new ArrayList<DataRow>();
        String[] columns = {Data._ID, Data.RAW_CONTACT_ID, Data.DATA1};
        try (Cursor rows = Query.rows(resolver, Data.CONTENT_URI, columns,
                Data.CONTACT_ID + "=? AND " + Data.MIMETYPE + "=?",
                new String[] {Long.toString(contact), type}, order)) {
            while (rows.moveToNext()) found.add(new DataRow(rows));
        }
        return found;
    }

    private static List<DataRow> writable(List<DataRow> rows, List<Long> owners) {
        List<DataRow> writable = new ArrayList<DataRow>();
        for (DataRow row : rows) if (owners.contains(row.owner)) writable.add(row);
        return writable;
    }

    private static DataRow withText(List<DataRow> rows, String text) {
        for (DataRow row : rows) if (row.text.equals(text)) return row;
        return null;
    }

    /** The raw contacts of a contact. */
    private static final class Owners {
        int all;
        final List<Long> writable = new ArrayList<Long>();
    }

    private Owners ownersOf(long contact, Set<String> readOnlyTypes) throws RequestError {
        Owners owners = new Owners();
        String[] columns = {RawContacts._ID, RawContacts.ACCOUNT_TYPE};
        try (Cursor rows = Query.rows(resolver, RawContacts.CONTENT_URI, columns,
                RawContacts.CONTACT_ID + "=? AND " + RawContacts.DELETED + "=0",
                new String[] {Long.toString(contact)}, RawContacts._ID)) {
            owners.all = rows.getCount();
            while (rows.moveToNext()) {
                if (!readOnlyTypes.contains(Query.text(rows, 1))) owners.writable.add(rows.getLong(0));
            }
        }
        return owners;
    }

    private List<Long> writableOwners(long contact) throws RequestError {
        Owners owners = ownersOf(contact, readOnlyAccountTypes());
        if (owners.all == 0) throw gone();
        if (owners.writable.isEmpty()) throw readOnly();
        return owners.writable;
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

    private boolean exists(long id) throws RequestError {
        return Query.count(resolver, contact(id), null, null) > 0;
    }

    private String displayName(long id) throws RequestError {
        String[] columns = {ContactsContract.Contacts.DISPLAY_NAME_PRIMARY};
        try (Cursor row = Query.rows(resolver, contact(id), columns, null, null, null)) {
            if (!row.moveToNext()) throw gone();
            return Query.text(row, 0);
        }
    }

    private List<Long> allIds() throws RequestError {
        List<Long> ids = new ArrayList<Long>();
        try (Cursor rows = Query.rows(resolver, Contacts.LIST,
                new String[] {ContactsContract.Contacts._ID}, null, null, null)) {
            while (rows.moveToNext()) ids.add(rows.getLong(0));
        }
        return ids;
    }

    private static RequestError gone() {
        return new RequestError(RequestError.GONE, "There is no such contact any more.");
    }

    private static RequestError readOnly() {
        return new RequestError(RequestError.READ_ONLY,
                "This contact belongs to an account that takes no changes.");
    }
}
