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
        } catch (Refusal refusal) {
            reply.error(refusal);
        } catch (RuntimeException failure) {
            reply.error(Refusal.of(failure));
        } catch (OutOfMemoryError full) {
            reply.error(Refusal.of(full));
        }
    }

    private void answer(Request request, ReplyWriter reply) throws IOException, Refusal {
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
                throw new Refusal(Refusal.UNKNOWN_OPERATION,
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

    private void count(Request request, ReplyWriter reply) throws IOException, Refusal {
        if (!request.kind.isEmpty()) {
            countOne(phone.kind(request.kind), reply);
            return;
        }
        for (Kind<?> kind : phone.kinds()) countOne(kind, reply);
    }

    private static void countOne(Kind<?> kind, ReplyWriter reply) throws IOException {
        int count = 0;
        Refusal refusal = null;
        try {
            count = kind.count();
        } catch (Refusal | RuntimeException refused) {
            refusal = Refusal.of(refused);
        }
        JsonWriter json = reply.begin().name("kind").value(kind.name);
        if (refusal == null) json.name("count").value(count);
        else json.name("code").value(refusal.code).name("message").value(refusal.getMessage());
        reply.finish();
    }

    private static <T> void list(final Kind<T> kind, final ReplyWriter reply)
            throws IOException, Refusal {
        kind.each(new Sink<T>() {
            @Override
            public void take(T row) throws IOException {
                kind.write(row, reply.begin());
                reply.finish();
            }
        });
    }

    private static void edit(final Request request, final Kind<?> kind, final ReplyWriter reply)
            throws IOException, Refusal {
        if (request.all && request.hasItems) {
            throw new Refusal(Refusal.BAD_REQUEST, "The request names both items and everything.");
        }
        if (request.all && request.op.equals("delete")) {
            deleteAll(kind, reply);
            return;
        }
        if (!request.hasItems) throw new Refusal(Refusal.BAD_REQUEST, "The request has no items.");
        request.eachItem(new Sink<Item>() {
            private int number;

            @Override
            public void take(Item item) throws IOException, Refusal {
                editOne(request.op, kind, item, number++, reply);
            }
        });
    }

    private static void editOne(String op, Kind<?> kind, Item item, int number, ReplyWriter reply)
            throws IOException, Refusal {
        long id = 0;
        Refusal refusal = null;
        try {
            id = perform(op, kind, item);
        } catch (Refusal | RuntimeException refused) {
            refusal = Refusal.of(refused);
        }
        JsonWriter json = beginResult(number, refusal, reply);
        if (id != 0) json.name("id").value(Long.toString(id));
        reply.finish();
        reply.flush();
    }

    private static long perform(String op, Kind<?> kind, Item item) throws Refusal {
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

    private static void deleteAll(Kind<?> kind, ReplyWriter reply) throws IOException, Refusal {
        int count = 0;
        Refusal refusal = null;
        try {
            count = kind.deleteAll();
        } catch (Refusal | RuntimeException refused) {
            refusal = Refusal.of(refused);
            count = refusal.deleted;
        }
        beginResult(0, refusal, reply).name("count").value(count);
        reply.finish();
    }

    /** What is never possible is no matter of the item: it ends the reply. */
    private static JsonWriter beginResult(int number, Refusal refusal, ReplyWriter reply)
            throws IOException, Refusal {
        if (refusal != null && refusal.code.equals(Refusal.NOT_POSSIBLE)) throw refusal;
        JsonWriter json = reply.begin().name("item").value(number)
                .name("done").value(refusal == null);
        if (refusal != null) json.name("code").value(refusal.code)
                .name("message").value(refusal.getMessage());
        return json;
    }
}
