#include "shell/pages.h"

#include <QWidget>
#include <map>

#include "session/views.h"
#include "shell/section_page.h"

namespace velk {

namespace {

using Make = QWidget* (*)(MainViewController&, const Window_Parts&);

/// A view's name is its class's, so a page may know more of its view than the base.
template <class View, QWidget* (*make)(View&, const Window_Parts&)>
QWidget* page_of(MainViewController& view, const Window_Parts& parts) {
    return make(static_cast<View&>(view), parts);
}

const std::map<std::string, Make> pages_by_view = {
    {"View_Start", page_of<View_Start, start_page>},
    {"View_AllowPCConnect", page_of<View_AllowPCConnect, allow_pc_page>},
    {"View_SettingPhoneUSB", page_of<View_SettingPhoneUSB, usb_debugging_page>},
};

}  // namespace

QWidget* make_page(MainViewController& view, const Window_Parts& parts) {
    const auto own = pages_by_view.find(view.name());
    if (own != pages_by_view.end()) return own->second(view, parts);
    if (const Section* const section = view.section()) return new Section_Page(*section, parts);
    return new QWidget;
}

}  // namespace velk
