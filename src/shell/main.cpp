#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "base/trace.h"
#include "session/main_document.h"
#include "session/usb_monitor.h"
#include "shell/app_delegate.h"
#include "shell/look.h"
#include "shell/options.h"
#include "shell/qt_desktop.h"
#include "shell/tour.h"
#include "shell/velk_window.h"
#include "ui/unix_signals.h"
#include "ui/worker.h"
#include "version.h"

namespace {

int print(const velk::Exit_Message& message) {
    std::fputs(message.text.c_str(), message.status == 0 ? stdout : stderr);
    return message.status;
}

/// The status to end with, when this is not to be the one that runs.
std::optional<int> leave_it_to_another(velk::Only_One& only_one, const velk::Wish& wish) {
    using Answer = velk::Only_One::Answer;
    const Answer answer = only_one.ask(wish);
    if (answer == Answer::is_first) return std::nullopt;
    if (answer == Answer::first_has_come) return 0;
    std::fputs("velk: Velk is running already, but does not answer.\n", stderr);
    return 1;
}

int run(const velk::Options& options, const QByteArray& token) {
    QApplication::setQuitOnLastWindowClosed(false);  // the delegate is asked
    // A tour is nobody's window: it neither calls another Velk nor is called.
    const QString folder = options.tour.empty() ? velk::runtime_folder() : QString();
    velk::Only_One only_one(folder);
    if (const auto status = leave_it_to_another(only_one, {options.connect, token})) return *status;
    const velk::Look_Keeper look;
    velk::Qt_Desktop desktop;
    velk::Usb_Monitor usb(desktop);
    velk::MainDocument document(desktop, velk::executable_directory(), &usb);
    velk::Velk_Window window(document, desktop);
    velk::DhAppDelegate delegate(document, window, desktop,
                                 {QStringLiteral(":/option.cfg"), folder});
    delegate.applicationDidFinishLaunching();
    const velk::Unix_Signals ending(desktop, {SIGTERM, SIGHUP}, [&window](int) { window.close(); });
    velk::Worker::start("port", [&document] { document.look_at_port(); });
    std::unique_ptr<velk::Tour> tour;
    if (options.tour.empty())
        window.show();
    else
        tour = std::make_unique<velk::Tour>(document, window, options.tour);
    if (!tour && options.connect)
        QTimer::singleShot(0, &window, [&document] { document.OnBT_Refresh(); });
    const int ended = QApplication::exec();
    document.windowWillClose();  // in case the loop has ended by another way than the window's
    const int status = tour ? tour->status() : ended;
    if (velk::Worker::running() > 0) {
        // Something outside does not let a worker go; what it uses must not be taken from it.
        velk::flush_trace();
        std::_Exit(status);
    }
    return status;
}

}  // namespace

int main(int count, char** arguments) {
    std::signal(SIGPIPE, SIG_IGN);  // a connection that the other side closed must not kill us
    if (!isatty(STDOUT_FILENO)) std::setvbuf(stdout, nullptr, _IOFBF, 1 << 16);
    if (const auto answer = velk::answer_without_display(count, arguments)) return print(*answer);
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");  // before the toolkit takes it
    QApplication application(count, arguments);
    // Names are put in the order of the person's language; sizes keep their point everywhere.
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(velk::g_product_name);
    QApplication::setApplicationVersion(velk::g_version);
    QApplication::setDesktopFileName("org.velk.Velk");
    const velk::Options options = velk::options_of(count, arguments);
    const int status = options.wrong ? print(*options.wrong) : run(options, token);
    velk::flush_trace();
    return status;
}
