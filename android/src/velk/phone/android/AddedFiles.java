package velk.phone.android;

import android.content.Context;
import android.media.MediaScannerConnection;
import android.net.Uri;
import android.os.Environment;
import java.io.File;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.TimeUnit;

/** Files that the computer has copied to the phone, and that the phone's catalogue is to learn of. */
final class AddedFiles extends Kind<Void> {
    /** Where the computer puts what it copies. */
    private static final String[] FOLDERS = {"music", "movies", "photo", "book"};

    private static final int TIMEOUT_SECONDS = 60;
    private static final int MOST_FILES = 5000;
    private static final int DEEPEST = 16;

    private final Context context;
    private final Rights rights;

    AddedFiles(Context context, Rights rights) {
        super("files");
        this.context = context;
        this.rights = rights;
    }

    @Override
    long add(Item item) throws RequestError {
        Rights.demand(rights.readAllFiles());
        List<String> files = new ArrayList<String>();
        String name = lastPart(item.path());
        for (File folder : folders()) gather(new File(folder, name), DEEPEST, files);
        if (files.isEmpty()) {
            throw new RequestError(RequestError.GONE,
                    "There is no file of this name where files are copied to.");
        }
        scan(files);
        return 0;
    }

    /**
     * The folders as the phone writes them: to its storage Music and music are one folder, to its catalogue
     * they are two.
     */
    private static List<File> folders() throws RequestError {
        File[] all = Environment.getExternalStorageDirectory().listFiles();
        if (all == null) throw new RequestError(RequestError.FAILED, "The phone's storage cannot be read.");
        List<File> folders = new ArrayList<File>();
        for (File one : all) {
            for (String name : FOLDERS) if (name.equalsIgnoreCase(one.getName())) folders.add(one);
        }
        return folders;
    }

    private static String lastPart(String path) throws RequestError {
        int end = path.length();
        while (end > 0 && path.charAt(end - 1) == '/') --end;
        String name = path.substring(path.lastIndexOf('/', end - 1) + 1, end);
        if (name.isEmpty() || name.equals(".") || name.equals("..") || name.indexOf('\0') >= 0) {
            throw new RequestError(RequestError.BAD_REQUEST, "The path has no file name.");
        }
        return name;
    }

    /** A folder counts for all files below it. */
    private static void gather(File file, int depth, List<String> files) {
        if (files.size() >= MOST_FILES || depth == 0) return;
        if (file.isFile()) files.add(file.getPath());
        File[] children = file.listFiles();
        if (children == null) return;
        for (File one : children) gather(one, depth - 1, files);
    }

    private void scan(List<String> files) throws RequestError {
        final CountDownLatch missing = new CountDownLatch(files.size());
        MediaScannerConnection.scanFile(context, files.toArray(new String[0]), null,
                new MediaScannerConnection.OnScanCompletedListener() {
                    @Override
                    public void onScanCompleted(String path, Uri uri) {
                        missing.countDown();
                    }
                });
        try {
            if (missing.await(TIMEOUT_SECONDS, TimeUnit.SECONDS)) return;
        } catch (InterruptedException stopped) {
            // As good as too late.
        }
        throw new RequestError(RequestError.FAILED,
                "The phone has not looked at the file yet; it may later.");
    }
}
