package velk.phone.android;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;
import static org.robolectric.Shadows.shadowOf;

import android.content.ContentResolver;
import android.content.SyncAdapterType;
import android.provider.ContactsContract;
import android.provider.MediaStore;
import android.telephony.TelephonyManager;
import java.io.File;
import java.nio.charset.StandardCharsets;
import java.util.List;
import org.json.JSONArray;
import org.json.JSONObject;
import org.junit.After;
import org.junit.Before;
import org.junit.Test;
import org.junit.runner.RunWith;
import org.robolectric.RobolectricTestRunner;
import org.robolectric.annotation.Config;
import org.robolectric.shadows.ShadowContentResolver;
import org.robolectric.shadows.ShadowEnvironment;
import org.robolectric.shadows.ShadowSubscriptionManager;

@RunWith(RobolectricTestRunner.class)
@Config(sdk = {19, 28, 34}, shadows = {FakePhone.Scanner.class, FakePhone.Sender.class})
public class SecondWireTest {
    /** What the first wire tears apart, and what a line of text cannot hold as it is. */
    private static final String STRANGE = "star*na|me\\ \"q\" <&> \n\r\t\0\u2028 \u05E9\u05DC\u05D5\u05DD \uD83D\uDE00";
    private static final long LARGE = 5000000000L;

    private FakePhone phone;

    @Before
    public void setUp() {
        phone = new FakePhone();
    }

    @After
    public void tearDown() {
        phone.close();
    }

    private static JSONObject item(Object... members) throws Exception {
        JSONObject item = new JSONObject();
        for (int i = 0; i < members.length; i += 2) item.put((String) members[i], members[i + 1]);
        return item;
    }

    private List<JSONObject> edit(String op, String kind, JSONObject... items) throws Exception {
        JSONArray array = new JSONArray();
        for (JSONObject one : items) array.put(one);
        return phone.ask(item("op", op, "kind", kind, "items", array).toString());
    }

    /** What became of the only item. */
    private String result(String op, String kind, JSONObject one) throws Exception {
        List<JSONObject> reply = edit(op, kind, one);
        assertEquals(reply.toString(), 2, reply.size());
        assertEquals(1, reply.get(1).getInt("end"));
        assertEquals(0, reply.get(0).getInt("item"));
        if (reply.get(0).getBoolean("done")) return "done";
        assertFalse(reply.get(0).getString("message").isEmpty());
        return reply.get(0).getString("code");
    }

    private List<JSONObject> list(String kind) throws Exception {
        List<JSONObject> reply = phone.ask("{\"op\":\"list\",\"kind\":\"" + kind + "\"}");
        assertEquals(reply.toString(), reply.size() - 1, reply.get(reply.size() - 1).getInt("end"));
        return reply.subList(0, reply.size() - 1);
    }

    private String errorOf(String request) throws Exception {
        List<JSONObject> reply = phone.ask(request);
        assertEquals(1, reply.size());
        return reply.get(0).getString("error");
    }

    @Test
    public void aRequestThatMakesNoSenseIsAnsweredWithAnError() throws Exception {
        String[][] cases = {
            {"", "bad-request"}, {"garbage", "bad-request"}, {"[]", "bad-request"}, {"{}", "bad-request"},
            {"{\"op\":\"hello\"", "bad-request"}, {"{\"op\":\"hello\"} {}", "bad-request"},
            {"{\"op\":null}", "bad-request"}, {"{\"op\":{}}", "bad-request"},
            {"{\"op\":\"hello\",\"x\":" + new String(new char[99999]).replace('\0', '[') + "}", "bad-request"},
            {"{\"op\":\"list\"}", "bad-request"}, {"{\"op\":\"add\",\"kind\":\"contacts\"}", "bad-request"},
            {"{\"op\":\"add\",\"kind\":\"contacts\",\"items\":[{\"name\":\"Ann\"},7]}", "bad-request"},
            {"{\"op\":\"delete\",\"kind\":\"contacts\",\"all\":true,\"items\":[]}", "bad-request"},
            {"{\"op\":\"fly\"}", "unknown-operation"}, {"{\"op\":\"list\",\"kind\":\"x\"}", "unknown-kind"},
            {"{\"op\":\"list\",\"kind\":\"files\"}", "not-possible"},
            {"{\"op\":\"delete\",\"kind\":\"messages\",\"all\":true}", "not-possible"},
            {"{\"op\":\"delete\",\"kind\":\"applications\",\"items\":[{}]}", "not-possible"},
        };
        for (String[] one : cases) assertEquals(one[0], one[1], errorOf(one[0]));
        assertEquals("A request that is damaged further on does nothing.", 0, list("contacts").size());
        byte[] notText = "{\"op\":\"hello\",\"x\":\"\u00FF\"}\n".getBytes(StandardCharsets.ISO_8859_1);
        byte[] cut = "{\"op\":\"hello\"}".getBytes(StandardCharsets.UTF_8);
        for (byte[] one : new byte[][] {notText, cut, {}}) {
            assertEquals("bad-request", FakePhone.lines(
                    FakePhone.serve(new SecondWire(phone.phone), one)).get(0).getString("error"));
        }
    }

