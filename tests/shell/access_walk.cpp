#include "access_walk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QShortcut>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <functional>
#include <map>

#include "drawn_texts.h"
#include "shell/look.h"
#include "shell/text_label.h"

namespace velk {

namespace {

constexpr int most_children = 100;  // a table tells of every cell; the first are like the others
constexpr int most_steps = 100;

QString called(const QWidget* widget) {
    return QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
}

bool is_told_of(QAccessible::Role role) {
    switch (role) {
        case QAccessible::Button:
        case QAccessible::ButtonMenu:
        case QAccessible::ButtonDropDown:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::ComboBox:
        case QAccessible::EditableText:
        case QAccessible::ProgressBar:
        case QAccessible::Table:
        case QAccessible::List:
        case QAccessible::Tree:
        case QAccessible::ColumnHeader:
        case QAccessible::MenuItem:
        case QAccessible::Dialog:
        case QAccessible::AlertMessage:
            return true;
        default:
            return false;
    }
}

void for_each_told(QAccessibleInterface* one,
                   const std::function<void(QAccessibleInterface&)>& look) {
    if (!one || !one->isValid() || one->state().invisible || one->state().disabled) return;
    look(*one);
    for (int i = 0; i < std::min(one->childCount(), most_children); ++i)
        for_each_told(one->child(i), look);
}

bool is_control(const QWidget* widget) {
    const auto* const view = qobject_cast<const QAbstractItemView*>(widget);
    if (qobject_cast<const QHeaderView*>(view)) return false;  // a part of its table
    return view || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QTextEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QScrollArea*>(widget);
}

QList<QWidget*> controls_of(QWidget& window) {
    QList<QWidget*> found;
    for (auto* const widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && widget->isVisible() && widget->isEnabled() &&
            is_control(widget))
            found << widget;
    return found;
}

/// What a menu of the window can do now, and by which name.
QList<QAction*> usable_entries(const QWidget& window) {
    QList<QAction*> found;
    for (const auto* const bar : window.findChildren<QMenuBar*>())
        for (const QAction* const menu : bar->actions())
            if (menu->isEnabled() && menu->menu())
                for (QAction* const entry : menu->menu()->actions())
                    if (entry->isEnabled() && !entry->isSeparator()) found << entry;
    return found;
}

/// The entry that does what the button does. What leads somewhere stands on the window twice.
bool has_entry(const QAbstractButton& button, const QList<QAction*>& entries) {
    static const std::map<QString, QString> same = {{"m_BT_Refresh", "OnBT_Refresh"},
                                                    {"m_BT_Bottom_Contacts", "m_BT_Contacts"},
                                                    {"m_BT_Bottom_SMS", "m_BT_SMS"},
                                                    {"m_BT_Bottom_Apps", "m_BT_Apps"}};
    const auto found = same.find(button.objectName());
    const QString name = found == same.end() ? button.objectName() : found->second;
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    return std::any_of(entries.begin(), entries.end(), [&](const QAction* entry) {
        return !entry->shortcut().isEmpty() &&
               (entry->objectName() == name || (tool && tool->defaultAction() == entry));
    });
}

/// A sign in a field does something to the field's text, which keys write and delete.
bool is_in_a_field(const QWidget* widget, const QList<QWidget*>& reached) {
    return qobject_cast<const QLineEdit*>(widget->parentWidget()) &&
           reached.contains(widget->parentWidget());
}

QRect on_window(const QWidget* widget) {
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

/// Whether the eye comes to `b` first: it stands to the left in the same line, or in a line
/// further up and not in a column of its own to the right.
bool stands_before(const QRect& b, const QRect& a) {
    const bool same_line = b.center().y() >= a.top() && b.center().y() <= a.bottom();
    if (same_line) return b.left() < a.left();
    return b.bottom() < a.top() && b.left() <= a.right();
}

bool is_enabled_at(QWidget& window, const QPoint& place) {
    if (const auto* const menu = qobject_cast<QMenu*>(&window)) {
        const QAction* const entry = menu->actionAt(place);
        return !entry || entry->isEnabled();
    }
    QWidget* const widget = window.childAt(place);
    if (const auto* const bar = qobject_cast<QMenuBar*>(widget)) {
        const QAction* const entry = bar->actionAt(bar->mapFrom(&window, place));
        return !entry || entry->isEnabled();
    }
    return !widget || widget->isEnabled();
}

}  // namespace

QStringList nameless(QWidget& window) {
    QStringList found;
    for_each_told(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& one) {
        const auto* const widget = qobject_cast<QWidget*>(one.object());
        const QString what = widget ? called(widget) : QString::number(one.role());
        if (is_told_of(one.role()) && one.text(QAccessible::Name).isEmpty()) found << what;
        QAccessibleTableCellInterface* const cell = one.tableCellInterface();
        if (!cell || one.role() != QAccessible::Cell) return;
        const auto titles = cell->columnHeaderCells();
        if (titles.isEmpty() || titles.first()->text(QAccessible::Name).isEmpty())
            found << QStringLiteral("cell ") + one.text(QAccessible::Name);
        // The toolkit makes these anew and leaves them to whoever asked.
        for (QAccessibleInterface* const title : titles)
            QAccessible::deleteAccessibleInterface(QAccessible::registerAccessibleInterface(title));
    });
    return found;
}

QList<QWidget*> tab_path(QWidget& window) {
    QList<QWidget*> path;
    window.setFocus();
    QTest::keyClick(&window, Qt::Key_Tab);
    QWidget* const first = window.focusWidget();
    do {
        path << window.focusWidget();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && path.size() < most_steps);
    return path;
}

QStringList without_keys(QWidget& window) {
    QStringList found;
    const QList<QWidget*> reached = tab_path(window);
    const QList<QAction*> entries = usable_entries(window);
    const bool has_menus = !entries.isEmpty();
    for (QWidget* const control : controls_of(window)) {
        const auto* const button = qobject_cast<QAbstractButton*>(control);
        const bool by_entry = button && has_entry(*button, entries);
        if (is_in_a_field(control, reached) || by_entry) continue;
        const bool by_tab = reached.contains(control) || reached.contains(control->focusProxy());
        // Where there are menus, a button has an entry in them besides.
        if (!by_tab || (button && has_menus)) found << called(control);
    }
    for (const QAction* const entry : entries)
        if (entry->shortcut().isEmpty()) found << entry->text();
    return found;
}

QStringList jumps_of_tab(QWidget& window) {
    QStringList found;
    const QList<QWidget*> path = tab_path(window);
    for (qsizetype i = 1; i < path.size(); ++i)
        if (stands_before(on_window(path[i]), on_window(path[i - 1])))
            found << called(path[i - 1]) + QStringLiteral(" to ") + called(path[i]);
    return found;
}

QStringList shared_keys(QWidget& window) {
    std::map<QString, QSet<const QObject*>> waiting;
    const auto waits = [&](const QKeySequence& keys, const QObject* who) {
        if (!keys.isEmpty()) waiting[keys.toString()] << who;
    };
    for (const auto* const action : usable_entries(window))
        for (const QKeySequence& keys : action->shortcuts()) waits(keys, action);
    for (auto* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != &window) continue;
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget))
            waits(button->shortcut(), button);
        for (const QAction* const action : widget->actions())
            if (action->isEnabled() && action->isVisible() &&
                action->shortcutContext() == Qt::WindowShortcut)
                for (const QKeySequence& keys : action->shortcuts()) waits(keys, action);
        for (const auto* const one : widget->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
            if (one->isEnabled() && one->context() == Qt::WindowShortcut) waits(one->key(), one);
    }
    for (const auto* const bar : window.findChildren<QMenuBar*>())
        for (const QAction* const menu : bar->actions())
            if (menu->isEnabled()) waits(QKeySequence::mnemonic(menu->text()), menu);
    QStringList found;
    for (const auto& [keys, who] : waiting)
        if (who.size() > 1) found << keys;
    return found;
}

QStringList pale_texts(QWidget& window) {
    QStringList found;
    for (const Drawn_Text& one : drawn_texts(window)) {
        const double stands_out = contrast(one.ink, one.ground);
        if (stands_out < 4.5 && is_enabled_at(window, one.place.center()))
            found << QStringLiteral("%1 (%2 on %3: %4)")
                         .arg(one.text, one.ink.name(), one.ground.name())
                         .arg(stands_out);
    }
    return found;
}

QStringList clipped_texts(QWidget& window) {
    QStringList found;
    for (auto* const widget : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<QLabel*>(widget);
        const auto* const button = qobject_cast<QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        // A button inside a field shows its picture alone.
        const bool is_a_sign = qobject_cast<QLineEdit*>(widget->parentWidget());
        if (!widget->isVisible() || text.isEmpty() || is_a_sign ||
            qobject_cast<Text_Label*>(widget))
            continue;
        const QSize hint = widget->sizeHint();
        const bool wraps = widget->hasHeightForWidth();
        const int height = wraps ? widget->heightForWidth(widget->width()) : hint.height();
        if (widget->height() < height || (!wraps && widget->width() < hint.width())) found << text;
    }
    return found;
}

}  // namespace velk
