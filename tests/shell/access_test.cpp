// The way of the Tab key through each page, and room for every text.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>

#include "access_walk.h"
#include "managers/sms_tablesource.h"
#include "shell/text_label.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

QString name_of(QWidget* widget) {
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
    return told ? told->text(QAccessible::Name) : QString();
}

QStringList names_of(const QList<QWidget*>& controls) {
    QStringList names;
    for (const QWidget* const control : controls) names << control->objectName();
    return names;
}

const QStringList toolbar = {"m_BT_MyAndroid", "m_BT_Contacts", "m_BT_SMS",   "m_BT_Apps",
                             "m_BT_Music",     "m_BT_Photo",    "m_BT_Video", "m_BT_Book"};

/// A button inside a field shows its picture alone.
bool is_a_sign(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget->parentWidget()) != nullptr;
}

class Access : public testing::Test {
  protected:
    Access() {
        open.fill();
        open.connect();
    }
    static void every_label_is_told_as_it_reads(QWidget& window) {
        for (auto* const label : window.findChildren<QLabel*>())
            if (label->isVisible()) {
                EXPECT_EQ(name_of(label), label->text());
            }
    }
    /// Elided labels say the rest in their tool tip; everything else must have its room.
    static void nothing_is_clipped(QWidget& window) {
        for (auto* const widget : window.findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<QLabel*>(widget);
            const auto* const button = qobject_cast<QAbstractButton*>(widget);
            if (is_a_sign(widget)) continue;
            const bool has_text = !(label    ? label->text()
                                    : button ? button->text()
                                             : QString())
                                       .isEmpty();
            if (!widget->isVisible() || !has_text || qobject_cast<Text_Label*>(widget)) continue;
            const int width = widget->width();
            const int needed = widget->hasHeightForWidth() ? widget->heightForWidth(width)
                                                           : widget->sizeHint().height();
            EXPECT_GE(widget->height(), needed) << widget->objectName().toStdString();
            if (!widget->hasHeightForWidth()) {
                EXPECT_GE(width, widget->sizeHint().width()) << widget->objectName().toStdString();
            }
        }
    }
    static void check(QWidget& window, const QStringList& controls) {
        every_label_is_told_as_it_reads(window);
        EXPECT_EQ(names_of(tab_path(window)).join(' ').toStdString(),
                  controls.join(' ').toStdString());
        nothing_is_clipped(window);
    }
    void check_page(const QStringList& controls) {
        open.turn();
        check(*open.window, toolbar + controls);
        for (const QSize size : {QSize(900, 600), QSize(1920, 1080)}) {
            open.window->resize(size);
            open.turn();
            EXPECT_EQ(open.window->size(), size);
            nothing_is_clipped(*open.window);
        }
    }
    void check_dialog(const char* opened_by, const QStringList& controls) {
        open.click(opened_by);
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_TRUE(box) << opened_by;
        check(*box, controls);
        box->close();
    }

    Open_Window open;
};

TEST_F(Access, start_page_beside_the_summary) {
    check_page({"OnBT_Refresh", "m_BT_Refresh", "m_BT_Bottom_Contacts", "m_BT_Bottom_SMS",
                "m_BT_Bottom_Apps"});
}

TEST_F(Access, contacts) {
    open.click("m_BT_Contacts");
    check_page({"m_table_Contacts_search", "OnBT_AddContacts", "OnBT_ModifyContacts",
                "OnBT_DeleteContacts", "OnBT_Contacts_DelAll", "OnBT_Contacts_Refresh",
                "OnBT_ContactsExport", "OnBT_ContactsImport", "m_table_Contacts"});
    check_dialog("OnBT_AddContacts",
                 {"m_Edit_Name", "m_Edit_PhoneNumber", "OnBT_OK", "OnBT_Cancel"});
    EXPECT_EQ(name_of(open.find("m_table_Contacts")), "Contacts");
    for (const char* status : {"m_LB_ps", "m_LB_Tips_Contacts"})
        EXPECT_EQ(open.find(status)->accessibleDescription(), "Status");
}

TEST_F(Access, messages) {
    const QStringList page = {"m_table_SMS_search", "OnBT_SendSMS", "OnClick_Button_Delete",
                              "OnBT_SMS_DeleteAll", "OnBT_Refresh", "OnBT_Export_SMS",
                              "m_table_SMS"};
    open.click("m_BT_SMS");
    check_page(page + QStringList{"m_LB_sms_content"});
    g_sms_tablesource->m_LB_Tel.set_text("555");
    g_sms_tablesource->m_LB_SMS_DateTime.set_text("today");
    check_page(page + QStringList{"m_LB_Tel", "m_LB_SMS_DateTime", "m_LB_sms_content"});
    EXPECT_EQ(name_of(open.find("m_LB_sms_content")), "Empty");
    check_dialog("OnBT_SendSMS",
                 {"m_ET_Send_Contects_telname", "OnBT_Contacts", "m_ET_SMS_Content", "OnBT_Send"});
}

TEST_F(Access, pages_of_trouble) {
    open.document->hidden_some(true);
    open.document->displayViewController(DEFINE_VIEW_AllowPCConnect);
    check_page({"OnBT_Refresh", "trouble_scroll"});
    open.document->displayViewController(DEFINE_VIEW_SettingPhoneUSB);
    check_page({"OnBT_Refresh", "trouble_scroll", "command", "command"});
}

}  // namespace
}  // namespace velk
