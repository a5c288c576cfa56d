#include "shell/content_stack.h"

#include "session/main_document.h"
#include "shell/pages.h"

namespace velk {

Content_Stack::Content_Stack(const Window_Parts& parts) : parts_(parts) {
    Content_Box& box = parts.document.m_Control_Box1;
    setObjectName(shown(box.name()));
    parts.binding.bind(box, this, [this] { show_view(); });
}

QWidget* Content_Stack::shown_page() const {
    return parts_.document.m_Control_Box1.view() ? currentWidget() : nullptr;
}

void Content_Stack::show_view() {
    const Content_Box& box = parts_.document.m_Control_Box1;
    MainViewController* const view = box.view();
    if (view) {
        QWidget*& page = pages_[view];
        if (!page) {
            page = make_page(*view, parts_);
            page->setObjectName(shown(view->name()));
            addWidget(page);
            if (new_page_) new_page_();
        }
        setCurrentWidget(page);
    }
    if (parentWidget()) setHidden(box.hidden() || !view);
}

}  // namespace velk
