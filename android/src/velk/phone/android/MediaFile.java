package velk.phone.android;

/** A file that the phone's media catalogue has. What its kind lacks is empty or 0. */
final class MediaFile {
    final long id;
    final String path;
    final long size;
    String artist = "";
    String album = "";
    /** Milliseconds. */
    long duration;
    /** Whether it may be chosen as ring tone. */
    boolean ring;

    MediaFile(long id, String path, long size) {
        this.id = id;
        this.path = path;
        this.size = size;
    }

    /** The folder it lies in. */
    String folder() {
        int slash = path.lastIndexOf('/');
        return slash < 0 ? "" : path.substring(0, slash);
    }
}
