package velk.phone.android;

/** One thing that an edit is about. Members that were not sent are empty. */
final class Item {
    String id = "";
    String thread = "";
    String path = "";
    String name = "";
    String number = "";
    String text = "";

    /** The id as a number. */
    long id() throws RequestError {
        return number(id, "id");
    }

    long thread() throws RequestError {
        return number(thread, "thread");
    }

    String path() throws RequestError {
        if (path.isEmpty()) throw new RequestError(RequestError.BAD_REQUEST, "The item has no path.");
        return path;
    }

    private static long number(String text, String what) throws RequestError {
        try {
            return Long.parseLong(text);
        } catch (NumberFormatException none) {
            throw new RequestError(RequestError.BAD_REQUEST, "The item's " + what + " is not a number.");
        }
    }
}
