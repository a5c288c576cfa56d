// What the managers need of the main document, and no more.
#pragma once

#include <string>

namespace velk {

class Desktop;
class Busy_Line;

/// The sections that have a button in the toolbar, in its order.
enum class Toolbar_Section { contacts, sms, apps, music, photo, video, book };

class Main_Window {
  public:
    virtual ~Main_Window() = default;

    virtual Desktop& desktop() = 0;
    virtual Busy_Line& busy_line() = 0;

    /// The toolbar's button of that section. User-interface thread.
    virtual void set_section_title(Toolbar_Section section, std::string title) = 0;
    /// Recolours the captions of the toolbar. Any thread.
    virtual void set_BT_Caption_White() = 0;
    /// The modal "Information" box with one "OK" button. Workers wait for it; on the
    /// user-interface thread it returns at once.
    virtual void show_message(const std::string& text) = 0;
};

}  // namespace velk
