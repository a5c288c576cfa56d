package velk.phone.android;

import android.app.Notification;
import android.app.NotificationChannel;
import android.app.NotificationManager;
import android.app.PendingIntent;
import android.content.Context;
import android.content.Intent;
import android.os.Build;

/** The one silent notification that is shown while the agent runs. */
final class ServiceNotification {
    static final int ID = 1;
    private static final String CHANNEL = "connection";

    private ServiceNotification() {}

    /** `nameTaken`: another application has taken the name of one of our sockets. */
    static Notification make(Context context, boolean nameTaken) {
        Notification.Builder builder = builder(context)
                .setSmallIcon(R.drawable.connected)
                .setContentTitle(context.getString(nameTaken ? R.string.unreachable : R.string.connected))
                .setContentText(context.getString(
                        nameTaken ? R.string.unreachable_detail : R.string.connected_detail))
                .setOngoing(true)
                .setContentIntent(PendingIntent.getActivity(
                        context, 0, new Intent(context, PhoneConnActivity.class), flags()));
        addStop(context, builder);
        return builder.build();
    }

    @SuppressWarnings("deprecation") // what older phones have
    private static Notification.Builder builder(Context context) {
        if (Build.VERSION.SDK_INT < 26) {
            return new Notification.Builder(context).setPriority(Notification.PRIORITY_LOW);
        }
        NotificationChannel channel = new NotificationChannel(CHANNEL,
                context.getString(R.string.channel), NotificationManager.IMPORTANCE_LOW);
        channel.setShowBadge(false);
        NotificationManager manager =
                (NotificationManager) context.getSystemService(Context.NOTIFICATION_SERVICE);
        manager.createNotificationChannel(channel);
        return new Notification.Builder(context, CHANNEL);
    }

    @SuppressWarnings("deprecation") // its successor, which takes an icon object, is missing on older phones
    private static void addStop(Context context, Notification.Builder builder) {
        Intent stop = new Intent(context, AgentService.class).setAction(AgentService.STOP);
        builder.addAction(0, context.getString(R.string.stop),
                PendingIntent.getService(context, 0, stop, flags()));
    }

    private static int flags() {
        return Build.VERSION.SDK_INT >= 23
                ? PendingIntent.FLAG_UPDATE_CURRENT | PendingIntent.FLAG_IMMUTABLE
                : PendingIntent.FLAG_UPDATE_CURRENT;
    }
}
