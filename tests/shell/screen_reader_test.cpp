// What a screen reader is told while things happen, and what it can ask for.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleBridgePlugin>
#include <QtPlugin>
#include <utility>

#include "session/section_views.h"
#include "window_test.h"

namespace velk {

QStringList heard_news;

/// Stands where a screen reader listens.
class Hearing : public QAccessibleBridge {
  public:
    void setRootObject(QAccessibleInterface*) override {}
    void notifyAccessibilityUpdate(QAccessibleEvent* event) override {
        if (event->type() == QAccessible::Alert)
            heard_news << event->accessibleInterface()->text(QAccessible::Name);
    }
};

class Hearing_Plugin : public QAccessibleBridgePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "hearing.json")

  public:
    // The toolkit asks once, and never lets it go.
    QAccessibleBridge* create(const QString&) override {
        static QAccessibleBridge* const hearing = new Hearing;
        return hearing;
    }
};

class Screen_Reader : public testing::Test {
  protected:
    Screen_Reader() {
        open.connect();
        EXPECT_TRUE(wait_until([this] { return !open.document->is_at_work(); }));
    }
    /// What was told since the last call.
    std::string heard() {
        open.turn();
        return std::exchange(heard_news, {}).join(" | ").toStdString();
    }

    Open_Window open;
};

TEST_F(Screen_Reader, hears_of_every_line_that_comes_to_say_something_else_and_once) {
    MainDocument& document = *open.document;
    open.click("m_BT_Contacts");
    heard();
    Label* const lines[] = {&document.m_LB_ps, &document.m_LB_Port, &document.busy.m_LB_Busy,
                            document.m_Control_Box1.view()->section()->status,
                            document.m_Control_Box1.view()->section()->quiet};
    for (Label* const line : lines) {
        line->set_text("News.");
        EXPECT_EQ(heard(), "News.") << line->name();
        line->set_text("News.");
        EXPECT_EQ(heard(), "") << line->name();
        line->set_text("");
        EXPECT_EQ(heard(), "") << line->name();
    }
    document.hidden_some(true);
    auto& trouble = dynamic_cast<View_SettingPhoneUSB&>(
        *document.m_views[static_cast<std::size_t>(DEFINE_VIEW_SettingPhoneUSB)]);
    document.displayViewController(DEFINE_VIEW_SettingPhoneUSB);
    heard();
    trouble.m_LB_Trouble.set_text("No phone.");
    EXPECT_EQ(heard(), "No phone.");
}

TEST_F(Screen_Reader, reads_what_is_shown_what_is_off_and_what_a_table_holds) {
    open.click("m_BT_Photo");
    const auto told = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(open.find(name));
    };
    EXPECT_EQ(told("m_BT_Photo")->text(QAccessible::Description), "Shown now");
    EXPECT_EQ(told("m_BT_Book")->text(QAccessible::Description), "");
    EXPECT_TRUE(told("view_list")->state().checked);
    EXPECT_FALSE(told("view_pictures")->state().checked);
    EXPECT_EQ(told("m_table_Photo")->text(QAccessible::Name), "Photos");
    EXPECT_NE(told("m_table_Photo")->text(QAccessible::Description), "");
}

}  // namespace velk

Q_IMPORT_PLUGIN(Hearing_Plugin)

#include "screen_reader_test.moc"
