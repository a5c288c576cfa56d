#include "shell/main_menu.h"

#include <QAction>
#include <QMenu>
#include <utility>

#include "session/main_document.h"
#include "shell/content_stack.h"
#include "shell/section_entries.h"
#include "shell/section_page.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

/// How a title of the program's is written where "&" marks a key.
QString menu_title(const std::string& title) {
    return shown(title).replace(u'&', QStringLiteral("&&"));
}

}  // namespace

MainMenu_Main::MainMenu_Main(const Window_Parts& parts, const Content_Stack& content,
                             QWidget* window)
    : QMenuBar(window), parts_(parts), content_(content) {
    setObjectName(QStringLiteral("MainMenu_Main"));
    build();
    parts.binding.bind(parts.document.m_Control_Box1, this, [this] { follow_section(); });
}

void MainMenu_Main::build() {
    QMenu* const product = add_menu("${ProductName}");
    about = add_item(product, "about", "${About}", "Shift+F1");
    product->addSeparator();
    hide_window = add_item(product, "hide", "${Hide}", "Ctrl+H");
    product->addSeparator();
    quit = add_item(product, "quit", "${Quit}", "Ctrl+Q");
    QMenu* const file = add_menu("&File");
    add_files = add_item(file, "add_files", "Add File(s)...", "Ctrl+O");
    add_folder = add_item(file, "add_folder", "Add Folder...", "Ctrl+Shift+O");
    file->addSeparator();
    remove_agent = add_item(file, "remove_agent", "Remove Velk From the Phone...", "Ctrl+Shift+U");
    parts_.guards.connect_action(
        remove_agent,
        [&document = parts_.document] {
            return g_connected_adb && g_can_click_refresh && document.desktop().takes_input();
        },
        [&document = parts_.document] { document.OnMenu_RemoveAgent(); });
    file->addSeparator();
    close_window = add_item(file, "close_window", "Close Window", "Ctrl+W");
    build_view_menu();
    section_menu_ = add_menu("&Section");
    section_menu_->setObjectName(QStringLiteral("section_menu"));
    QMenu* const window = add_menu("&Window");
    minimize = add_item(window, "minimize", "Minimize", "Ctrl+M");
    window->addSeparator();
    product_window = add_item(window, "product_window", "${ProductName}", "Ctrl+Shift+M");
    product_window->setCheckable(true);
    help_menu = add_menu("&Help");
    help = add_item(help_menu, "help", "${Help}", "F1");
    support = add_item(help_menu, "support", "Support", "Ctrl+F1");
    help_menu->addSeparator();
    save_report = add_item(help_menu, "save_report", "Save report...", "Ctrl+Shift+F1");
}

void MainMenu_Main::build_view_menu() {
    view_menu_ = add_menu("&View");
    refresh = add_item(view_menu_, "OnBT_Refresh", "Refresh", keys_of_refresh);
    MainDocument& document = parts_.document;
    // A section has a Refresh of its own in the place of this one, and its keys.
    parts_.guards.connect_action(
        refresh,
        [&document] {
            return g_can_click_refresh && !shown_section(document) &&
                   document.desktop().takes_input();
        },
        [&document] { document.OnBT_Refresh(); });
    view_menu_->addSeparator();
    int number = 0;
    for (const Section_Entry& entry : section_entries) add_place(entry, number++);
}

void MainMenu_Main::add_place(const Section_Entry& entry, int number) {
    const std::string keys = "Ctrl+" + std::to_string(number);
    Button& outlet = parts_.document.*entry.outlet;
    QAction* const place = add_item(view_menu_, outlet.name().c_str(), "", keys.c_str());
    place->setCheckable(true);
    parts_.binding.bind(outlet, place,
                        [&outlet, place] { place->setText(menu_title(outlet.title())); });
    const auto mark = [&box = parts_.document.m_Control_Box1, &entry, place] {
        place->setChecked(is_shown(entry, box));
    };
    parts_.binding.bind(parts_.document.m_Control_Box1, place, mark);
    const auto go = [&document = parts_.document, &entry, mark] {
        (document.*entry.handler)();
        mark();  // the click has ticked it, whatever the document has decided
    };
    parts_.guards.connect_action(place, nullptr, go);
}

QMenu* MainMenu_Main::add_menu(const char* title) {
    return addMenu(QString::fromLatin1(title));
}

// The items belong to the bar, and so to its window: what keeps input from the window keeps it from
// their keys as well.
QAction* MainMenu_Main::add_item(QMenu* menu, const char* name, const char* title,
                                 const char* keys) {
    auto* const item = new QAction(QString::fromLatin1(title), this);
    item->setObjectName(QString::fromLatin1(name));
    if (keys) item->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(keys)));
    item->setMenuRole(QAction::NoRole);
    menu->addAction(item);
    return item;
}

void MainMenu_Main::follow_section() {
    section_menu_->clear();
    const auto* const page = qobject_cast<const Section_Page*>(content_.shown_page());
    if (page) section_menu_->addActions(page->menu_entries());
    section_menu_->setEnabled(page && view_menu_->isEnabled());
    parts_.guards.look_again();
}

void MainMenu_Main::enable_own_controls(bool enable) {
    view_menu_->setEnabled(enable);
    section_menu_->setEnabled(enable && !section_menu_->isEmpty());
}

void MainMenu_Main::name_after(const QString& product) {
    const std::pair<const char*, QString> titles[] = {
        {"${About}", QStringLiteral("About ") + product},
        {"${Hide}", QStringLiteral("Hide ") + product},
        {"${Quit}", QStringLiteral("Quit ") + product},
        {"${Help}", product + QStringLiteral(" Help")},
        {"${ProductName}", product}};
    for (QAction* const item : findChildren<QAction*>())
        for (const auto& [placeholder, title] : titles)
            if (item->text() == QLatin1String(placeholder)) item->setText(title);
}

}  // namespace velk
