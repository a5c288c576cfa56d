#pragma once

#include "managers/sms_tablesource.h"
#include "session/views.h"

namespace velk {

/// The messages section; its manager does the work.
class View_SMS : public MainViewController {
  public:
    explicit View_SMS(Main_Window& window) : MainViewController("View_SMS"), messages(window) {}
    const Section* section() const override { return &messages.section; }

    SMS_TableSource messages;
};

}  // namespace velk
