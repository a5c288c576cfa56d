package velk.phone.android;

import android.util.JsonWriter;
import java.io.BufferedWriter;
import java.io.CharArrayWriter;
import java.io.IOException;
import java.io.OutputStream;
import java.io.OutputStreamWriter;
import java.io.Writer;
import java.nio.charset.StandardCharsets;

/** Writes a reply of the second wire line by line. A line is sent whole or not at all. */
final class ReplyWriter {
    private static final int BUFFER = 32768;

    private final Writer out;
    private final CharArrayWriter line = new CharArrayWriter();
    private JsonWriter json;
    private long records;

    ReplyWriter(OutputStream out) {
        this.out = new BufferedWriter(new OutputStreamWriter(out, StandardCharsets.UTF_8), BUFFER);
    }

    /** Begins a record; its members go to the writer that this returns. */
    JsonWriter begin() throws IOException {
        line.reset();
        json = new JsonWriter(line);
        return json.beginObject();
    }

    /** Ends the record that was begun last. */
    void finish() throws IOException {
        writeLine();
        ++records;
    }

    /** The last line of a reply that is whole. */
    void end() throws IOException {
        begin().name("end").value(records);
        writeLine();
        out.flush();
    }

    /** The last line of a reply that stops here. */
    void error(RequestError why) throws IOException {
        begin().name("error").value(why.code).name("message").value(why.getMessage());
        writeLine();
        out.flush();
    }

    /** Sends what is there; whoever waits for edits sees how far they are. */
    void flush() throws IOException {
        out.flush();
    }

    private void writeLine() throws IOException {
        json.endObject();
        json.close();
        line.append('\n');
        line.writeTo(out);
    }
}
