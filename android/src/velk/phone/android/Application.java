package velk.phone.android;

/** An application that somebody installed or updated. */
final class Application {
    String packageName;
    String name;
    String version;
    /** The day of its installation. */
    String installed;
    String path;
    /** Bytes of its package files. */
    long size;
}
