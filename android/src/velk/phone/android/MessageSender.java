package velk.phone.android;

import android.app.Activity;
import android.app.PendingIntent;
import android.content.BroadcastReceiver;
import android.content.Context;
import android.content.Intent;
import android.content.IntentFilter;
import android.content.pm.PackageManager;
import android.os.Build;
import android.telephony.SmsManager;
import android.telephony.SubscriptionManager;
import android.telephony.TelephonyManager;
import java.util.ArrayList;
import java.util.UUID;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.TimeUnit;

/** Sends a text message and waits for what the phone says of it. The phone itself keeps it as sent. */
final class MessageSender {
    private static final int TIMEOUT_SECONDS = 60;

    private final Context context;

    MessageSender(Context context) {
        this.context = context;
    }

    void send(String number, String text) throws RequestError {
        if (number.isEmpty() || text.isEmpty()) {
            throw new RequestError(RequestError.BAD_REQUEST, "A message needs a number and a text.");
        }
        if (!context.getPackageManager().hasSystemFeature(PackageManager.FEATURE_TELEPHONY)) {
            throw new RequestError(RequestError.NOT_SENT, "This phone sends no messages.");
        }
        SmsManager manager = manager();
        ArrayList<String> parts = manager.divideMessage(text);
        Report report = new Report(context, parts.size());
        try {
            manager.sendMultipartTextMessage(number, null, parts, report.intents(), null);
            report.await();
        } finally {
            report.close();
        }
    }

    /** Of the SIM card that sends messages. */
    @SuppressWarnings("deprecation") // the successors are missing on older phones
    private SmsManager manager() throws RequestError {
        if (Build.VERSION.SDK_INT < 24) return SmsManager.getDefault();
        int card = SubscriptionManager.getDefaultSmsSubscriptionId();
        if (card >= 0) return SmsManager.getSmsManagerForSubscriptionId(card);
        TelephonyManager telephony =
                (TelephonyManager) context.getSystemService(Context.TELEPHONY_SERVICE);
        if (telephony.getPhoneCount() > 1) {
            throw new RequestError(RequestError.NOT_SENT,
                    "Choose in the phone's settings which SIM card sends messages.");
        }
        return SmsManager.getDefault();
    }

    /** Gathers the phone's word on each part of one message. */
    private static final class Report extends BroadcastReceiver {
        private final Context context;
        /** Nobody else can guess this name, so nobody else can report. */
        private final String action = "velk.phone.android.SENT." + UUID.randomUUID();
        private final CountDownLatch missing;
        private final int parts;
        private volatile int failure = Activity.RESULT_OK;

        Report(Context context, int parts) {
            this.context = context;
            this.parts = parts;
            missing = new CountDownLatch(parts);
            context.registerReceiver(this, new IntentFilter(action));
        }

        ArrayList<PendingIntent> intents() {
            int flags = PendingIntent.FLAG_ONE_SHOT;
            if (Build.VERSION.SDK_INT >= 23) flags |= PendingIntent.FLAG_IMMUTABLE;
            ArrayList<PendingIntent> intents = new ArrayList<PendingIntent>();
            for (int i = 0; i < parts; ++i) {
                Intent intent = new Intent(action).setPackage(context.getPackageName());
                intents.add(PendingIntent.getBroadcast(context, i, intent, flags));
            }
            return intents;
        }

        @Override
        public void onReceive(Context where, Intent intent) {
            if (getResultCode() != Activity.RESULT_OK) failure = getResultCode();
            missing.countDown();
        }

        void await() throws RequestError {
            boolean told;
            try {
                told = missing.await(TIMEOUT_SECONDS, TimeUnit.SECONDS);
            } catch (InterruptedException stopped) {
                told = false;
            }
            if (failure != Activity.RESULT_OK) throw new RequestError(RequestError.NOT_SENT, reason(failure));
            if (!told) {
                throw new RequestError(RequestError.NOT_SENT,
                        "The phone has not said whether it sent the message; it may still do so.");
            }
        }

        void close() {
            context.unregisterReceiver(this);
        }

        private static String reason(int failure) {
            switch (failure) {
                case SmsManager.RESULT_ERROR_RADIO_OFF:
                    return "The phone's radio is off; it may be in flight mode.";
                case SmsManager.RESULT_ERROR_NO_SERVICE:
                    return "The phone has no service.";
                case 5: // RESULT_ERROR_LIMIT_EXCEEDED
                    return "The phone lets an application send only so many messages in a while.";
                case 7: // RESULT_ERROR_SHORT_CODE_NOT_ALLOWED
                case 8: // RESULT_ERROR_SHORT_CODE_NEVER_ALLOWED
                    return "The phone allows no messages to this number, which may cost more.";
                default:
                    return "The phone could not send the message (its reason number " + failure + ").";
            }
        }
    }
}