    @Test
    public void aRequestHasALimitAndTheLongestOneIsTaken() throws Exception {
        String start = "{\"op\":\"count\",\"kind\":\"contacts\",\"x\":\"";
        char[] fill = new char[Lines.LONGEST - start.length() - 2];
        java.util.Arrays.fill(fill, 'x');
        String longest = start + new String(fill) + "\"}";
        assertEquals(0, phone.ask(longest).get(0).getInt("count"));
        assertEquals("too-long", errorOf(longest + " "));
    }

    @Test
    public void helloSaysWhatIsPossibleAndWhyNot() throws Exception {
        List<JSONObject> reply = phone.ask("{\"op\":\"hello\",\"new\":[{\"a\":1}]}");
        assertEquals(9, reply.size());
        assertEquals(2, reply.get(0).getInt("wire"));
        assertEquals(android.os.Build.VERSION.SDK_INT, reply.get(0).getInt("api"));
        assertEquals("2.0", reply.get(0).getString("agent"));
        for (JSONObject kind : reply.subList(1, 8)) {
            assertTrue(kind.getString("kind"), kind.getBoolean("read") && kind.getBoolean("write"));
            assertFalse(kind.has("message"));
        }
        phone.letWriteMessages(false);
        shadowOf(phone.application).denyPermissions(Rights.CONTACTS);
        reply = phone.ask("{\"op\":\"hello\"}");
        assertFalse(reply.get(1).getBoolean("read") || reply.get(1).getBoolean("write"));
        assertTrue(reply.get(2).getBoolean("read"));
        assertFalse(reply.get(2).getBoolean("write"));
        assertTrue(reply.get(2).getString("message").contains("WRITE_SMS"));
        if (android.os.Build.VERSION.SDK_INT < 29) return;
        ShadowEnvironment.setIsExternalStorageLegacy(false);
        reply = phone.ask("{\"op\":\"hello\"}");
        assertTrue("photos", reply.get(5).getBoolean("read"));
        assertFalse("photos", reply.get(5).getBoolean("write"));
        assertFalse("books", reply.get(7).getBoolean("read"));
    }

    @Test
    public void withoutPermissionNothingIsReadOrChanged() throws Exception {
        shadowOf(phone.application).denyPermissions(Rights.CONTACTS);
        shadowOf(phone.application).denyPermissions(Rights.MESSAGES);
        shadowOf(phone.application).denyPermissions(Rights.FILES);
        for (String kind : new String[] {"contacts", "messages", "music", "photos", "videos", "books"}) {
            assertEquals(kind, "permission", errorOf("{\"op\":\"list\",\"kind\":\"" + kind + "\"}"));
            assertEquals(kind, "permission",
                    result("delete", kind, item("id", "1", "thread", "1", "path", "/x")));
        }
        assertEquals("permission", result("add", "contacts", item("name", "Ann")));
        assertEquals("permission", result("send", "messages", item("number", "1", "text", "x")));
        List<JSONObject> counts = phone.ask("{\"op\":\"count\"}");
        assertEquals("permission", counts.get(0).getString("code"));
        assertEquals(0, counts.get(2).getInt("count"));
        assertEquals(7, counts.get(7).getInt("end"));
    }

