// The real adb, with a server of the test's own, and the demo phone as a program.
#pragma once

#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "base/interruptor.h"
#include "bridge/child_process.h"
#include "demo_phone/phone_sockets.h"
#include "support/temporary_folder.h"

namespace velk {

using Arguments = std::vector<std::string>;

inline std::string output_of(const Arguments& words) {
    std::string all;
    run_child({.words = words}, [&](std::string_view piece) { all += piece; });
    return all;
}

/// A port that was free when this looked.
inline int odd_port() {
    int port = 0;
    const Owned_Descriptor keeper = listen_odd_tcp(port);
    return port;
}

/// A program that is ended when this goes.
class Running_Program {
  public:
    explicit Running_Program(const Arguments& words)
        : thread_([this, words] {
              const Interruptor::Use use(ending_);
              run_child({.words = words}, [](std::string_view) {});
          }) {}
    ~Running_Program() {
        ending_.cancel();
        thread_.join();
    }

  private:
    Interruptor ending_;
    std::thread thread_;
};

/// The server runs as long as this lives, and so does the phone once it is announced.
class Demo_Phone_Programs {
  public:
    Demo_Phone_Programs() {
        setenv("ANDROID_ADB_SERVER_PORT", server_port.c_str(), 1);
        setenv("ADB_USB", "0", 1);
        setenv("ADB_EMU", "0", 1);
        for (const char* place : {"ANDROID_SDK_HOME", "TMPDIR"}) setenv(place, file("").c_str(), 1);
        adb("start-server");
    }
    ~Demo_Phone_Programs() {
        phone.reset();
        adb("kill-server");
        unsetenv("TMPDIR");  // it goes with the folder
    }
    Demo_Phone_Programs(const Demo_Phone_Programs&) = delete;
    Demo_Phone_Programs& operator=(const Demo_Phone_Programs&) = delete;

    void start_phone(const Arguments& options = {}) {
        const int port = odd_port();
        Arguments words{DEMO_PHONE_PROGRAM, "--port",     std::to_string(port), "--control",
                        file("ctl"),        "--announce", server_port};
        words.insert(words.end(), options.begin(), options.end());
        phone = std::make_unique<Running_Program>(words);
        serial = "emulator-" + std::to_string(port - 1);
    }
    /// adb has it, and may use it.
    bool phone_is_listed() const {
        return adb("devices").find(serial + "\tdevice") != std::string::npos;
    }
    static std::string adb(const std::string& command) {
        return output_of({"/usr/bin/env", "adb", command});
    }
    void tell(const std::string& command) const {
        output_of({DEMO_PHONE_PROGRAM, "--tell", file("ctl"), command});
    }
    std::string file(const std::string& name) const { return folder.path(name); }

    const Temporary_Folder folder;
    const std::string server_port = std::to_string(odd_port());
    std::string serial;
    std::unique_ptr<Running_Program> phone;
};

}  // namespace velk
