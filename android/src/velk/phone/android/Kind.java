package velk.phone.android;

import android.util.JsonWriter;
import java.io.IOException;

/** One kind of the phone's data. What a kind does not override is not possible with it. */
abstract class Kind<T> {
    final String name;

    Kind(String name) {
        this.name = name;
    }

    /** Why this kind cannot be read now, a sentence; null when it can. */
    String readProblem() {
        return null;
    }

    /** Why this kind cannot be changed now, a sentence; null when it can. */
    String writeProblem() {
        return null;
    }

    int count() throws RequestError {
        throw notPossible();
    }

    /** Hands out the rows in the order of the phone's own lists. */
    void each(RowHandler<T> handler) throws IOException, RequestError {
        throw notPossible();
    }

    /** Writes the members of a row as the second wire names them. */
    void write(T row, JsonWriter json) throws IOException {}

    /** The id of what was added; 0 where it has none. */
    long add(Item item) throws RequestError {
        throw notPossible();
    }

    void change(Item item) throws RequestError {
        throw notPossible();
    }

    void delete(Item item) throws RequestError {
        throw notPossible();
    }

    /** How many were deleted; an error says how many were before it. */
    int deleteAll() throws RequestError {
        throw notPossible();
    }

    void send(Item item) throws RequestError {
        throw notPossible();
    }

    private RequestError notPossible() {
        return new RequestError(RequestError.NOT_POSSIBLE, "That cannot be done with " + name + ".");
    }
}