    @Test
    public void contactsAreListedOnceEachWithTheirDefaultNumber() throws Exception {
        long zoe = phone.contacts.addRaw(LARGE, "com.example", "Zoe");
        phone.contacts.addNumber(zoe, "1", false);
        phone.contacts.addNumber(zoe, "2", true);
        phone.contacts.addNumber(phone.contacts.addRaw(LARGE, null, "Zoe"), "3", false);
        phone.contacts.addRaw(7, null, "Ann");
        List<JSONObject> contacts = list("contacts");
        assertEquals(2, contacts.size());
        assertEquals("Ann", contacts.get(0).getString("name"));
        assertEquals("", contacts.get(0).getString("number"));
        assertEquals("5000000000", contacts.get(1).getString("id"));
        assertEquals("2", contacts.get(1).getString("number"));
    }

    @Test
    public void anAddedContactIsOneOfItsOwnAndKeepsEveryCharacter() throws Exception {
        JSONObject strange = item("name", STRANGE, "number", STRANGE);
        List<JSONObject> reply = edit("add", "contacts", strange, strange, item("name", "Bo"));
        List<JSONObject> contacts = list("contacts");
        assertEquals(3, contacts.size());
        assertEquals("Bo", contacts.get(0).getString("name"));
        for (JSONObject one : contacts.subList(1, 3)) {
            assertEquals(STRANGE, one.getString("name"));
            assertEquals(STRANGE, one.getString("number"));
        }
        assertEquals(reply.get(2).getString("id"), contacts.get(0).getString("id"));
    }

    @Test
    public void aChangeTouchesTheShownNameAndNumberAlone() throws Exception {
        long raw = phone.contacts.addRaw(7, null, "Ann");
        phone.contacts.addNumber(raw, "1", false);
        phone.contacts.addNumber(raw, "2", true);
        phone.contacts.addData(raw, "vnd.android.cursor.item/note", "a note", false);
        assertEquals("done", result("change", "contacts", item("id", "7", "name", STRANGE, "number", "9")));
        JSONObject now = list("contacts").get(0);
        assertEquals(STRANGE, now.getString("name"));
        assertEquals("9", now.getString("number"));
        assertEquals("done", result("change", "contacts", item("id", "7", "name", "Ann", "number", "")));
        assertEquals("1", list("contacts").get(0).getString("number"));
        try (android.database.Cursor notes = phone.contacts.database.rawQuery(
                "SELECT 1 FROM data WHERE data1 = 'a note'", null)) {
            assertEquals(1, notes.getCount());
        }
        phone.contacts.frozen = true;
        assertEquals("gone", result("change", "contacts", item("id", "7", "name", "Bo", "number", "1")));
        assertEquals("gone", result("change", "contacts", item("id", "8", "name", "x", "number", "")));
        assertEquals("bad-request", result("add", "contacts", item("text", "x")));
        assertEquals("bad-request", result("change", "contacts", item("id", "x", "name", "x")));
    }

    @Test
    public void contactsOfReadOnlyAccountsStay() throws Exception {
        ShadowContentResolver.setSyncAdapterTypes(new SyncAdapterType[] {
            new SyncAdapterType(ContactsContract.AUTHORITY, "com.readonly", true, false)});
        phone.contacts.addRaw(1, "com.readonly", "Ann");
        phone.contacts.addRaw(2, null, "Bo");
        phone.contacts.addRaw(3, null, "Cy");
        phone.contacts.addRaw(3, "com.readonly", "Cy");
        long messenger = phone.contacts.addRaw(4, "com.readonly", "Di");
        phone.contacts.addNumber(messenger, "1", false);
        phone.contacts.addNumber(messenger, "4", false);
        phone.contacts.addNumber(phone.contacts.addRaw(4, null, "Di"), "1", false);
        assertEquals("read-only", result("change", "contacts", item("id", "1", "name", "x")));
        assertEquals("read-only", result("delete", "contacts", item("id", "1")));
        assertEquals("done", result("delete", "contacts", item("id", "2")));
        assertEquals("gone", result("delete", "contacts", item("id", "2")));
        assertEquals("done", result("change", "contacts", item("id", "4", "name", "Flo", "number", "5")));
        assertEquals("Flo", list("contacts").get(2).getString("name"));
        assertEquals("5", list("contacts").get(2).getString("number"));
        assertEquals("partly writable", "done", result("delete", "contacts", item("id", "4")));
        List<JSONObject> reply = phone.ask("{\"op\":\"delete\",\"kind\":\"contacts\",\"all\":true}");
        assertEquals(1, reply.get(0).getInt("count"));
        assertEquals("Ann", list("contacts").get(0).getString("name"));
        assertEquals(1, list("contacts").size());
        for (int i = 0; i < 60; ++i) phone.contacts.addRaw(100 + i, null, "Gus");
        phone.contacts.broken = 155;
        reply = phone.ask("{\"op\":\"delete\",\"kind\":\"contacts\",\"all\":true}");
        assertFalse(reply.get(0).getBoolean("done"));
        assertEquals(50, reply.get(0).getInt("count"));
    }

