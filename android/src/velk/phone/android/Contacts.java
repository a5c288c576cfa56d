package velk.phone.android;

import android.content.ContentResolver;
import android.content.Context;
import android.database.Cursor;
import android.net.Uri;
import android.provider.ContactsContract;
import android.provider.ContactsContract.CommonDataKinds.Phone;
import android.util.JsonWriter;
import android.util.LongSparseArray;
import java.io.IOException;

/** The contacts: one record for each person, as the phone's own list has them. */
final class Contacts extends Kind<Contact> {
    /** Of several numbers the one comes first that the person made the default. */
    static final String NUMBER_ORDER =
            Phone.IS_SUPER_PRIMARY + " DESC, " + Phone.IS_PRIMARY + " DESC, " + Phone._ID;

    /** The contacts of the phone itself: neither those of a company's server nor suggested people. */
    static final Uri LIST = ContactsContract.Contacts.CONTENT_URI.buildUpon()
            .appendQueryParameter(ContactsContract.DIRECTORY_PARAM_KEY,
                    Long.toString(ContactsContract.Directory.DEFAULT))
            .build();

    private final ContentResolver resolver;
    private final Rights rights;
    private final ContactEditor editor;

    Contacts(Context context, Rights rights) {
        super("contacts");
        resolver = context.getContentResolver();
        this.rights = rights;
        editor = new ContactEditor(resolver);
    }

    @Override
    String readProblem() {
        return rights.readContacts();
    }

    @Override
    String writeProblem() {
        return rights.changeContacts();
    }

    @Override
    int count() throws RequestError {
        Rights.demand(readProblem());
        return Query.count(resolver, LIST, null, null);
    }

    @Override
    void each(RowHandler<Contact> handler) throws IOException, RequestError {
        Rights.demand(readProblem());
        LongSparseArray<String> numbers = numbers();
        String[] columns = {
            ContactsContract.Contacts._ID, ContactsContract.Contacts.DISPLAY_NAME_PRIMARY
        };
        try (Cursor rows = Query.rows(resolver, LIST, columns, null, null,
                ContactsContract.Contacts.SORT_KEY_PRIMARY)) {
            while (rows.moveToNext()) {
                long id = rows.getLong(0);
                handler.handle(new Contact(id, Query.text(rows, 1), numbers.get(id, "")));
            }
        }
    }

    @Override
    void write(Contact contact, JsonWriter json) throws IOException {
        json.name("id").value(Long.toString(contact.id));
        json.name("name").value(contact.name);
        json.name("number").value(contact.number);
    }

    @Override
    long add(Item item) throws RequestError {
        Rights.demand(writeProblem());
        return editor.add(item.name, item.number);
    }

    @Override
    void change(Item item) throws RequestError {
        Rights.demand(writeProblem());
        editor.change(item.id(), item.name, item.number);
    }

    @Override
    void delete(Item item) throws RequestError {
        Rights.demand(writeProblem());
        editor.delete(item.id());
    }

    @Override
    int deleteAll() throws RequestError {
        Rights.demand(writeProblem());
        return editor.deleteAll();
    }

    /** The first number of each contact, all read in one pass. */
    private LongSparseArray<String> numbers() throws RequestError {
        LongSparseArray<String> numbers = new LongSparseArray<String>();
        String[] columns = {Phone.CONTACT_ID, Phone.NUMBER};
        try (Cursor rows = Query.rows(resolver, Phone.CONTENT_URI, columns, null, null,
                Phone.CONTACT_ID + ", " + NUMBER_ORDER)) {
            long last = -1;
            while (rows.moveToNext()) {
                long id = rows.getLong(0);
                if (id != last) numbers.append(id, Query.text(rows, 1));
                last = id;
            }
        }
        return numbers;
    }
}
