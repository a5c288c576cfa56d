// take_pictures DIR: pictures of every page, in a light and a dark desktop, in several sizes.
#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <cstdio>

#include "base/text.h"
#include "managers/contacts_tablesource.h"
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
        open_.document->show_allow_pc_connect_view();
        take("5-allow-pc");
        open_.document->show_setting_phone_usb_view();
        take("6-usb-debugging");
        g_can_click_refresh = 0;
        open_.document->show_message("Please make sure you enter the Name!");
        take("7-disabled");
        g_can_click_refresh = 1;
        for (QWidget* const box : QApplication::topLevelWidgets())
            if (qobject_cast<QMessageBox*>(box)) save(box, "8-alert");
    }

  private:
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
