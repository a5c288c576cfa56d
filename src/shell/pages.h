// The pages of the content views.
#pragma once

#include "shell/widgets.h"

namespace velk {

class Connection_View;
class MainViewController;
class View_AllowPCConnect;
class View_SettingPhoneUSB;
class View_Start;
struct Section;

/// The page that shows the view, made anew. A view without a page of its own and without a section
/// gets an empty one.
QWidget* make_page(MainViewController& view, const Window_Parts& parts);

// The pages that are made by it, each described beside its making.
QWidget* start_page(View_Start& view, const Window_Parts& parts);
QWidget* allow_pc_page(View_AllowPCConnect& view, const Window_Parts& parts);
QWidget* usb_debugging_page(View_SettingPhoneUSB& view, const Window_Parts& parts);

/// What stands in the way of a phone now, on each of these three; hidden while nothing does.
QWidget* finding_of(Connection_View& view, const Window_Parts& parts);

}  // namespace velk
