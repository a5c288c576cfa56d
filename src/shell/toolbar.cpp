#include "shell/toolbar.h"

#include <QHBoxLayout>

#include "session/main_document.h"
#include "shell/toolbar_button.h"

namespace velk {

namespace {

struct Entry {
    Button Window_Outlets::*outlet;
    const char* icon;
    void (MainDocument::*handler)();
    const char* view;  // the name of the section's view; My Android has none
};

constexpr Entry entries[] = {
    {&Window_Outlets::m_BT_MyAndroid, "my_android", &MainDocument::OnBT_MyAndroid, ""},
    {&Window_Outlets::m_BT_Contacts, "contacts", &MainDocument::OnBT_Contacts, "View_Contacts"},
    {&Window_Outlets::m_BT_SMS, "sms", &MainDocument::OnBT_SMS, "View_SMS"},
    {&Window_Outlets::m_BT_Apps, "apps", &MainDocument::OnBT_App, "View_App"},
    {&Window_Outlets::m_BT_Music, "music", &MainDocument::OnBT_Music, "View_Music"},
    {&Window_Outlets::m_BT_Photo, "photo", &MainDocument::OnBT_Photo, "View_Photo"},
    {&Window_Outlets::m_BT_Video, "video", &MainDocument::OnBT_Video, "View_Video"},
    {&Window_Outlets::m_BT_Book, "book", &MainDocument::OnBT_Book, "View_Book"},
};

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
    for (const Entry& entry : entries) {
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

// An empty box means My Android; the views of the connection belong to no section.
void Toolbar::mark_current() {
    const MainViewController* const view = document_.m_Control_Box1.view();
    const std::string name = view ? view->name() : "";
    for (const Entry& entry : entries)
        findChild<Toolbar_Button*>(shown((document_.*entry.outlet).name()))
            ->set_current(name == entry.view);
}

}  // namespace velk