    @Test
    public void messagesComeNewestFirstAndWithoutDrafts() throws Exception {
        phone.messages.add(LARGE, 70000, "+1*|", STRANGE, 1000, 1);
        phone.messages.add(2, 3, null, null, 2000, 2);
        phone.messages.add(3, 3, "1", "draft", 3000, 3);
        List<JSONObject> messages = list("messages");
        assertEquals(2, messages.size());
        assertEquals("2", messages.get(0).getString("id"));
        assertEquals("", messages.get(0).getString("text"));
        JSONObject old = messages.get(1);
        assertEquals("5000000000", old.getString("id"));
        assertEquals("70000", old.getString("thread"));
        assertEquals(STRANGE, old.getString("text"));
        assertEquals(1000, old.getLong("time"));
        assertTrue(old.getString("date").matches("19[67]\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:01"));
    }

    @Test
    public void aMessageGoesOnlyWhenItFitsAndThePhoneLetsIt() throws Exception {
        phone.messages.add(300, 12, "1", "a", 1, 1);
        phone.messages.add(44, 12, "1", "b", 1, 1);
        assertEquals("gone", result("delete", "messages", item("id", "300", "thread", "13")));
        phone.letWriteMessages(false);
        assertEquals("app-op", result("delete", "messages", item("id", "300", "thread", "12")));
        phone.letWriteMessages(true);
        phone.messages.writable = false;
        assertEquals("The phone says that it is allowed, and keeps the message.",
                "app-op", result("delete", "messages", item("id", "300", "thread", "12")));
        phone.messages.writable = true;
        assertEquals("done", result("delete", "messages", item("id", "300", "thread", "12")));
        assertEquals("44", list("messages").get(0).getString("id"));
    }

    @Test
    public void aMessageIsSentWholeOrTheReasonIsTold() throws Exception {
        String text = STRANGE.replace("\0", "") + new String(new char[300]).replace('\0', 'x');
        assertEquals("done", result("send", "messages", item("number", "1", "text", text)));
        assertEquals(text, FakePhone.sentText);
        FakePhone.radio = android.telephony.SmsManager.RESULT_ERROR_RADIO_OFF;
        assertEquals("not-sent", result("send", "messages", item("number", "1", "text", "x")));
        assertEquals("bad-request", result("send", "messages", item("number", "", "text", "x")));
        FakePhone.radio = android.app.Activity.RESULT_OK;
        if (android.os.Build.VERSION.SDK_INT <= 26) {
            shadowOf(phone.application).denyPermissions("android.permission.READ_PHONE_STATE");
            assertEquals("permission", result("send", "messages", item("number", "1", "text", "x")));
        } else {
            shadowOf((TelephonyManager) phone.application.getSystemService("phone")).setPhoneCount(2);
            assertEquals("no SIM card chosen", "not-sent",
                    result("send", "messages", item("number", "1", "text", "x")));
            ShadowSubscriptionManager.setDefaultSmsSubscriptionId(1);
            assertEquals("done", result("send", "messages", item("number", "1", "text", "x")));
        }
    }

