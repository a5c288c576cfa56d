// take_pictures DIR: pictures of every page, in a light and a dark desktop, in several sizes.
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTableView>
#include <cstdio>

#include "base/text.h"
#include "managers/contacts_tablesource.h"
#include "shell/section_page.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace {

using namespace velk;

constexpr const char* long_name =
    "A name that is far too long to fit into any column of a small window and so has to end in an "
    "ellipsis somewhere before its end";

const char* const names[] = {"Ada Lindqvist", "محمد عبد الرحمن", "Øystein Ærø",
                             "林小雨",        "שלמה כהן",        "Анна Петрова",
                             "山田太郎",      "José Ñuñez",      long_name};

void add_contacts(int count) {
    Contacts_TableSource& contacts = *g_contacts_tablesource;
    for (int i = 0; i < count; ++i)
        contacts.table_rows.push_back({std::to_string(i + 1), std::to_string(900 + i),
                                       names[static_cast<std::size_t>(i) % std::size(names)],
                                       format("+49 170 %07d", i * 7919)});
    contacts.m_table.reload();
    contacts.m_LB_Tips_Contacts.set_text(
        format("There are %d contact(s) on your Mobile Phone.", count));
}

struct Message {
    std::string no, number, text, when, type;
    static const std::array<Row_Column<Message>, 5>& row_columns() {
        static const std::array<Row_Column<Message>, 5> columns = {{
            {{.identifier = "no", .title = "No.", .comparison = Comparison::number, .width = 6},
             &Message::no},
            {{.identifier = "number", .title = "Phone Number", .width = 18}, &Message::number},
            {{.identifier = "text", .title = "Text", .width = 24, .wide = true}, &Message::text},
            {{.identifier = "when", .title = "Date Time", .width = 20}, &Message::when},
            {{.identifier = "type", .title = "Type", .width = 8}, &Message::type},
        }};
        return columns;
    }
};

constexpr const char* long_text =
    "Hello!\n\nThe train leaves at 17:42 from platform 4, so let us meet at the clock a little "
    "earlier. I bring the tickets, you bring the bread.\n\nنلتقي غدا في المحطة عند الساعة الخامسة "
    "مساء\n\nSee you there 🙂";

/// A section with a detail pane, and a dialog with every kind of field.
struct Everything {
    Everything() {
        for (int i = 0; i < 40; ++i)
            rows.push_back({std::to_string(i + 1), format("+49 170 %07d", i * 7919),
                            i % 3 ? "On my way." : long_text, "2014-05-06 07:08:09",
                            i % 2 ? "Inbox" : "Outbox"});
        status.set_text("There are 40 message(s) on your Mobile Phone.");
        quiet.set_text("The phone counts 43, but 40 came. Refresh tries again.");
        dialog.window_title.set_text("Send Message......");
        dialog.fields = {
            {.caption = "To",
             .takes = &to,
             .beside = Command{.name = "OnBT_Contacts", .caption = "Contacts", .run = [] {}}},
            {.caption = "Message", .takes = &content, .many_lines = true}};
        dialog.status = &tips;
        dialog.commands = {{.name = "OnBT_Send", .caption = "Send", .icon = "send", .run = [] {}}};
        to.set_text("Ada Lindqvist(+49 170 0000000);محمد عبد الرحمن(1234);");
        content.set_text(long_text);
        tips.set_text("150 characters > 140 character,please less character to 140 characters.");
        picker.window_title.set_text("Contacts");
        picker.table = &g_contacts_tablesource->m_table;
        picker.commands = {{.name = "OnBT_OK", .caption = "OK", .run = [] {}, .is_default = true},
                           {.name = "OnBT_Cancel", .caption = "Cancel", .run = [] {}}};
    }
    void select(bool selected) {
        who.set_text(selected ? "+49 170 0000000" : "");
        when.set_text(selected ? "2014-05-06 07:08:09" : "");
        text.set_text(selected ? long_text : "");
    }

    Row_List<Message> rows;
    Table table{"m_table", rows};
    Label status{"status"}, quiet{"quiet"}, who{"who"}, when{"when"}, text{"text"}, tips{"tips"};
    Text_Field to{"to"}, content{"content"};
    Section section{
        .title = "Messages",
        .empty_text = "The messages on your phone are listed here.",
        .search_text = "Search numbers and texts",
        .table = &table,
        .status = &status,
        .quiet = &quiet,
        .detail = {.title = &who,
                   .subtitle = &when,
                   .text = &text,
                   .empty_text = "Select a message to read it here."},
        .commands = {{.name = "a", .caption = "Send", .icon = "send", .run = [] {}},
                     {.name = "b", .caption = "Delete", .icon = "delete", .run = [] {}}}};
    Dialog dialog{"SMS_Send"}, picker{"SMS_Contacts"};
};

