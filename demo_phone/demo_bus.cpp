// The demo phone's cable: a simulated USB bus, which only the command that it runs can see.
//
// The process that is started becomes the command; a child holds the bus and ends after it. The
// bus's socket takes what the phone's takes and passes it on; plug and unplug change the bus, too.
#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <umockdev.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "demo_phone/phone_control.h"
#include "demo_phone/phone_sockets.h"

namespace velk {
namespace {

constexpr const char* place_of_phone = "/sys/devices/usb1/1-1";
constexpr const char* place_of_interface = "/sys/devices/usb1/1-1/1-1:1.0";
constexpr const char* phone_on_the_bus =
    "P: /devices/usb1/1-1\n"
    "N: bus/usb/001/002\n"
    "E: DEVTYPE=usb_device\n"
    "E: DEVNAME=/dev/bus/usb/001/002\n"
    "E: SUBSYSTEM=usb\n"
    "A: idVendor=04e8\n"
    "A: idProduct=6860\n"
    "A: product=Demo Phone\n"
    "\n"
    "P: /devices/usb1/1-1/1-1:1.0\n"
    "E: DEVTYPE=usb_interface\n"
    "E: SUBSYSTEM=usb\n"
    "A: bInterfaceClass=ff\n"
    "A: bInterfaceSubClass=42\n"
    "A: bInterfaceProtocol=01\n";

/// An adb server needs a moment for a phone that has just come; a phone that plays a bad one may
/// never be ready.
constexpr timeval time_for_adb{2, 0};

class Demo_Bus {
  public:
    Demo_Bus() { plug(); }

    void plug() {
        if (plugged_) return;
        umockdev_testbed_add_from_string(bed_.get(), phone_on_the_bus, nullptr);
        plugged_ = true;
    }
    void unplug() {
        if (!plugged_) return;
        umockdev_testbed_uevent(bed_.get(), place_of_phone, "remove");
        umockdev_testbed_remove_device(bed_.get(), place_of_interface);
        umockdev_testbed_remove_device(bed_.get(), place_of_phone);
        plugged_ = false;
    }

  private:
    struct Release {
        void operator()(UMockdevTestbed* bed) const { g_object_unref(bed); }
    };
    std::unique_ptr<UMockdevTestbed, Release> bed_{umockdev_testbed_new()};
    bool plugged_ = false;
};

void wait_for_adb() {
    const char* const port = std::getenv("ANDROID_ADB_SERVER_PORT");
    const Owned_Descriptor server = port ? connect_tcp(std::atoi(port)) : Owned_Descriptor();
    if (!server) return;
    setsockopt(server.number(), SOL_SOCKET, SO_RCVTIMEO, &time_for_adb, sizeof time_for_adb);
    char answers[8];  // "OKAY" for the request, and again when there is a phone
    if (write_all(server.number(), "0018host:wait-for-any-device"))
        static_cast<void>(recv(server.number(), answers, sizeof answers, MSG_WAITALL));
}

std::string carry_out(const std::string& phone, Demo_Bus& bus, const std::string& line) {
    const std::string answer = ask_phone(phone, line).value_or("error: the phone is not there\n");
    if (!is_good(answer)) return answer;
    if (line == "plug") {
        wait_for_adb();
        bus.plug();
    }
    if (line == "unplug") bus.unplug();
    return answer;
}

/// The one line that a connection brings; empty when none comes.
std::string read_line(int connection) {
    constexpr int longest_wait = 1000;  // milliseconds
    constexpr std::size_t longest_line = 4096;
    std::string line;
    pollfd polled{connection, POLLIN, 0};
    while (line.size() < longest_line && poll(&polled, 1, longest_wait) > 0) {
        char byte = 0;
        if (recv(connection, &byte, 1, 0) != 1) return {};
        if (byte == '\n') return line;
        line += byte;
    }
    return {};
}

/// Serves until the process `command` has ended.
void serve(int listener, int command, const std::string& phone, Demo_Bus& bus) {
    pollfd polled[] = {{command, POLLIN, 0}, {listener, POLLIN, 0}};
    while (poll(polled, std::size(polled), -1) > 0 && polled[0].revents == 0) {
        const Owned_Descriptor connection = accept_connection(listener);
        if (connection)
            write_all(connection.number(), carry_out(phone, bus, read_line(connection.number())));
    }
}

int complain(const char* what) {
    std::perror((std::string("demo_bus: ") + what).c_str());
    return 1;
}

/// Where processes that are to see the bus look for it.
constexpr const char* address_of_bus = "UMOCKDEV_DIR";

/// Holds the bus as long as the process `command` runs, and tells it of the bus through `told`.
int hold_the_bus(int command, Owned_Descriptor told, const char* socket, const char* phone) {
    // A terminal signals all of its processes: the bus goes after those that use it.
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(number, SIG_IGN);
    const Owned_Descriptor listener = listen_unix(socket);
    if (!listener) return complain(socket);
    Demo_Bus bus;  // it has a thread, so it is made where it stays
    const char* const address = std::getenv(address_of_bus);
    if (!address || !write_all(told.number(), address)) return complain("no bus");
    told.reset();
    serve(listener.number(), command, phone, bus);
    unlink(socket);
    return 0;
}

int run(const char* socket, const char* phone, char** command) {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return complain("no pipe");
    const Owned_Descriptor hears(ends[0]);
    Owned_Descriptor tells(ends[1]);
    const Owned_Descriptor process(static_cast<int>(syscall(SYS_pidfd_open, getpid(), 0)));
    const pid_t child = process ? fork() : -1;
    if (child < 0) return complain("no child");
    if (child == 0) return hold_the_bus(process.number(), std::move(tells), socket, phone);
    tells.reset();
    char address[4096] = {};
    if (recv(hears.number(), address, sizeof address - 1, MSG_WAITALL) <= 0) return 1;
    setenv(address_of_bus, address, 1);
    execvp(command[0], command);
    return complain(command[0]);
}

}  // namespace
}  // namespace velk

int main(int count, char** words) {
    if (count < 4) {
        std::fputs(
            "Usage: umockdev-wrapper demo_bus SOCKET PHONE COMMAND...\n"
            "Runs the command with the demo phone on its USB bus. PHONE is the phone's --control\n"
            "socket; demo_phone --tell SOCKET plug, or unplug, moves the cable.\n",
            stderr);
        return 2;
    }
    return velk::run(words[1], words[2], words + 3);
}
