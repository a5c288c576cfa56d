// What the managers need of the main document, and no more.
#pragma once

#include <string>

namespace velk {

class Desktop;
class Busy_Line;

class Main_Window {
  public:
    virtual ~Main_Window() = default;

    virtual Desktop& desktop() = 0;
    virtual Busy_Line& busy_line() = 0;

    /// The Contacts button of the toolbar. User-interface thread.
    virtual void set_contacts_title(std::string title) = 0;
    /// Recolours the captions of the toolbar. Any thread.
    virtual void set_BT_Caption_White() = 0;
    /// The modal "Information" box with one "OK" button. Workers wait for it; on the
    /// user-interface thread it returns at once.
    virtual void show_message(const std::string& text) = 0;
};

}  // namespace velk
