// Rows like contacts appended to the visible table from a worker: how long it takes in all, and
// how long the window keeps a person waiting meanwhile.
//
//   QT_QPA_PLATFORM=offscreen build/release/bench/append_rows [ROWS]
#include <QApplication>
#include <QTimer>
#include <cstdlib>

#include "base/text.h"
#include "bench_window.h"
#include "managers/contacts_tablesource.h"
#include "pulse.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace {

void append(velk::Contacts_TableSource& contacts, int number) {
    const std::string no = std::to_string(number);
    contacts.table_rows.push_back({no, no, "Somebody of the number " + no, "+49 151 " + no});
    contacts.m_table.reload_appended();
    contacts.m_table.scroll_to_last();
    contacts.m_LB_Tips_Contacts.set_text(
        velk::format("Loading No.%d 'Somebody of the number %d'......", number, number));
}

}  // namespace

int main(int argument_count, char** arguments) {
    velk::figures();
    const int rows = argument_count > 1 ? std::atoi(arguments[1]) : 20000;
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    velk::Bench_Window open;
    open.document.hidden_some(true);
    open.document.displayViewController(velk::DEFINE_VIEW_Contacts);
    velk::Contacts_TableSource& contacts = *velk::g_contacts_tablesource;

    velk::Pulse pulse;
    std::atomic<bool> ended = false;
    double total = 0;
    QTimer::singleShot(200, &open.window, [&] {  // the window has been drawn by then
        const auto begun = velk::Clock::now();
        velk::Worker::start("pulse", [&] { pulse.beat_until(ended); });
        velk::Worker::start("rows", [&, begun] {
            for (int number = 1; number <= rows; ++number)
                open.desktop.post([&contacts, number] { append(contacts, number); });
            open.desktop.post([&, begun] {
                total = velk::milliseconds_since(begun);
                ended = true;
                QTimer::singleShot(100, &application, &QApplication::quit);
            });
        });
    });
    QApplication::exec();
    std::fprintf(velk::figures(), "%d rows: %.0f ms in all\n", rows, total);
    pulse.print();
    velk::Worker::stop_all(std::chrono::seconds(1));
    return EXIT_SUCCESS;
}
