#include "bridge/child_process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <sstream>
#include <thread>

#include "base/interruptor.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

using enum Fake_Adb::Behaviour;

struct Ended {
    std::string output;
    int status = -1;
};

Ended run(const std::vector<std::string>& words) {
    Ended ended;
    ended.status =
        run_child({.words = words}, [&](std::string_view piece) { ended.output += piece; });
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child was not reaped";
    return ended;
}

std::size_t open_descriptors() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

TEST(Child_Process, gives_all_that_a_bad_child_wrote_and_leaves_nothing_open) {
    const Fake_Adb adb;
    const std::string kilobyte(1024, 'x');
    struct {
        Fake_Adb::Answer answer;
        std::size_t size;
        int status;
    } const children[] = {
        {{"List of dev", "", 3}, 11, 3},
        {{"a", "", 0, crashes}, 1, 128 + SIGABRT},
        {{kilobyte, "", 0, ends, 8192}, 8 << 20, 0},
        {{kilobyte, "", 0, leaves_a_server, 300}, 300 << 10, 0},
    };
    const std::size_t open_before = open_descriptors();
    for (const auto& child : children) {
        adb.answer("devices", child.answer);
        const Ended ended = run({adb.tool(), "devices"});
        EXPECT_EQ(ended.output.size(), child.size);
        EXPECT_EQ(ended.status, child.status);
    }
    EXPECT_EQ(open_descriptors(), open_before);
}

TEST(Child_Process, inherits_nothing_that_is_not_meant_for_it) {
    const int leaked = open("/dev/null", O_RDONLY);  // close-on-exec forgotten
    // The listed folder itself has the number 3.
    EXPECT_EQ(run({"/bin/ls", "/proc/self/fd"}).output, "0\n1\n2\n3\n");
    close(leaked);
    EXPECT_EQ(run({"/bin/cat"}).output, "");

    const auto before = std::signal(SIGPIPE, SIG_IGN);  // as the program does
    const std::string ignored = run({"/bin/grep", "SigIgn", "/proc/self/status"}).output;
    std::signal(SIGPIPE, before);
    EXPECT_EQ(std::stoull(ignored.substr(8), nullptr, 16) >> (SIGPIPE - 1) & 1, 0u) << ignored;
}

TEST(Child_Process, is_out_of_reach_of_the_terminals_keys_unless_it_reads_from_it) {
    const std::vector<std::string> tell_group = {
        "/bin/sh", "-c",
        "read -r pid name state parent group rest </proc/$$/stat; echo $pid $group"};
    for (const bool shares_input : {false, true}) {
        std::string pid, group, output;
        run_child({.words = tell_group, .shares_input = shares_input},
                  [&](std::string_view piece) { output += piece; });
        std::istringstream(output) >> pid >> group;
        EXPECT_EQ(group, shares_input ? std::to_string(getpgrp()) : pid);
    }
}

TEST(Child_Process, that_hangs_is_ended_by_closing_the_window) {
    const Fake_Adb adb;
    adb.answer("devices", {"half", "", 0, hangs});
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
