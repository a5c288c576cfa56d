// The real adb with a server of its own, and the demo phone as a program.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "demo_phone/phone_sockets.h"

namespace velk {

using Arguments = std::vector<std::string>;

/// A child with its standard output (and error) in a pipe.
class Child_Program {
  public:
    explicit Child_Program(const Arguments& arguments) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) return;
        output_ = Owned_Descriptor(ends[0]);
        const Owned_Descriptor writer(ends[1]);
        std::vector<char*> words;
        for (const std::string& word : arguments) words.push_back(const_cast<char*>(word.c_str()));
        words.push_back(nullptr);
        number_ = fork();
        if (number_ != 0) return;
        dup2(writer.number(), STDOUT_FILENO);
        dup2(writer.number(), STDERR_FILENO);
        execvp(words[0], words.data());
        _exit(127);
    }
    ~Child_Program() { end(SIGKILL); }

    std::string read_line() {
        std::string line;
        for (char byte; read(output_.number(), &byte, 1) == 1 && byte != '\n';) line += byte;
        return line;
    }
    std::string read_all() {
        std::string all;
        char bytes[4096];
        for (ssize_t count; (count = read(output_.number(), bytes, sizeof bytes)) > 0;)
            all.append(bytes, static_cast<std::size_t>(count));
        return all;
    }
    /// The exit status, -1 when a signal ended it.
    int end(int signal = 0) {
        if (number_ <= 0) return status_;
        if (signal != 0) kill(number_, signal);
        int status = 0;
        waitpid(number_, &status, 0);
        number_ = 0;
        return status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

  private:
    pid_t number_ = 0;
    int status_ = -1;
    Owned_Descriptor output_;
};

inline std::string run_program(const Arguments& arguments) {
    Child_Program child(arguments);
    std::string all = child.read_all();
    child.end();
    return all;
}

/// Asks again until `true_now` or until far too much time has gone.
inline bool wait_until(const std::function<bool()>& true_now) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(40);
    while (!true_now()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

/// A folder, an adb server and a demo phone announced to it; all gone at the end of the test.
class Adb_Test : public testing::Test {
  protected:
    void SetUp() override {
        folder = std::filesystem::temp_directory_path() /
                 ("demo_phone_adb_test." + std::to_string(getpid()));
        std::filesystem::create_directories(folder);
        {
            int free_port = 0;
            const Owned_Descriptor keeper = listen_odd_tcp(free_port);
            server_port = std::to_string(free_port);
        }
        setenv("ANDROID_ADB_SERVER_PORT", server_port.c_str(), 1);
        setenv("ADB_USB", "0", 1);
        setenv("ADB_EMU", "0", 1);
        setenv("ANDROID_SDK_HOME", folder.c_str(), 1);
        setenv("TMPDIR", folder.c_str(), 1);
        run_program({"adb", "start-server"});
    }
    void TearDown() override {
        phone.reset();
        run_program({"adb", "kill-server"});
        std::filesystem::remove_all(folder);
    }

    void start_phone(const Arguments& options) {
        Arguments arguments{DEMO_PHONE_PROGRAM, "--port", "0",        "--control",
                            file("ctl"),        "--log",  file("log")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        phone = std::make_unique<Child_Program>(arguments);
        const std::string line = phone->read_line();
        ASSERT_EQ(line.substr(0, 5), "port ");
        port = std::stoi(line.substr(5));
        ASSERT_EQ(port % 2, 1);
    }
    void announce_phone(Arguments options = {}) {
        options.insert(options.end(), {"--announce", server_port});
        ASSERT_NO_FATAL_FAILURE(start_phone(options));
        serial = "emulator-" + std::to_string(port - 1);
    }

    /// The state that adb lists the phone with; empty when it is not listed.
    std::string state() {
        const std::string list = run_program({"adb", "devices"});
        const std::size_t start = list.find(serial + "\t");
        if (start == std::string::npos) return "";
        const std::size_t word = start + serial.size() + 1;
        return list.substr(word, list.find_first_of(" \n", word) - word);
    }
    bool becomes(const std::string& expected) {
        return wait_until([&] { return state() == expected; });
    }
    std::string adb(Arguments arguments) {
        arguments.insert(arguments.begin(), {"adb", "-s", serial});
        return run_program(arguments);
    }
    std::string tell(const std::string& command) {
        return run_program({DEMO_PHONE_PROGRAM, "--tell", file("ctl"), command});
    }
    std::string file(const std::string& name) const { return (folder / name).string(); }

    std::filesystem::path folder;
    std::string server_port;
    std::string serial;
    int port = 0;
    std::unique_ptr<Child_Program> phone;
};

}  // namespace velk
