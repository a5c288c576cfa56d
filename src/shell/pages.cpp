#include "shell/pages.h"

#include <QWidget>

#include "session/views.h"
#include "shell/section_page.h"

namespace velk {

QWidget* make_page(MainViewController& view, const Window_Parts& parts) {
    if (auto* const start = dynamic_cast<View_Start*>(&view)) return start_page(*start, parts);
    if (auto* const allow = dynamic_cast<View_AllowPCConnect*>(&view))
        return allow_pc_page(*allow, parts);
    if (auto* const usb = dynamic_cast<View_SettingPhoneUSB*>(&view))
        return usb_debugging_page(*usb, parts);
    if (const Section* const section = view.section()) return new Section_Page(*section, parts);
    return new QWidget;
}

}  // namespace velk
