package velk.phone.android;

import android.content.Context;
import android.content.pm.ApplicationInfo;
import android.content.pm.PackageInfo;
import android.content.pm.PackageManager;
import android.os.Build;
import android.util.JsonWriter;
import java.io.File;
import java.io.IOException;
import java.text.SimpleDateFormat;
import java.util.Date;
import java.util.Locale;

/** The installed applications but the phone's own, unless they were updated, and but this one. */
final class Applications extends Kind<Application> {
    private final PackageManager packages;
    private final String ourselves;

    Applications(Context context) {
        super("applications");
        packages = context.getPackageManager();
        ourselves = context.getPackageName();
    }

    @Override
    int count() {
        int count = 0;
        for (PackageInfo info : packages.getInstalledPackages(0)) if (isListed(info)) ++count;
        return count;
    }

    @Override
    void each(RowHandler<Application> handler) throws IOException, RequestError {
        SimpleDateFormat day = new SimpleDateFormat("yyyy-MM-dd", Locale.US);
        for (PackageInfo info : packages.getInstalledPackages(0)) {
            if (isListed(info)) handler.handle(read(info, day));
        }
    }

    @Override
    void write(Application application, JsonWriter json) throws IOException {
        json.name("package").value(application.packageName);
        json.name("name").value(application.name);
        json.name("version").value(application.version);
        json.name("installed").value(application.installed);
        json.name("size").value(application.size);
        json.name("path").value(application.path);
    }

    private boolean isListed(PackageInfo info) {
        if (info.applicationInfo == null || info.packageName.equals(ourselves)) return false;
        int flags = info.applicationInfo.flags;
        return (flags & ApplicationInfo.FLAG_SYSTEM) == 0
                || (flags & ApplicationInfo.FLAG_UPDATED_SYSTEM_APP) != 0;
    }

    private Application read(PackageInfo info, SimpleDateFormat day) {
        Application application = new Application();
        application.packageName = info.packageName;
        CharSequence label = info.applicationInfo.loadLabel(packages);
        application.name = label == null ? info.packageName : label.toString();
        application.version = info.versionName == null ? "" : info.versionName;
        application.installed = day.format(new Date(info.firstInstallTime));
        String path = info.applicationInfo.sourceDir;
        application.path = path == null ? "" : path;
        application.size = sizeOf(info.applicationInfo);
        return application;
    }

    private static long sizeOf(ApplicationInfo info) {
        long size = info.sourceDir == null ? 0 : new File(info.sourceDir).length();
        if (Build.VERSION.SDK_INT < 21 || info.splitSourceDirs == null) return size;
        for (String split : info.splitSourceDirs) size += new File(split).length();
        return size;
    }
}
