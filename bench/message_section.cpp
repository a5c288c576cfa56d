// A large archive of messages in the window: how long the load takes, how long the window keeps a
// person waiting meanwhile, and the time and memory that the export takes. The phone is a thread
// of this program that answers on the agent's port.
//
//   QT_QPA_PLATFORM=offscreen build/release/bench/message_section [MESSAGES] 2>/dev/null
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include "agent/channel.h"
#include "base/trace.h"
#include "managers/sms_tablesource.h"
#include "pulse.h"
#include "session/main_document.h"
#include "shell/look.h"
#include "shell/qt_desktop.h"
#include "shell/velk_window.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace {

std::string number(std::size_t value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xFF);
    return text;
}

std::string field(const std::string& text) {
    return number(text.size(), 4) + text;
}

std::string message_list(int messages) {
    const std::string header = std::string("\0\x2F\0\0\0\0\0", 7);
    std::string list;
    for (int i = 0; i < messages; ++i) {
        if (i % 20 == 0) list += header;
        list += field("+49 151 " + std::to_string(i)) +
                field("This is the message of the number " + std::to_string(i) +
                      ", which is about as long as messages are, isn't it?\nYours, somebody") +
                field("2026-03-09 17:04:59") + number(1 + static_cast<std::size_t>(i) % 2, 2) +
                number(static_cast<std::size_t>(i) % 65535, 4) + number(5, 4) + number(1, 2);
    }
    return list + header;
}

/// Answers every connection with the list; ends with the process.
void serve(const std::string& list) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(velk::agent_port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener, 8) != 0) {
        std::perror("the agent's port");
        std::exit(EXIT_FAILURE);
    }
    std::thread([listener, list] {
        for (;;) {
            const int client = ::accept(listener, nullptr, nullptr);
            char code = 0;
            if (::recv(client, &code, 1, 0) == 1 && code == 47)
                ::send(client, list.data(), list.size(), MSG_NOSIGNAL);
            ::close(client);
        }
    }).detach();
}

/// The most memory the process has held so far, in MB.
long peak_megabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:")) return std::atol(line.c_str() + 6) / 1024;
    return 0;
}

/// Runs one command of the window to its end and prints how it felt.
void measure(const char* what, const std::function<void()>& start,
             const std::function<bool()>& has_ended) {
    velk::Pulse pulse;
    std::atomic<bool> ended = false;
    const auto begun = velk::Clock::now();
    velk::Worker::start("pulse", [&] { pulse.beat_until(ended); });
    start();
    while (!has_ended()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double took = velk::milliseconds_since(begun);
    ended = true;
    velk::Worker::stop_all(std::chrono::seconds(5));
    std::printf("%s: %.0f ms, at most %ld MB\n", what, took, peak_megabytes());
    pulse.print();
}

}  // namespace

int main(int argument_count, char** arguments) {
    const int messages = argument_count > 1 ? std::atoi(arguments[1]) : 100000;
    serve(message_list(messages));
    QApplication application(argument_count, arguments);
    const velk::Look_Keeper look;
    velk::Qt_Desktop desktop;
    velk::MainDocument document(desktop);
    velk::Velk_Window window(document, desktop);
    window.resize(1280, 800);
    window.show();
    document.hidden_some(true);
    document.displayViewController(velk::DEFINE_VIEW_SMS);
    QCoreApplication::processEvents();
    velk::SMS_TableSource& section = *velk::g_sms_tablesource;

    std::printf("%d messages\n", messages);
    std::printf("before: at most %ld MB\n", peak_megabytes());
    measure(
        "load", [&] { section.OnBT_Refresh(); }, [&] { return velk::g_can_click_sms_load == 1; });
    std::printf("  rows: %d\n", section.table_rows.count());
    bool saved = false;
    std::atomic<bool> over = false;
    const std::string file = "/tmp/velk_message_section." + std::to_string(getpid());
    measure(
        "export",
        [&] {
            velk::Worker::start("export", [&] {
                saved = section.save_to_html(file);
                over = true;
            });
        },
        [&] { return over.load(); });
    ::unlink(file.c_str());
    velk::flush_trace();
    return saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
