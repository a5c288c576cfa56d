package velk.phone.android;

/** A person in the phone's list, with the one number that the list shows. */
final class Contact {
    final long id;
    final String name;
    final String number;

    Contact(long id, String name, String number) {
        this.id = id;
        this.name = name;
        this.number = number;
    }
}
