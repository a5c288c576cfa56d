// Everything on the window can be reached with the keyboard and has a name to be told.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QStringList>

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

/// The controls that Tab leads through, from the first to where it starts again.
QStringList tab_path(QWidget& window) {
    QStringList path;
    window.setFocus();
    QTest::keyClick(&window, Qt::Key_Tab);
    QWidget* const first = window.focusWidget();
    do {
        path << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && path.size() < 100);
    return path;
}

const QStringList toolbar = {"m_BT_MyAndroid", "m_BT_Contacts", "m_BT_SMS",   "m_BT_Apps",
                             "m_BT_Music",     "m_BT_Photo",    "m_BT_Video", "m_BT_Book"};

class Access : public testing::Test {
  protected:
    Access() {
        open.fill();
        open.connect();
    }
    static void every_control_has_a_name(QWidget& window) {
        for (auto* const widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus)) {
                EXPECT_FALSE(name_of(widget).isEmpty()) << widget->objectName().toStdString();
            }
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
        every_control_has_a_name(window);
        EXPECT_EQ(tab_path(window).join(' ').toStdString(), controls.join(' ').toStdString());
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
    for (const int id : {DEFINE_VIEW_AllowPCConnect, DEFINE_VIEW_SettingPhoneUSB}) {
        open.document->displayViewController(id);
        check_page({"OnBT_Refresh", "trouble_scroll"});
    }
}

}  // namespace
}  // namespace velk
