package velk.phone.android;

import java.nio.charset.StandardCharsets;

/**
 * A request of the first wire: one byte, or a code, a length and a payload. Lengths have 7 bits there, so the
 * marks inside and the real length decide. Bytes are kept as characters 0 to 255.
 */
final class FirstRequest {
    static final int BATTERY = 38, PHONE_SIZE = 81, PHONE_FREE = 85, STORAGE_SIZE = 79,
            STORAGE_FREE = 83, ANDROID_VERSION = 75, MODEL = 77, AGENT_VERSION = 114, GOODBYE = 90;
    static final int COUNT_CONTACTS = 65, COUNT_MESSAGES = 66, COUNT_APPLICATIONS = 67,
            COUNT_PHOTOS = 68, COUNT_MUSIC = 70, COUNT_VIDEOS = 72, COUNT_BOOKS = 74;
    static final int LIST_CONTACTS = 14, LIST_MESSAGES = 47, LIST_MUSIC = 115,
            LIST_APPLICATIONS = 116, LIST_VIDEOS = 117, LIST_PHOTOS = 118, LIST_BOOKS = 119;
    static final int ADD_CONTACT = 53, DELETE_CONTACT = 122, MODIFY_CONTACT = 123,
            DELETE_ALL_CONTACTS = 120;
    static final int DELETE_MESSAGE = 78, SEND_MESSAGE = 50, DELETE_ALL_MESSAGES = 22;
    static final int DELETE_MUSIC = 80, DELETE_VIDEO = 82, DELETE_PHOTO = 84, DELETE_BOOK = 57;
    static final int ADD_MUSIC = 108, ADD_VIDEO = 109, ADD_PHOTO = 110, ADD_BOOK = 113;

    private static final int FRAME = 6; // code, 0 and the length of what follows
    private static final int PAYLOAD = 10; // after the first field's length
    private static final int SEVEN_BITS = 128;

    enum State { COMPLETE, NEEDS_MORE, UNKNOWN }

    private final String bytes;

    FirstRequest(byte[] bytes, int length) {
        this.bytes = new String(bytes, 0, length, StandardCharsets.ISO_8859_1);
    }

    int code() {
        return bytes.charAt(0);
    }

    /** Whether the bytes so far are one whole request. */
    State state() {
        if (bytes.isEmpty()) return State.NEEDS_MORE;
        switch (code()) {
            case MODIFY_CONTACT:
            case DELETE_ALL_CONTACTS:
            case DELETE_MESSAGE:
            case SEND_MESSAGE:
            case DELETE_ALL_MESSAGES:
                return lengthFits() ? State.COMPLETE : State.NEEDS_MORE;
            case ADD_CONTACT:
            case DELETE_CONTACT:
            case DELETE_MUSIC:
            case DELETE_VIDEO:
            case DELETE_PHOTO:
            case DELETE_BOOK:
            case ADD_MUSIC:
            case ADD_VIDEO:
            case ADD_PHOTO:
            case ADD_BOOK:
                return lengthFits() && bytes.endsWith("|") ? State.COMPLETE : State.NEEDS_MORE;
            default:
                return isOneByte(code()) ? State.COMPLETE : State.UNKNOWN;
        }
    }

    private static boolean isOneByte(int code) {
        switch (code) {
            case BATTERY:
            case PHONE_SIZE:
            case PHONE_FREE:
            case STORAGE_SIZE:
            case STORAGE_FREE:
            case ANDROID_VERSION:
            case MODEL:
            case AGENT_VERSION:
            case GOODBYE:
            case COUNT_CONTACTS:
            case COUNT_MESSAGES:
            case COUNT_APPLICATIONS:
            case COUNT_PHOTOS:
            case COUNT_MUSIC:
            case COUNT_VIDEOS:
            case COUNT_BOOKS:
            case LIST_CONTACTS:
            case LIST_MESSAGES:
            case LIST_MUSIC:
            case LIST_APPLICATIONS:
            case LIST_VIDEOS:
            case LIST_PHOTOS:
            case LIST_BOOKS:
                return true;
            default:
                return false;
        }
    }

    private boolean lengthFits() {
        return bytes.length() >= FRAME
                && (bytes.length() - FRAME) % SEVEN_BITS == bytes.charAt(2);
    }

    /** Name and number of a contact to add; null when the request is not of that form. */
    Item contactToAdd() {
        String payload = markedPayload();
        int nameEnd = payload == null ? -1 : payload.indexOf('*');
        if (nameEnd < 0) return null;
        String number = payload.substring(nameEnd + 1);
        int numberEnd = number.indexOf('*');
        return contact(payload.substring(0, nameEnd),
                numberEnd < 0 ? number : number.substring(0, numberEnd));
    }

    /** A contact to change, with its id; null when the request is not of that form. */
    Item contactToModify() {
        if (bytes.length() < PAYLOAD + 8) return null;
        String payload = bytes.substring(PAYLOAD);
        // After the name come the id and the number's length; where they fit, the name ends.
        for (int name = bytes.charAt(FRAME); name + 8 <= payload.length(); name += SEVEN_BITS) {
            int number = payload.length() - name - 8;
            if (payload.charAt(name + 4) != number % SEVEN_BITS) continue;
            if (!payload.startsWith("\0\0\0", name + 5)) continue;
            Item item = contact(payload.substring(0, name), payload.substring(name + 8));
            item.id = Integer.toString(littleEndian(payload, name));
            return item;
        }
        return null;
    }

    Item contactToDelete() {
        String payload = markedPayload();
        if (payload == null) return null;
        Item item = new Item();
        item.id = payload;
        return item;
    }

    /** The low bytes of id and thread of a message to delete; null when the request is not of that form. */
    int[] messageToDelete() {
        if (bytes.length() != 14) return null;
        return new int[] {bytes.charAt(6), bytes.charAt(10)};
    }

    Item messageToSend() {
        String payload = bytes.length() < PAYLOAD ? "" : bytes.substring(PAYLOAD);
        int numberEnd = payload.indexOf("*|");
        if (numberEnd < 0) return null;
        Item item = new Item();
        item.number = text(payload.substring(0, numberEnd));
        item.text = text(payload.substring(numberEnd + 2));
        return item;
    }

    /** The path of an added file, or of a book to delete; null when the request is not of that form. */
    String path() {
        String payload = markedPayload();
        return payload == null ? null : text(payload);
    }

    /** The path of a music file, video or photo to delete; null when the request is not of that form. */
    String mediaToDelete() {
        String payload = markedPayload();
        if (payload == null || !payload.endsWith("*")) return null;
        int pathEnd = payload.lastIndexOf('*', payload.length() - 2);
        return pathEnd < 0 ? null : text(payload.substring(0, pathEnd));
    }

    /** What a request that ends in "|" has before it. */
    private String markedPayload() {
        if (bytes.length() <= PAYLOAD || !bytes.endsWith("|")) return null;
        return bytes.substring(PAYLOAD, bytes.length() - 1);
    }

    private static Item contact(String name, String number) {
        Item item = new Item();
        item.name = text(name);
        item.number = text(number);
        return item;
    }

    private static int littleEndian(String bytes, int at) {
        return bytes.charAt(at) | bytes.charAt(at + 1) << 8 | bytes.charAt(at + 2) << 16
                | bytes.charAt(at + 3) << 24;
    }

    private static String text(String bytes) {
        return new String(bytes.getBytes(StandardCharsets.ISO_8859_1), StandardCharsets.UTF_8);
    }
}