    @Test
    public void filesThatArePendingOrInTheTrashAreNotThere() throws Exception {
        android.net.Uri audio = MediaStore.Audio.Media.EXTERNAL_CONTENT_URI;
        phone.media.add(audio, LARGE, "/a/" + STRANGE + ".mp3", 3000000000L, "is_ringtone");
        phone.media.add(audio, 2, null, 1, null);
        if (android.os.Build.VERSION.SDK_INT >= 29) phone.media.add(audio, 3, "/p", 1, "is_pending");
        if (android.os.Build.VERSION.SDK_INT >= 30) phone.media.add(audio, 4, "/t", 1, "is_trashed");
        List<JSONObject> music = list("music");
        assertEquals(1, music.size());
        assertEquals("/a/" + STRANGE + ".mp3", music.get(0).getString("path"));
        assertEquals(3000000000L, music.get(0).getLong("size"));
        assertEquals("", music.get(0).getString("artist"));
        assertTrue(music.get(0).getBoolean("ring"));
        assertEquals(1, phone.ask("{\"op\":\"count\",\"kind\":\"music\"}").get(0).getInt("count"));
    }

    @Test
    public void aFileGoesWhenIdAndPathFit() throws Exception {
        File file = phone.file("photo/one.jpg");
        android.net.Uri images = MediaStore.Images.Media.EXTERNAL_CONTENT_URI;
        phone.media.add(images, 70000, file.getPath(), 1, null);
        phone.media.add(images, 70001, file.getPath() + ".not", 1, null);
        phone.media.add(images, 70002, "/no card/one.jpg", 1, null);
        String path = file.getPath();
        assertEquals("gone", result("delete", "photos", item("id", "4464", "path", path)));
        assertEquals("gone", result("delete", "photos", item("id", "70000", "path", path + "x")));
        assertEquals("bad-request", result("delete", "photos", item("id", "70000")));
        assertTrue(file.exists());
        assertEquals("done", result("delete", "photos", item("id", "70000", "path", path)));
        assertFalse(file.exists());
        assertEquals("gone", result("delete", "photos", item("id", "70001", "path", path + ".not")));
        assertEquals("failed", result("delete", "photos", item("id", "70002", "path", "/no card/one.jpg")));
        assertEquals(1, list("photos").size());
    }

    @Test
    public void booksAreKnownByTheirEndingAndGoByTheirPath() throws Exception {
        File book = phone.file("book/A tale.EPUB");
        android.net.Uri files = MediaStore.Files.getContentUri("external");
        phone.media.add(files, 1, book.getPath(), 1, null);
        phone.media.add(files, 2, phone.file("book/x.bin").getPath(), 1, null);
        List<JSONObject> books = list("books");
        assertEquals(1, books.size());
        assertEquals(book.getParent(), books.get(0).getString("folder"));
        assertEquals("gone", result("delete", "books", item("path", book.getParent() + "/x.bin")));
        assertEquals("done", result("delete", "books", item("path", book.getPath())));
        assertFalse(book.exists());
    }

    @Test
    public void addedFilesAreFoundByTheirNameAlone() throws Exception {
        FakePhone.Scanner.scanned.clear();
        File song = phone.file("Music/*a|.mp3");
        phone.file("Other/none.mp3");
        File inFolder = phone.file("photo/trip/1.jpg");
        assertEquals("done", result("add", "files", item("path", "/home/ann/*a|.mp3")));
        assertEquals("done", result("add", "files", item("path", "/home/ann/trip/")));
        assertEquals(java.util.Arrays.asList(song.getPath(), inFolder.getPath()), FakePhone.Scanner.scanned);
        assertEquals("gone", result("add", "files", item("path", "/home/ann/none.mp3")));
        for (String bad : new String[] {"", "/", "..", "/a/../.."}) {
            assertEquals(bad, "bad-request", result("add", "files", item("path", bad)));
        }
    }

    @Test
    public void aProviderThatFailsIsToldWithItsReason() throws Exception {
        phone.media.database.execSQL("DROP TABLE video");
        assertEquals("failed", errorOf("{\"op\":\"list\",\"kind\":\"videos\"}"));
    }
}