class Photographer {
  public:
    Photographer(QString folder, QString theme, QSize size)
        : prefix_(QStringLiteral("%1/%2-%3x%4-")
                      .arg(folder, theme)
                      .arg(size.width())
                      .arg(size.height())) {
        open_.window->resize(size);
        open_.turn();
    }

    void all_pages() {
        take("1-start");
        open_.fill();
        open_.document->busy.begin("Waiting for the phone: storage sizes");
        light_a_point();
        open_.connect();
        take("2-connected");
        open_.click("m_BT_MyAndroid");
        take("3-summary");
        open_.fill(
            "A phone with a name that somebody made much too long for any window at all "
            "هاتف");
        take("3-summary-long");
        open_.fill("هاتف محمد الجديد");
        take("3-summary-rtl");
        open_.click("m_BT_Contacts");
        take("4-contacts-empty");
        add_contacts(240);
        open_.turn();
        open_.find<QAbstractItemView>("m_table_Contacts")->setCurrentIndex(row(2));
        take("4-contacts");
        auto* const search = open_.find<QLineEdit>("m_table_Contacts_search");
        search->setFocus();
        search->setText("nunez");
        take("4-contacts-found");
        search->setText("nobody");
        take("4-contacts-not-found");
        search->clear();
        open_.find<QAbstractItemView>("m_table_Contacts")->setCurrentIndex(row(1));
        open_.click("OnBT_ModifyContacts");
        take_box("9-modify");
        message_pages();
        open_.document->show_allow_pc_connect_view();
        take("5-allow-pc");
        open_.document->show_setting_phone_usb_view();
        take("6-usb-debugging");
        g_can_click_refresh = 0;
        open_.document->show_message("Please make sure you enter the Name!");
        take("7-disabled");
        g_can_click_refresh = 1;
        take_box("8-alert");
    }

  private:
    void message_pages() {
        Everything all;
        Binding binding;
        Guards guards;
        {
            Section_Page page(all.section, {*open_.document, binding, guards});
            page.setStyleSheet("velk--Section_Page { background: palette(window); }");
            page.resize(open_.find("View_Contacts")->size());
            page.show();
            all.select(true);
            page.findChild<QTableView*>()->selectRow(0);
            open_.turn();
            save(&page, "4-messages");
            all.select(false);
            page.findChild<QTableView*>()->clearSelection();
            open_.turn();
            save(&page, "4-messages-none");
        }
        open_.desktop.open_dialog(all.dialog, [] {});
        take_box("9-send");
        open_.desktop.open_dialog(all.picker, [] {});
        take_box("9-pick");
        open_.desktop.open_file_panel(
            {.kind = File_Panel::Kind::save, .title = "Save to a *.HTML file"},
            [](const std::string&) {});
        take_box("9-save");
        open_.desktop.open_file_panel(
            {.message = "Select a *.csv file", .prompt = "OK", .folders = true, .sheet = true},
            [](const std::string&) {});
        take_box("9-open");
    }

    void take_box(const char* name) {
        open_.turn();
        if (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            QTest::qWait(50);
            save(box, name);
            box->reject();
        }
        open_.turn();
    }

    QModelIndex row(int number) {
        return open_.find<QAbstractItemView>("m_table_Contacts")->model()->index(number, 2);
    }

    void light_a_point() {
        View_Start& start = *g_View_Start;
        int number = 0;
        for (Image* point : {&start.m_Image_loading_1, &start.m_Image_loading_2,
                             &start.m_Image_loading_3, &start.m_Image_loading_4}) {
            point->set_hidden(false);
            point->set_picture(++number == 2 ? g_PicFileName_LoadingAnimation_Light
                                             : g_PicFileName_LoadingAnimation_Gray);
        }
        start.m_Image_USB_Line.set_hidden(true);
        start.m_LB_Msg_ConnectPhone.set_hidden(true);
        start.m_LB_ConnectingYourPhone.set_hidden(false);
    }

    void take(const char* name) {
        open_.desktop.post([] {});
        open_.turn();
        open_.turn();
        save(open_.window.get(), name);
    }

    void save(QWidget* widget, const char* name) {
        widget->grab().save(prefix_ + QString::fromLatin1(name) + QStringLiteral(".png"));
    }

    Open_Window open_;
    QString prefix_;
};

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "Usage: take_pictures DIR\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(arguments[1]);
    QDir().mkpath(folder);
    test_application();
    for (const QString& theme : {QStringLiteral("light"), QStringLiteral("dark")}) {
        QApplication::setPalette(theme == QStringLiteral("dark") ? dark_palette()
                                                                 : light_palette());
        for (const QSize size : {QSize(1280, 800), QSize(900, 600), QSize(1920, 1080)})
            Photographer(folder, theme, size).all_pages();
    }
    return 0;
}
