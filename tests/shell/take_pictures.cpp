// take_pictures DIR: pictures of every page, in a light and a dark desktop, in several sizes.
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <cstdio>

#include "base/text.h"
#include "managers/contacts_tablesource.h"
#include "managers/sms_send.h"
#include "managers/sms_tablesource.h"
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

constexpr const char* long_text =
    "Hello!\n\nThe train leaves at 17:42 from platform 4, so let us meet at the clock a little "
    "earlier. I bring the tickets, you bring the bread.\n\nنلتقي غدا في المحطة عند الساعة الخامسة "
    "مساء\n\nSee you there 🙂";

void add_messages(int count) {
    SMS_TableSource& messages = *g_sms_tablesource;
    for (int i = 1; i <= count; ++i)
        messages.table_rows.push_back({std::to_string(i), "+49 170 5550123", long_text, long_text,
                                       "2014-05-06 07:08:09", sms_type_inbox, "", "", ""});
    messages.m_table.reload();
    messages.quiet.tell_of_list("The phone counts 43, but 40 came. Refresh tries again.");
}

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
        open_.connect();
        take("2-connected");
        open_.click("m_BT_MyAndroid");
        take("3-summary");
        open_.fill("A phone whose name is much too long for any window هاتف محمد الجديد");
        take("3-summary-long");
        open_.click("m_BT_Contacts");
        take("4-contacts-empty");
        add_contacts(240);
        open_.turn();
        open_.find<QAbstractItemView>("m_table_Contacts")
            ->setCurrentIndex(row("m_table_Contacts", 2));
        take("4-contacts");
        auto* const search = open_.find<QLineEdit>("m_table_Contacts_search");
        search->setText("nunez");
        take("4-contacts-found");
        search->clear();
        open_.find<QAbstractItemView>("m_table_Contacts")
            ->setCurrentIndex(row("m_table_Contacts", 1));
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
        add_messages(40);
        open_.click("m_BT_SMS");
        open_.find<QAbstractItemView>("m_table_SMS")->setCurrentIndex(row("m_table_SMS", 0));
        take("4-messages");
        open_.click("OnBT_SendSMS");
        g_sms_tablesource->composer().m_ET_SMS_Content.set_text(long_text);
        take_box("9-send");
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

    QModelIndex row(const char* table, int number) {
        return open_.find<QAbstractItemView>(table)->model()->index(number, 2);
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
