package velk.phone.android;

/** Why something was not done: a code that a program can act on and a sentence for a person. */
final class RequestError extends Exception {
    static final String BAD_REQUEST = "bad-request";
    static final String UNKNOWN_OPERATION = "unknown-operation";
    static final String UNKNOWN_KIND = "unknown-kind";
    static final String NOT_POSSIBLE = "not-possible";
    static final String TOO_LONG = "too-long";
    static final String PERMISSION = "permission";
    static final String APP_OP = "app-op";
    static final String READ_ONLY = "read-only";
    static final String GONE = "gone";
    static final String NOT_SENT = "not-sent";
    static final String FAILED = "failed";

    private static final long serialVersionUID = 1;

    final String code;
    /** How many records were deleted before a deletion of all of them stopped. */
    int deleted;

    RequestError(String code, String message) {
        super(message);
        this.code = code;
    }

    /** What the phone threw, as an answer. */
    static RequestError of(Throwable thrown) {
        if (thrown instanceof RequestError) return (RequestError) thrown;
        String reason = thrown.getMessage();
        if (reason == null || reason.isEmpty()) reason = thrown.getClass().getSimpleName();
        return new RequestError(thrown instanceof SecurityException ? PERMISSION : FAILED, reason);
    }
}
