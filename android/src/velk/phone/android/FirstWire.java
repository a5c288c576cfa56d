package velk.phone.android;

import android.os.Build;
import java.io.BufferedOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.util.Arrays;

/**
 * The wire of bytes that every agent speaks. It has no place for a reason: what cannot be done is not
 * answered.
 */
final class FirstWire implements Wire {
    private static final int LONGEST_REQUEST = 65536;

    private final Phone phone;
    private final Runnable goodbye;

    /** `goodbye` runs when the computer's window closes, after the answer. */
    FirstWire(Phone phone, Runnable goodbye) {
        this.phone = phone;
        this.goodbye = goodbye;
    }

    @Override
    public void serve(InputStream in, OutputStream out) throws IOException {
        FirstRequest request = read(in);
        if (request == null) return;
        BufferedOutputStream reply = new BufferedOutputStream(out, LONGEST_REQUEST);
        boolean readerEnds = false;
        try {
            readerEnds = answer(request, reply);
        } catch (RequestError | RuntimeException failed) {
            // Not answered: the computer sees that nothing was done.
            return;
        }
        reply.flush();
        if (request.code() == FirstRequest.GOODBYE) goodbye.run();
        while (readerEnds && in.read() >= 0) continue;
    }

    /** A whole request; null for one of no known code and one that is too long or cut off. */
    private static FirstRequest read(InputStream in) throws IOException {
        byte[] bytes = new byte[1024];
        int length = 0;
        while (length < LONGEST_REQUEST) {
            if (length == bytes.length) bytes = Arrays.copyOf(bytes, 2 * length);
            int count = in.read(bytes, length, bytes.length - length);
            if (count < 0) return null;
            length += count;
            FirstRequest request = new FirstRequest(bytes, length);
            FirstRequest.State state = request.state();
            if (state == FirstRequest.State.UNKNOWN) return null;
            // Lengths wrap at 128: a request may look whole in its middle.
            if (state == FirstRequest.State.COMPLETE && in.available() == 0) return request;
        }
        return null;
    }

    /** True when the connection stays until the computer ends it: it finds the end of these lists itself. */
    private boolean answer(FirstRequest request, OutputStream out) throws IOException, RequestError {
        int code = request.code();
        if (code == FirstRequest.BATTERY) {
            FirstReply level = new FirstReply();
            level.number(phone.battery(), 1);
            level.send(code, out);
            return false;
        }
        String value = value(code);
        if (value != null) {
            FirstReply.sendValue(code, value, out);
            return false;
        }
        if (list(code, out)) return code != FirstRequest.LIST_CONTACTS;
        edit(request, out);
        return false;
    }

    /** The text of a value; null when the code asks for something else. */
    private String value(int code) throws RequestError {
        switch (code) {
            case FirstRequest.PHONE_SIZE:
                return Long.toString(Phone.memory().getTotalBytes());
            case FirstRequest.PHONE_FREE:
                return Long.toString(Phone.memory().getAvailableBytes());
            case FirstRequest.STORAGE_SIZE:
                return Long.toString(Phone.storage().getTotalBytes());
            case FirstRequest.STORAGE_FREE:
                return Long.toString(Phone.storage().getAvailableBytes());
            case FirstRequest.ANDROID_VERSION:
                return Build.VERSION.RELEASE;
            case FirstRequest.MODEL:
                return Build.MODEL;
            case FirstRequest.AGENT_VERSION:
                return phone.agentVersion();
            case FirstRequest.GOODBYE:
                return "1";
            default:
                Kind<?> counted = counted(code);
                return counted == null ? null : Integer.toString(counted.count());
        }
    }

    private Kind<?> counted(int code) {
        switch (code) {
            case FirstRequest.COUNT_CONTACTS:
                return phone.contacts;
            case FirstRequest.COUNT_MESSAGES:
                return phone.messages;
            case FirstRequest.COUNT_APPLICATIONS:
                return phone.applications;
            case FirstRequest.COUNT_PHOTOS:
                return phone.photos;
            case FirstRequest.COUNT_MUSIC:
                return phone.music;
            case FirstRequest.COUNT_VIDEOS:
                return phone.videos;
            case FirstRequest.COUNT_BOOKS:
                return phone.books;
            default:
                return null;
        }
    }

    /** False when the code asks for no list. */
    private boolean list(int code, OutputStream out) throws IOException, RequestError {
        FirstLists lists = new FirstLists(phone, out);
        switch (code) {
            case FirstRequest.LIST_CONTACTS:
                lists.contacts();
                return true;
            case FirstRequest.LIST_MESSAGES:
                lists.messages();
                return true;
            case FirstRequest.LIST_APPLICATIONS:
                lists.applications();
                return true;
            case FirstRequest.LIST_MUSIC:
                lists.music();
                return true;
            case FirstRequest.LIST_VIDEOS:
                lists.videos();
                return true;
            case FirstRequest.LIST_PHOTOS:
                lists.photos();
                return true;
            case FirstRequest.LIST_BOOKS:
                lists.books();
                return true;
            default:
                return false;
        }
    }

    private void edit(FirstRequest request, OutputStream out) throws IOException, RequestError {
        FirstReply reply = new FirstReply();
        if (request.code() == FirstRequest.ADD_CONTACT) {
            reply.decimal(phone.contacts.add(whole(request.contactToAdd())));
        } else {
            perform(request);
            reply.number(1, 1);
        }
        reply.send(request.code(), out);
    }

    /** Carries out an edit that is answered with a bare "done"; an error when nothing was changed. */
    private void perform(FirstRequest request) throws RequestError {
        switch (request.code()) {
            case FirstRequest.MODIFY_CONTACT:
                phone.contacts.change(whole(request.contactToModify()));
                return;
            case FirstRequest.DELETE_CONTACT:
                phone.contacts.delete(whole(request.contactToDelete()));
                return;
            case FirstRequest.DELETE_ALL_CONTACTS:
                phone.contacts.deleteAll();
                return;
            case FirstRequest.DELETE_MESSAGE:
                deleteMessage(whole(request.messageToDelete()));
                return;
            case FirstRequest.DELETE_ALL_MESSAGES:
                phone.messages.clear();
                return;
            case FirstRequest.SEND_MESSAGE:
                phone.messages.send(whole(request.messageToSend()));
                return;
            case FirstRequest.DELETE_MUSIC:
                phone.music.deleteByPath(whole(request.mediaToDelete()));
                return;
            case FirstRequest.DELETE_VIDEO:
                phone.videos.deleteByPath(whole(request.mediaToDelete()));
                return;
            case FirstRequest.DELETE_PHOTO:
                phone.photos.deleteByPath(whole(request.mediaToDelete()));
                return;
            case FirstRequest.DELETE_BOOK:
                phone.books.deleteByPath(whole(request.path()));
                return;
            default:
                Item added = new Item();
                added.path = whole(request.path());
                phone.addedFiles.add(added);
        }
    }

    private void deleteMessage(int[] lowBytes) throws RequestError {
        if (phone.messages.deleteByLowBytes(lowBytes[0], lowBytes[1])) return;
        throw new RequestError(RequestError.FAILED, "Several messages fit.");
    }

    private static <T> T whole(T part) throws RequestError {
        if (part != null) return part;
        throw new RequestError(RequestError.BAD_REQUEST, "The request is damaged.");
    }
}
