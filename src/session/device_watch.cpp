// What the session hears from outside without asking: phones on the bus, and Ctrl-C.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "base/trace.h"
#include "session/main_document.h"
#include "session/usb_monitor.h"
#include "ui/program_wide.h"
#include "ui/unix_signals.h"

namespace velk {

bool MainDocument::CheckDeviceExist() {
    interrupt_ = std::make_unique<Unix_Signals>(desktop_, std::vector{SIGINT}, SignalHandler);
    if (!interrupt_->established()) std::fputs("Could not establish new signal handler.", stderr);
    return usb_->start([this] {
        if (shows_connection()) look_for_trouble();
    });
}

void MainDocument::look_for_trouble() {
    lookout_.look(m_str_install_apk_file);
}

// While an attempt runs it is too early to say what stands in its way.
bool MainDocument::shows_connection() const {
    return g_can_click_refresh &&
           dynamic_cast<const Connection_View*>(m_Control_Box1.view()) != nullptr;
}

void MainDocument::say_trouble(const std::string& sentence) {
    for (const auto& view : m_views)
        if (auto* const connection = dynamic_cast<Connection_View*>(view.get()))
            connection->m_LB_Trouble.set_text(sentence);
}

void SignalHandler(int) {
    trace("\nInterrupted.\n");
    flush_trace();
    // A file that a worker has half copied is put right, and no tool of its is left behind.
    if (g_window) g_window->let_workers_go();
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace velk
