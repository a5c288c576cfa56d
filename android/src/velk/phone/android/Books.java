package velk.phone.android;

import android.content.Context;
import android.provider.MediaStore;
import android.util.JsonWriter;
import java.io.IOException;

/** Documents: files with certain endings, of which the phone has no catalogue of their own. */
final class Books extends Media {
    private static final String[] ENDINGS = {
        "epub", "pdf", "mobi", "azw", "azw3", "fb2", "djvu", "txt", "rtf", "doc", "docx", "odt",
        "html", "htm", "chm", "cbz", "cbr", "prc", "lit"
    };

    Books(Context context, Rights rights) {
        super(context, rights, "books", MediaStore.Files.getContentUri("external"), endings(),
                MediaStore.MediaColumns._ID, MediaStore.MediaColumns.DATA, MediaStore.MediaColumns.SIZE);
    }

    @Override
    String readProblem() {
        return rights.readAllFiles();
    }

    private static String endings() {
        StringBuilder any = new StringBuilder();
        for (String ending : ENDINGS) {
            any.append(any.length() == 0 ? "(" : " OR ");
            any.append("_data LIKE '%.").append(ending).append("'");
        }
        return any.append(")").toString();
    }

    @Override
    void write(MediaFile file, JsonWriter json) throws IOException {
        json.name("path").value(file.path).name("size").value(file.size);
        json.name("folder").value(file.folder());
    }

    @Override
    void delete(Item item) throws RequestError {
        deleteByPath(item.path());
    }
}
