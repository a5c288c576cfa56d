package velk.phone.android;

/** A text message. */
final class Message {
    long id;
    long thread;
    String number;
    String text;
    /** Milliseconds since 1970 UTC. */
    long time;
    /** The same in the phone's local time. */
    String date;
    /** 1 received, 2 sent, others as Android counts them. */
    int type;
    boolean read;
}
