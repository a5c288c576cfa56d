#include "shell/toolbar.h"

#include <QHBoxLayout>

#include "shell/section_entries.h"
#include "shell/toolbar_button.h"

namespace velk {

namespace {

QColor caption_colour(const Button& button) {
    const Colour colour = button.colour();
    return button.coloured() ? QColor(colour.red, colour.green, colour.blue) : QColor();
}

}  // namespace

Toolbar::Toolbar(const Window_Parts& parts) : document_(parts.document) {
    setObjectName(QStringLiteral("toolbar"));
    setAttribute(Qt::WA_StyledBackground);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(small_space, 6, small_space, 6);
    row->setSpacing(4);
    for (const Section_Entry& entry : section_entries) {
        auto* const button = new Toolbar_Button(QString::fromLatin1(entry.icon), this);
        row->addWidget(button);
        Button& outlet = document_.*entry.outlet;
        bind_button(parts.binding, outlet, button);
        parts.binding.bind(outlet, button, [&outlet, button] {
            button->set_caption_colour(caption_colour(outlet));
            button->updateGeometry();
        });
        parts.guards.connect_button(
            button, nullptr,
            [&document = document_, handler = entry.handler] { (document.*handler)(); });
    }
    row->addStretch();
    parts.binding.bind(document_.m_Control_Box1, this, [this] { mark_current(); });
}

void Toolbar::mark_current() {
    for (const Section_Entry& entry : section_entries)
        findChild<Toolbar_Button*>(shown((document_.*entry.outlet).name()))
            ->set_current(is_shown(entry, document_.m_Control_Box1));
}

}  // namespace velk
