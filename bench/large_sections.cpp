// A large archive of messages and one of photos in the window: how long the loads take, how long
// the window keeps a person waiting meanwhile, the time that the export takes, and the memory of
// it all. The phone is a thread of this program that answers on the agent's port.
//
//   QT_QPA_PLATFORM=offscreen build/release/bench/large_sections [MESSAGES [PHOTOS]]
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QListView>
#include <QTimer>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <thread>

#include "agent/channel.h"
#include "base/trace.h"
#include "bench_window.h"
#include "figures.h"
#include "managers/file_panes.h"
#include "managers/sms_tablesource.h"
#include "pulse.h"
#include "session/section_views.h"
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

std::string photo_list(int photos) {
    std::string list(7, '\0');
    for (int i = 0; i < photos; ++i)
        list += number(static_cast<std::size_t>(i), 4) +
                field("/storage/emulated/0/DCIM/Camera/IMG_20260309_" + std::to_string(100000 + i) +
                      ".jpg") +
                field(std::to_string(2000000 + i));
    return list;
}

using Lists = std::map<char, std::string>;  // by the code of their request

/// Answers every request with its list; ends with the process.
void serve(const Lists& lists) {
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
    std::thread([listener, lists] {
        for (;;) {
            const int client = ::accept(listener, nullptr, nullptr);
            char code = 0;
            if (::recv(client, &code, 1, 0) == 1 && lists.contains(code))
                ::send(client, lists.at(code).data(), lists.at(code).size(), MSG_NOSIGNAL);
            ::close(client);
        }
    }).detach();
}

/// A figure of the process's memory, in MB.
long megabytes(const std::string& figure) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(figure)) return std::atol(line.c_str() + figure.size()) / 1024;
    return 0;
}

void print_memory(const char* when) {
    std::fprintf(velk::figures(), "%s: %ld MB resident, at most %ld MB\n", when,
                 megabytes("VmRSS:"), megabytes("VmHWM:"));
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
    std::fprintf(velk::figures(), "%s: %.0f ms\n", what, took);
    pulse.print();
}

/// The same for a load, with the moment of the first row.
template <class Section>
void measure_load(const char* what, Section& section, const velk::Flag& may_load) {
    const auto begun = velk::Clock::now();
    const int reloads = section.m_table.reloads();
    double first_row = 0;
    measure(
        what, [&] { section.OnBT_Refresh(); },
        [&] {
            if (first_row == 0 && section.m_table.reloads() > reloads &&
                section.table_rows.count() > 0)
                first_row = velk::milliseconds_since(begun);
            return may_load == 1;
        });
    std::fprintf(velk::figures(), "  %d rows, the first one after %.0f ms\n",
                 section.table_rows.count(), first_row);
    print_memory("  then");
}

template <class View>
auto& source_of(velk::MainDocument& document, int id) {
    return dynamic_cast<View&>(*document.m_views[static_cast<std::size_t>(id)]).source;
}

/// What a click on the header of the second column costs the window.
void measure_sort(const char* what, velk::Table& table) {
    const auto begun = velk::Clock::now();
    table.sort(1, false);
    QCoreApplication::processEvents();
    std::fprintf(velk::figures(), "%s sorted: %.0f ms\n", what, velk::milliseconds_since(begun));
}

void press(QWidget& window, const char* name) {
    window.findChild<QAbstractButton*>(name)->click();
}

/// Looks at all photos as pictures, a page at a time. There is no tool, so none is fetched.
void page_through_pictures(velk::Velk_Window& window, int photos) {
    auto* const list = window.findChild<QListView*>("m_table_Photo_pictures");
    int row = 0;
    measure(
        "pictures", [&] { press(window, "view_pictures"); },
        [&] {
            list->scrollTo(list->model()->index(row, 0));
            return (row += 20) >= photos;
        });
}

}  // namespace

int main(int argument_count, char** arguments) {
    const int messages = argument_count > 1 ? std::atoi(arguments[1]) : 100000;
    const int photos = argument_count > 2 ? std::atoi(arguments[2]) : 20000;
    velk::figures();
    QApplication application(argument_count, arguments);
    velk::Bench_Window open;
    auto& photo_section = source_of<velk::View_Photo>(open.document, velk::DEFINE_VIEW_Photo);
    while (photo_section.is_loading()) QCoreApplication::processEvents();  // finds no phone yet
    print_memory("before");
    serve({{47, message_list(messages)}, {118, photo_list(photos)}});
    open.document.hidden_some(true);

    open.document.displayViewController(velk::DEFINE_VIEW_Photo);
    QCoreApplication::processEvents();
    measure_load("photos", photo_section, velk::Photo_TableSource::g_can_click_sms_load);
    page_through_pictures(open.window, photos);
    measure_load("photos, shown as pictures", photo_section,
                 velk::Photo_TableSource::g_can_click_sms_load);
    measure_sort("photos", photo_section.m_table);

    open.document.displayViewController(velk::DEFINE_VIEW_SMS);
    QCoreApplication::processEvents();
    velk::SMS_TableSource& section = *velk::g_sms_tablesource;
    measure_load("messages", section, velk::g_can_click_sms_load);
    measure_sort("messages", section.m_table);
    bool saved = false;
    std::atomic<bool> over = false;
    const std::string file = "/tmp/velk_large_sections." + std::to_string(getpid());
    measure(
        "export of the messages",
        [&] {
            velk::Worker::start("export", [&] {
                saved = section.save_to_html(file);
                over = true;
            });
        },
        [&] { return over.load(); });
    ::unlink(file.c_str());
    print_memory("  then");
    velk::flush_trace();
    return saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
