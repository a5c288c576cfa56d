package velk.phone.android;

import android.content.ContentResolver;
import android.content.ContentUris;
import android.content.Context;
import android.database.Cursor;
import android.net.Uri;
import android.util.JsonWriter;
import java.io.IOException;
import java.text.SimpleDateFormat;
import java.util.Date;
import java.util.Locale;

/** The text messages, newest first. Who is not the phone's messaging application sees no drafts. */
final class Messages extends Kind<Message> {
    private static final Uri URI = Uri.parse("content://sms");
    private static final String[] COLUMNS =
            {"_id", "thread_id", "address", "body", "date", "type", "read"};

    private final ContentResolver resolver;
    private final Rights rights;
    private final MessageSender sender;

    Messages(Context context, Rights rights) {
        super("messages");
        resolver = context.getContentResolver();
        this.rights = rights;
        sender = new MessageSender(context);
    }

    @Override
    String readProblem() {
        return rights.readMessages();
    }

    @Override
    String writeProblem() {
        String problem = rights.sendMessages();
        return problem != null ? problem : rights.deleteMessages();
    }

    @Override
    int count() throws RequestError {
        Rights.demand(readProblem());
        return Query.count(resolver, URI, null, null);
    }

    @Override
    void each(RowHandler<Message> handler) throws IOException, RequestError {
        Rights.demand(readProblem());
        SimpleDateFormat format = new SimpleDateFormat("yyyy-MM-dd HH:mm:ss", Locale.US);
        try (Cursor rows = Query.rows(resolver, URI, COLUMNS, null, null, "date DESC, _id DESC")) {
            while (rows.moveToNext()) handler.handle(read(rows, format));
        }
    }

    private static Message read(Cursor row, SimpleDateFormat format) {
        Message message = new Message();
        message.id = row.getLong(0);
        message.thread = row.getLong(1);
        message.number = Query.text(row, 2);
        message.text = Query.text(row, 3);
        message.time = row.getLong(4);
        message.date = format.format(new Date(message.time));
        message.type = row.getInt(5);
        message.read = row.getInt(6) != 0;
        return message;
    }

    @Override
    void write(Message message, JsonWriter json) throws IOException {
        json.name("id").value(Long.toString(message.id));
        json.name("thread").value(Long.toString(message.thread));
        json.name("number").value(message.number);
        json.name("text").value(message.text);
        json.name("date").value(message.date);
        json.name("time").value(message.time);
        json.name("type").value(message.type);
        json.name("read").value(message.read);
    }

    @Override
    void delete(Item item) throws RequestError {
        long id = item.id();
        if (!exists(id, item.thread())) {
            throw new RequestError(RequestError.GONE, "There is no such message any more.");
        }
        delete(id);
    }

    /**
     * Deletes the one message whose id and thread end in these bytes. False when several do, or when it
     * stays; true also when there is none, since the computer asks for the same delete three times.
     */
    boolean deleteByLowBytes(int id, int thread) throws RequestError {
        Rights.demand(readProblem());
        long found;
        try (Cursor rows = Query.rows(resolver, URI, new String[] {"_id"},
                // An argument would be a text, which no calculated number equals.
                "(_id & 255)=" + id + " AND (thread_id & 255)=" + thread, null, null)) {
            if (rows.getCount() > 1) return false;
            if (!rows.moveToNext()) return true;
            found = rows.getLong(0);
        }
        delete(found);
        return true;
    }

    /** Deletes all; gives how many went. Only the first wire asks for that. */
    int clear() throws RequestError {
        int before = count();
        demandDelete();
        resolver.delete(URI, null, null);
        return before - count();
    }

    @Override
    void send(Item item) throws RequestError {
        Rights.demand(rights.sendMessages());
        sender.send(item.number, item.text);
    }

    private void delete(long id) throws RequestError {
        demandDelete();
        resolver.delete(ContentUris.withAppendedId(URI, id), null, null);
        // A phone that does not allow it changes nothing and does not say so.
        if (Query.count(resolver, URI, "_id=?", new String[] {Long.toString(id)}) > 0) {
            throw new RequestError(RequestError.APP_OP,
                    "The phone kept the message: it lets only its own messaging application delete.");
        }
    }

    private void demandDelete() throws RequestError {
        String problem = rights.deleteMessages();
        if (problem != null) throw new RequestError(RequestError.APP_OP, problem);
    }

    private boolean exists(long id, long thread) throws RequestError {
        Rights.demand(readProblem());
        return Query.count(resolver, URI, "_id=? AND thread_id=?",
                new String[] {Long.toString(id), Long.toString(thread)}) > 0;
    }
}
