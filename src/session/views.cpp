#include "session/views.h"

#include <utility>

#include "session/main_document.h"

namespace velk {

void MainViewController::load_once() {
    if (!std::exchange(loaded_, true)) loadView();
}

void Connection_View::OnBT_Refresh() {
    managedObjectContext->OnBT_Refresh();
}

void Connection_View::loadView() {
    managedObjectContext->hidden_some(true);
}

View_AllowPCConnect::View_AllowPCConnect() : Connection_View("View_AllowPCConnect") {
    m_LB_Tips.set_text("Your phone is plugged in, but it has not allowed this computer yet.");
}

}  // namespace velk
