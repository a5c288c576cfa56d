// What the session hears from outside without asking: phones on the bus, and Ctrl-C.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "base/trace.h"
#include "session/main_document.h"
#include "session/usb_monitor.h"
#include "ui/program_wide.h"
#include "ui/unix_signals.h"

namespace velk {

bool MainDocument::CheckDeviceExist() {
    interrupt_ = std::make_unique<Unix_Signals>(desktop_, std::vector{SIGINT}, SignalHandler);
    if (!interrupt_->established()) std::fputs("Could not establish new signal handler.", stderr);
    return usb_->start([] {});
}

void SignalHandler(int) {
    trace("\nInterrupted.\n");
    flush_trace();
    // A file that a worker has half copied is put right, and no tool of its is left behind.
    if (g_window) g_window->let_workers_go();
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace velk
