package velk.phone.android;

import android.app.Activity;

/** The page that says what this application is. */
public final class PhoneConnActivity extends Activity {
}
