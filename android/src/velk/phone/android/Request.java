package velk.phone.android;

import android.util.JsonReader;
import android.util.JsonToken;
import java.io.ByteArrayInputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.nio.charset.StandardCharsets;

/**
 * A request of the second wire. The line is kept as bytes and read twice: once as a whole, so that nothing
 * is done for a request that is broken further on, and once more item by item. So a million items take no
 * more room than their line.
 */
final class Request {
    /** Far more than any request has. */
    private static final int DEEPEST = 32;

    final String op;
    final String kind;
    /** Whether an edit means everything there is. */
    final boolean all;
    final boolean hasItems;
    private final byte[] line;

    /** Reads and checks a line, without its line feed. */
    Request(byte[] line) throws RequestError {
        this.line = line;
        Head head = new Head();
        try {
            read(head, null);
        } catch (IOException | IllegalStateException | NumberFormatException broken) {
            throw new RequestError(RequestError.BAD_REQUEST,
                    "The line is no JSON object of a request's form.");
        }
        op = head.op;
        kind = head.kind;
        all = head.all;
        hasItems = head.hasItems;
        if (op.isEmpty()) throw new RequestError(RequestError.BAD_REQUEST, "The request names no operation.");
    }

    static Request from(InputStream in) throws IOException, RequestError {
        return new Request(Lines.read(in));
    }

    /** Hands out the items in their order. */
    void eachItem(RowHandler<Item> handler) throws IOException, RequestError {
        read(new Head(), handler);
    }

    private static final class Head {
        String op = "";
        String kind = "";
        boolean all;
        boolean hasItems;
    }

    private void read(Head head, RowHandler<Item> handler) throws IOException, RequestError {
        // This decoder refuses what is no UTF-8; a name must not turn into another one.
        JsonReader json = new JsonReader(new InputStreamReader(
                new ByteArrayInputStream(line), StandardCharsets.UTF_8.newDecoder()));
        json.beginObject();
        while (json.hasNext()) readMember(json, head, handler);
        json.endObject();
        if (json.peek() != JsonToken.END_DOCUMENT) throw new IOException("There is more in the line.");
    }

    private static void readMember(JsonReader json, Head head, RowHandler<Item> handler)
            throws IOException, RequestError {
        switch (json.nextName()) {
            case "op":
                head.op = json.nextString();
                return;
            case "kind":
                head.kind = json.nextString();
                return;
            case "all":
                head.all = json.nextBoolean();
                return;
            case "items":
                if (head.hasItems) throw new IOException("There are two lists of items.");
                head.hasItems = true;
                readItems(json, handler);
                return;
            default:
                skip(json, DEEPEST);
        }
    }

    private static void readItems(JsonReader json, RowHandler<Item> handler)
            throws IOException, RequestError {
        json.beginArray();
        while (json.hasNext()) {
            Item item = readItem(json);
            if (handler != null) handler.handle(item);
        }
        json.endArray();
    }

    private static Item readItem(JsonReader json) throws IOException {
        Item item = new Item();
        json.beginObject();
        while (json.hasNext()) {
            switch (json.nextName()) {
                case "id":
                    item.id = json.nextString();
                    break;
                case "thread":
                    item.thread = json.nextString();
                    break;
                case "path":
                    item.path = json.nextString();
                    break;
                case "name":
                    item.name = json.nextString();
                    break;
                case "number":
                    item.number = json.nextString();
                    break;
                case "text":
                    item.text = json.nextString();
                    break;
                default:
                    skip(json, DEEPEST);
            }
        }
        json.endObject();
        return item;
    }

    /** Passes over a value. The reader's own way would keep a record of any depth. */
    private static void skip(JsonReader json, int depth) throws IOException {
        if (depth == 0) throw new IOException("It is nested too deeply.");
        JsonToken token = json.peek();
        if (token == JsonToken.BEGIN_ARRAY) {
            json.beginArray();
            while (json.hasNext()) skip(json, depth - 1);
            json.endArray();
        } else if (token == JsonToken.BEGIN_OBJECT) {
            json.beginObject();
            while (json.hasNext()) {
                json.nextName();
                skip(json, depth - 1);
            }
            json.endObject();
        } else {
            json.skipValue();
        }
    }
}
