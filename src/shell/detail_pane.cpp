#include "shell/detail_pane.h"

#include <QLineEdit>
#include <QTextEdit>
#include <QVBoxLayout>

#include "shell/look.h"
#include "shell/widgets.h"

namespace velk {

namespace {

constexpr int least_width = 260;
constexpr int room_of_the_frame = 11;  // the text has a frame of 5, and begins where its title does

bool says_something(const Label* label) {
    return label && !label->text().empty();
}

}  // namespace

Detail_Pane::Detail_Pane(const Detail& detail, Binding& binding, QWidget* parent) : QFrame(parent) {
    setProperty("class", "Card");
    setMinimumWidth(least_width);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(room_of_the_frame, space_between, small_space, small_space);
    column->setSpacing(small_space);
    auto* const heading = new QVBoxLayout;
    heading->setContentsMargins(space_between - room_of_the_frame, 0, 0, 0);
    heading->setSpacing(2);
    column->addLayout(heading);
    if (detail.title) {
        auto* const title = new QLineEdit(this);
        title->setFont(scaled_font(1.2, true));
        bind_reading(binding, *detail.title, title);
        heading->addWidget(title);
    }
    if (detail.subtitle) {
        auto* const subtitle = new QLineEdit(this);
        subtitle->setProperty("quiet", true);
        bind_reading(binding, *detail.subtitle, subtitle);
        heading->addWidget(subtitle);
    }
    auto* const text = new QTextEdit(this);
    text->setProperty("reading", true);
    text->document()->setDocumentMargin(0);
    column->addWidget(text, 1);
    bind_reading(binding, *detail.text, text);
    // An empty text of a selected row is not the same as no row.
    const auto invite = [detail, text] {
        const bool nothing = !says_something(detail.title) && !says_something(detail.subtitle) &&
                             !says_something(detail.text);
        text->setPlaceholderText(nothing ? shown(detail.empty_text) : QString());
        if (!says_something(detail.text))
            text->setAccessibleName(nothing ? shown(detail.empty_text) : QStringLiteral("Empty"));
    };
    for (Label* const label : {detail.title, detail.subtitle, detail.text})
        if (label) binding.bind(*label, text, invite);
}

}  // namespace velk
