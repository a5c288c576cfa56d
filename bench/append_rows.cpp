// Rows like contacts appended to the visible table from a worker: how long it takes in all, and
// how long the window keeps a person waiting meanwhile.
//
//   QT_QPA_PLATFORM=offscreen build/release/bench/append_rows [ROWS]
#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "base/interruptor.h"
#include "base/text.h"
#include "managers/contacts_tablesource.h"
#include "session/main_document.h"
#include "shell/look.h"
#include "shell/qt_desktop.h"
#include "shell/velk_window.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds_since(Clock::time_point begun) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

/// Sends an event to the window's thread every millisecond and notes how long each had to wait:
/// what a click would have waited at that moment.
class Pulse : public QObject {
  public:
    void beat_until(const std::atomic<bool>& ended) {
        while (!ended) {
            QCoreApplication::postEvent(this, new Beat);
            velk::Interruptor::current().sleep_for(std::chrono::milliseconds(1));
        }
    }
    std::vector<double> waits;  // milliseconds

  protected:
    bool event(QEvent* event) override {
        if (const auto* beat = dynamic_cast<Beat*>(event))
            waits.push_back(milliseconds_since(beat->sent));
        return true;
    }

  private:
    struct Beat : QEvent {
        Beat() : QEvent(QEvent::User) {}
        Clock::time_point sent = Clock::now();
    };
};

void append(velk::Contacts_TableSource& contacts, int number) {
    const std::string no = std::to_string(number);
    contacts.table_rows.push_back({no, no, "Somebody of the number " + no, "+49 151 " + no});
    contacts.m_table.reload_appended();
    contacts.m_table.scroll_to_last();
    contacts.m_LB_Tips_Contacts.set_text(
        velk::format("Loading No.%d 'Somebody of the number %d'......", number, number));
}

void print(std::vector<double> waits, int rows, double total) {
    std::sort(waits.begin(), waits.end());
    const std::size_t count = waits.size();
    std::printf(
        "%d rows: %.0f ms in all; waits of %zu events: median %.2f ms, 99%% %.2f ms, longest %.2f "
        "ms\n",
        rows, total, count, waits[count / 2], waits[count * 99 / 100], waits.back());
}

}  // namespace

int main(int argument_count, char** arguments) {
    const int rows = argument_count > 1 ? std::atoi(arguments[1]) : 20000;
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const velk::Look_Keeper look;
    velk::Qt_Desktop desktop;
    velk::MainDocument document(desktop);
    velk::Velk_Window window(document, desktop);
    window.resize(1280, 800);
    window.show();
    document.hidden_some(true);
    document.displayViewController(velk::DEFINE_VIEW_Contacts);
    velk::Contacts_TableSource& contacts = *velk::g_contacts_tablesource;

    Pulse pulse;
    std::atomic<bool> ended = false;
    double total = 0;
    QTimer::singleShot(200, &window, [&] {  // the window has been drawn by then
        const auto begun = Clock::now();
        velk::Worker::start("pulse", [&] { pulse.beat_until(ended); });
        velk::Worker::start("rows", [&, begun] {
            for (int number = 1; number <= rows; ++number)
                desktop.post([&contacts, number] { append(contacts, number); });
            desktop.post([&, begun] {
                total = milliseconds_since(begun);
                ended = true;
                QTimer::singleShot(100, &application, &QApplication::quit);
            });
        });
    });
    QApplication::exec();
    if (!pulse.waits.empty()) print(pulse.waits, rows, total);
    velk::Worker::stop_all(std::chrono::seconds(1));
    return EXIT_SUCCESS;
}
