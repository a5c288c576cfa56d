#pragma once

#include "managers/contacts_tablesource.h"
#include "session/views.h"

namespace velk {

/// The contacts section; its manager does the work.
class View_Contacts : public MainViewController {
  public:
    explicit View_Contacts(Main_Window& window)
        : MainViewController("View_Contacts"), contacts(window) {}
    const Section* section() const override { return &contacts.section; }

    Contacts_TableSource contacts;
};

}  // namespace velk
