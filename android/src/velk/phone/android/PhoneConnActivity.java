package velk.phone.android;

import android.app.Activity;
import android.content.Intent;
import android.net.Uri;
import android.os.Build;
import android.os.Bundle;
import android.provider.Settings;
import android.view.Gravity;
import android.view.View;
import android.widget.Button;
import android.widget.LinearLayout;
import android.widget.ScrollView;
import android.widget.TextView;

/**
 * The page that says what this application is, what it may do now, and how it goes away. To open it also
 * starts the agent.
 */
public final class PhoneConnActivity extends Activity {
    private static final int MARGIN_DP = 16;

    private Rights rights;
    private LinearLayout page;

    @Override
    protected void onCreate(Bundle saved) {
        super.onCreate(saved);
        rights = new Rights(this);
        page = new LinearLayout(this);
        page.setOrientation(LinearLayout.VERTICAL);
        int margin = Math.round(MARGIN_DP * getResources().getDisplayMetrics().density);
        page.setPadding(margin, margin, margin, margin);
        ScrollView scroll = new ScrollView(this);
        scroll.addView(page);
        setContentView(scroll);
        // A page that is only drawn again, as after a rotation, does not undo Stop.
        if (saved == null) AgentService.start(this);
    }

    /** The computer opens the page again when the agent has ended and the page has not. */
    @Override
    protected void onNewIntent(Intent intent) {
        super.onNewIntent(intent);
        AgentService.start(this);
    }

    /** Also after a permission was given, here or in the settings. */
    @Override
    protected void onResume() {
        super.onResume();
        page.removeAllViews();
        addText(getString(R.string.what_this_is));
        addText(getString(R.string.what_it_may_do)).setTextSize(20);
        addRights();
        addText(getString(R.string.how_to_remove));
        addButton(R.string.stop, new View.OnClickListener() {
            @Override
            public void onClick(View clicked) {
                stopService(new Intent(PhoneConnActivity.this, AgentService.class));
                finish();
            }
        });
    }

    /** After "don't ask again" the phone shows no question any more; its settings are left. */
    @Override
    public void onRequestPermissionsResult(int request, String[] permissions, int[] results) {
        for (String permission : permissions) {
            if (rights.has(permission) || shouldShowRequestPermissionRationale(permission)) continue;
            startActivity(new Intent(Settings.ACTION_APPLICATION_DETAILS_SETTINGS,
                    Uri.fromParts("package", getPackageName(), null)));
            return;
        }
    }

    private void addRights() {
        addRight(R.string.contacts_read, rights.readContacts());
        addRight(R.string.contacts_write, rights.changeContacts());
        addAsking(R.string.allow_contacts, Rights.CONTACTS);
        addRight(R.string.messages_read, rights.readMessages());
        String messages = rights.sendMessages();
        addRight(R.string.messages_write, messages != null ? messages : rights.deleteMessages());
        addAsking(R.string.allow_messages, Rights.MESSAGES);
        addRight(R.string.files_read, rights.readFiles());
        addRight(R.string.files_write, rights.changeFiles());
        addAsking(R.string.allow_files, Rights.FILES);
    }

    private void addRight(int what, String problem) {
        addText(problem == null ? getString(R.string.yes, getString(what))
                : getString(R.string.no, getString(what), problem));
    }

    /** A button that asks for permissions, where one is missing and can be asked for. */
    private void addAsking(int label, final String[] permissions) {
        if (Build.VERSION.SDK_INT < 23 || rights.hasAll(permissions)) return;
        addButton(label, new View.OnClickListener() {
            @Override
            public void onClick(View clicked) {
                if (Build.VERSION.SDK_INT >= 23) requestPermissions(permissions, 0);
            }
        });
    }

    private void addButton(int label, View.OnClickListener action) {
        Button button = new Button(this);
        button.setText(label);
        button.setOnClickListener(action);
        page.addView(button, new LinearLayout.LayoutParams(
                LinearLayout.LayoutParams.WRAP_CONTENT, LinearLayout.LayoutParams.WRAP_CONTENT));
    }

    private TextView addText(String text) {
        TextView view = new TextView(this);
        view.setText(text);
        view.setTextSize(16);
        view.setGravity(Gravity.START);
        view.setTextAlignment(View.TEXT_ALIGNMENT_VIEW_START);
        int gap = page.getPaddingTop() / 2;
        view.setPadding(0, gap, 0, gap);
        page.addView(view);
        return view;
    }
}
