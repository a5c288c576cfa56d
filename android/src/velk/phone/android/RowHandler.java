package velk.phone.android;

import java.io.IOException;

/** Takes the rows of a list one by one, so that no list is ever held as a whole. */
interface RowHandler<T> {
    void handle(T row) throws IOException, RequestError;
}
