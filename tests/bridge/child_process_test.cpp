#include "bridge/child_process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <thread>

#include "base/interruptor.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

struct Ended {
    std::string output;
    int status = -1;
};

Ended run(const Child_Command& command) {
    Ended ended;
    ended.status = run_child(command, [&](std::string_view piece) { ended.output += piece; });
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child was not reaped";
    EXPECT_EQ(errno, ECHILD);
    return ended;
}

Ended run(const std::vector<std::string>& words) {
    return run(Child_Command{.words = words});
}

std::size_t open_descriptors() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

TEST(Child_Process, gives_all_that_a_bad_child_wrote_and_leaves_nothing_open) {
    const Fake_Adb adb;
    const std::string kilobyte(1024, 'x');
    struct Case {
        const char* what;
        Fake_Adb::Answer answer;
        std::string output;
        int status;
    };
    const Case cases[] = {
        {"half a line", {.output = "List of dev"}, "List of dev", 0},
        {"failure", {.output = "no\n", .status = 3}, "no\n", 3},
        {"crash", {.output = "a", .behaviour = Fake_Adb::Behaviour::crashes}, "a", 128 + SIGABRT},
        {"flood", {.output = kilobyte, .repeat = 8192}, std::string(8 << 20, 'x'), 0},
        {"flood, then a server that keeps the stream open",
         {.output = kilobyte, .behaviour = Fake_Adb::Behaviour::leaves_a_server, .repeat = 300},
         std::string(300 << 10, 'x'),
         0},
    };
    const std::size_t open_before = open_descriptors();
    for (const Case& one : cases) {
        adb.answer("devices", one.answer);
        const Ended ended = run({adb.tool(), "devices"});
        EXPECT_TRUE(ended.output == one.output) << one.what << ": " << ended.output.size();
        EXPECT_EQ(ended.status, one.status) << one.what;
    }
    EXPECT_EQ(open_descriptors(), open_before);
}

TEST(Child_Process, cannot_be_started_without_a_program) {
    const Fake_Adb folder;
    const std::string text = folder.directory() + "/text";
    const std::string foreign = folder.directory() + "/foreign";
    for (const std::string& file : {text, foreign})
        std::ofstream(file) << "\x7F"
                               "ELF";
    std::filesystem::permissions(foreign, std::filesystem::perms::owner_all);
    for (const std::string& program :
         {std::string(), std::string("/nowhere/adb"), text, foreign, folder.directory()}) {
        const Ended ended = run({program, "devices"});
        EXPECT_EQ(ended.output, "") << program;
        EXPECT_EQ(ended.status, status_of_a_missing_program) << program;
    }
}

TEST(Child_Process, inherits_nothing_but_its_standard_streams) {
    const int leaked = open("/dev/null", O_RDONLY);  // close-on-exec forgotten
    ASSERT_GT(leaked, 2);
    // The listed folder itself has the number 3.
    EXPECT_EQ(run({"/bin/ls", "/proc/self/fd"}).output, "0\n1\n2\n3\n");
    close(leaked);
}

TEST(Child_Process, finds_an_empty_input_and_dies_of_a_broken_pipe) {
    EXPECT_EQ(run({"/bin/cat"}).output, "");
    const auto before = std::signal(SIGPIPE, SIG_IGN);  // as the program does
    const std::string ignored = run({"/bin/grep", "SigIgn", "/proc/self/status"}).output;
    std::signal(SIGPIPE, before);
    EXPECT_EQ(std::stoull(ignored.substr(ignored.find('\t')), nullptr, 16) >> (SIGPIPE - 1) & 1, 0u)
        << ignored;
}

TEST(Child_Process, takes_errors_with_the_output_in_the_order_of_writing) {
    const Child_Command command{.words = {"/bin/sh", "-c", "echo a; echo b >&2; echo c"},
                                .captures_errors = true};
    EXPECT_EQ(run(command).output, "a\nb\nc\n");
}

TEST(Child_Process, that_hangs_is_ended_by_closing_the_window) {
    const Fake_Adb adb;
    adb.answer("devices", {.output = "half", .behaviour = Fake_Adb::Behaviour::hangs});
    Interruptor interruptor;
    Ended ended;
    std::thread worker([&] {
        const Interruptor::Use use(interruptor);
        ended = run({adb.tool(), "devices"});
    });
    while (!adb.is_hanging()) std::this_thread::yield();
    interruptor.cancel();
    worker.join();
    EXPECT_EQ(ended.status, 128 + SIGTERM);
    EXPECT_EQ(ended.output, "half");
    EXPECT_FALSE(adb.is_hanging());
}

}  // namespace
}  // namespace velk
