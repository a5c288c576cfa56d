#pragma once

#include "ui/outlets.h"

namespace velk {

class MainViewController;

/// The box of the main window that shows one content view at a time, or none.
class Content_Box : public Outlet {
  public:
    using Outlet::Outlet;
    /// The view in the box; nullptr when the box is empty.
    MainViewController* view() const { return view_; }
    void put_in(MainViewController* view) { change(view_, view); }

  private:
    MainViewController* view_ = nullptr;
};

}  // namespace velk
