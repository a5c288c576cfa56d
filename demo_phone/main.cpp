// A phone for people without one.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "demo_phone/media_scan.h"
#include "demo_phone/phone_options.h"

namespace {

int stop_writer = -1;

void stop_on_signal(int) {
    const char byte = 0;
    // A full pipe already says all there is to say.
    static_cast<void>(!write(stop_writer, &byte, 1));
}

/// Signals become a byte that the phone's loop can wait for.
bool catch_signals(velk::Owned_Descriptor& reader, velk::Owned_Descriptor& writer) {
    int ends[2];
    if (pipe(ends) != 0) return false;
    reader = velk::Owned_Descriptor(ends[0]);
    writer = velk::Owned_Descriptor(ends[1]);
    for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
    stop_writer = writer.number();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, stop_on_signal);
    return true;
}

int complain(const std::string& what) {
    std::perror(("demo_phone: " + what).c_str());
    return 1;
}

int run(const velk::Phone_Options& options) {
    using namespace velk;
    Owned_Descriptor stop;
    Owned_Descriptor stop_end;
    if (!catch_signals(stop, stop_end)) return complain("signals");
    const auto storage = Phone_Storage::open(options.storage);
    if (!storage) return complain("storage");
    Phone_Log log;
    if (!options.log.empty() && !log.open(options.log)) return complain(options.log);
    Demo_Phone phone{options.settings, *storage, log, options.behaviour};
    fill_people(phone.store, options.amounts);
    if (!fill_library(phone.store, phone.storage, options.amounts)) return complain("storage");
    scan_media(phone.store, phone.storage, "/sdcard");
    Phone_Server server(phone, options.places);
    if (!server.open()) return 1;
    std::printf("port %d\n", server.port());
    std::fflush(stdout);
    server.run(stop.number());
    return 0;
}

}  // namespace

int main(int count, char** words) {
    const auto options = velk::read_options(count, words);
    if (!options) return 2;
    if (options->help) {
        std::fputs(velk::phone_help().c_str(), stdout);
        return 0;
    }
    if (options->version) {
        std::puts("demo_phone " DEMO_PHONE_VERSION);
        return 0;
    }
    if (!options->tell_path.empty())
        return velk::tell_phone(options->tell_path, options->tell_line);
    return run(*options);
}
