package velk.phone.android;

import android.os.Build;
import android.util.JsonWriter;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;

/** The wire of JSON lines: one request, a line for each record, and a last line. */
final class SecondWire implements Wire {
    private static final int VERSION = 2;

    private final Phone phone;

    SecondWire(Phone phone) {
        this.phone = phone;
    }

    @Override
    public void serve(InputStream in, OutputStream out) throws IOException {
        ReplyWriter reply = new ReplyWriter(out);
        try {
            answer(Request.from(in), reply);
            reply.end();
        } catch (RequestError error) {
            reply.error(error);
        } catch (RuntimeException failure) {
            reply.error(RequestError.of(failure));
        } catch (OutOfMemoryError full) {
            reply.error(RequestError.of(full));
        }
    }

    private void answer(Request request, ReplyWriter reply) throws IOException, RequestError {
        switch (request.op) {
            case "hello":
                hello(reply);
                return;
            case "count":
                count(request, reply);
                return;
            case "list":
                list(phone.kind(request.kind), reply);
                return;
            case "add":
            case "change":
            case "delete":
            case "send":
                edit(request, phone.kind(request.kind), reply);
                return;
            default:
                throw new RequestError(RequestError.UNKNOWN_OPERATION,
                        "This agent has no operation of this name.");
        }
    }

    private void hello(ReplyWriter reply) throws IOException {
        reply.begin().name("wire").value(VERSION)
                .name("agent").value(phone.agentVersion())
                .name("android").value(Build.VERSION.RELEASE)
                .name("api").value(Build.VERSION.SDK_INT);
        reply.finish();
        for (Kind<?> kind : phone.kinds()) {
            String read = kind.readProblem();
            String write = kind.writeProblem();
            JsonWriter json = reply.begin().name("kind").value(kind.name)
                    .name("read").value(read == null)
                    .name("write").value(write == null);
            if (read != null || write != null) json.name("message").value(read != null ? read : write);
            reply.finish();
        }
    }

    private void count(Request request, ReplyWriter reply) throws IOException, RequestError {
        if (!request.kind.isEmpty()) {
            countOne(phone.kind(request.kind), reply);
            return;
        }
        for (Kind<?> kind : phone.kinds()) countOne(kind, reply);
    }

    private static void countOne(Kind<?> kind, ReplyWriter reply) throws IOException {
        int count = 0;
        RequestError error = null;
        try {
            count = kind.count();
        } catch (RequestError | RuntimeException failed) {
            error = RequestError.of(failed);
        }
        JsonWriter json = reply.begin().name("kind").value(kind.name);
        if (error == null) json.name("count").value(count);
        else json.name("code").value(error.code).name("message").value(error.getMessage());
        reply.finish();
    }

    private static <T> void list(final Kind<T> kind, final ReplyWriter reply)
            throws IOException, RequestError {
        kind.each(new RowHandler<T>() {
            @Override
            public void handle(T row) throws IOException {
                kind.write(row, reply.begin());
                reply.finish();
            }
        });
    }

    private static void edit(final Request request, final Kind<?> kind, final ReplyWriter reply)
            throws IOException, RequestError {
        if (request.all && request.hasItems) {
            throw new RequestError(RequestError.BAD_REQUEST, "The request names both items and everything.");
        }
        if (request.all && request.op.equals("delete")) {
            deleteAll(kind, reply);
            return;
        }
        if (!request.hasItems) throw new RequestError(RequestError.BAD_REQUEST, "The request has no items.");
        request.eachItem(new RowHandler<Item>() {
            private int number;

            @Override
            public void handle(Item item) throws IOException, RequestError {
                editOne(request.op, kind, item, number++, reply);
            }
        });
    }

    private static void editOne(String op, Kind<?> kind, Item item, int number, ReplyWriter reply)
            throws IOException, RequestError {
        long id = 0;
        RequestError error = null;
        try {
            id = perform(op, kind, item);
        } catch (RequestError | RuntimeException failed) {
            error = RequestError.of(failed);
        }
        JsonWriter json = beginResult(number, error, reply);
        if (id != 0) json.name("id").value(Long.toString(id));
        reply.finish();
        reply.flush();
    }

    private static long perform(String op, Kind<?> kind, Item item) throws RequestError {
        switch (op) {
            case "add":
                return kind.add(item);
            case "change":
                kind.change(item);
                return 0;
            case "delete":
                kind.delete(item);
                return 0;
            default:
                kind.send(item);
                return 0;
        }
    }

    private static void deleteAll(Kind<?> kind, ReplyWriter reply) throws IOException, RequestError {
        int count = 0;
        RequestError error = null;
        try {
            count = kind.deleteAll();
        } catch (RequestError | RuntimeException failed) {
            error = RequestError.of(failed);
            count = error.deleted;
        }
        beginResult(0, error, reply).name("count").value(count);
        reply.finish();
    }

    /** What is never possible is no matter of the item: it ends the reply. */
    private static JsonWriter beginResult(int number, RequestError error, ReplyWriter reply)
            throws IOException, RequestError {
        if (error != null && error.code.equals(RequestError.NOT_POSSIBLE)) throw error;
        JsonWriter json = reply.begin().name("item").value(number)
                .name("done").value(error == null);
        if (error != null) json.name("code").value(error.code)
                .name("message").value(error.getMessage());
        return json;
    }
}
