package velk.phone.android;

import java.io.IOException;
import java.io.OutputStream;

/**
 * The lists of the first wire. Their header counts what follows, so all but the messages are held as a
 * whole.
 */
final class FirstLists {
    /** A packet's length is read in 16 bits; one more message of the longest kind fits in. */
    private static final int FULL_PACKET = 32768;
    private static final int LONGEST_MESSAGE = 30000;
    private static final int LONGEST_NUMBER = 1000;

    private final Phone phone;
    private final OutputStream out;
    private final FirstReply reply = new FirstReply();

    FirstLists(Phone phone, OutputStream out) {
        this.phone = phone;
        this.out = out;
    }

    void contacts() throws IOException, RequestError {
        phone.contacts.each(new RowHandler<Contact>() {
            @Override
            public void handle(Contact contact) {
                reply.decimal(contact.id);
                reply.text(contact.name);
                reply.text(contact.number);
            }
        });
        reply.send(FirstRequest.LIST_CONTACTS, out);
    }

    /** Packets of messages, and a bare header as the end. */
    void messages() throws IOException, RequestError {
        phone.messages.each(new RowHandler<Message>() {
            @Override
            public void handle(Message message) throws IOException {
                append(message);
                if (reply.size() >= FULL_PACKET) reply.send(FirstRequest.LIST_MESSAGES, out);
            }
        });
        if (reply.size() > 0) reply.send(FirstRequest.LIST_MESSAGES, out);
        reply.send(FirstRequest.LIST_MESSAGES, out);
    }

    private void append(Message message) {
        reply.text(message.number, LONGEST_NUMBER);
        reply.text(message.text, LONGEST_MESSAGE);
        reply.text(message.date);
        reply.number(message.type, 2);
        reply.number(message.id, 4);
        reply.number(message.thread, 4);
        reply.number(message.read ? 1 : 0, 2);
    }

    void applications() throws IOException, RequestError {
        phone.applications.each(new RowHandler<Application>() {
            @Override
            public void handle(Application application) {
                reply.decimal(application.size);
                reply.text(application.installed);
                reply.text(application.name);
                reply.text(application.packageName);
                reply.text(application.version);
                reply.text(application.path);
            }
        });
        reply.send(FirstRequest.LIST_APPLICATIONS, out);
    }

    void music() throws IOException, RequestError {
        phone.music.each(new RowHandler<MediaFile>() {
            @Override
            public void handle(MediaFile file) {
                reply.number(file.id, 4);
                reply.text(file.artist);
                reply.text(file.album);
                reply.text(file.path);
                reply.decimal(file.duration);
                reply.decimal(file.size);
                reply.number(file.ring ? 1 : 0, 2);
            }
        });
        reply.send(FirstRequest.LIST_MUSIC, out);
    }

    void videos() throws IOException, RequestError {
        phone.videos.each(new RowHandler<MediaFile>() {
            @Override
            public void handle(MediaFile file) {
                reply.number(file.id, 4);
                reply.text(file.path);
                reply.decimal(file.duration);
                reply.decimal(file.size);
            }
        });
        reply.send(FirstRequest.LIST_VIDEOS, out);
    }

    void photos() throws IOException, RequestError {
        phone.photos.each(new RowHandler<MediaFile>() {
            @Override
            public void handle(MediaFile file) {
                reply.number(file.id, 4);
                reply.text(file.path);
                reply.decimal(file.size);
            }
        });
        reply.send(FirstRequest.LIST_PHOTOS, out);
    }

    void books() throws IOException, RequestError {
        phone.books.each(new RowHandler<MediaFile>() {
            @Override
            public void handle(MediaFile file) {
                reply.text(file.path);
                reply.decimal(file.size);
                reply.text(file.folder());
            }
        });
        reply.send(FirstRequest.LIST_BOOKS, out);
    }
}
