// The program's session with the real adb, whose server is the test's own, and the demo phone as a
// program: nothing in between that is not real.
#pragma once

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <thread>

#include "base/interruptor.h"
#include "bridge/child_process.h"
#include "demo_phone/phone_sockets.h"
#include "managers/contacts_tablesource.h"
#include "session/main_document.h"
#include "support/temporary_folder.h"
#include "support/test_desktop.h"
#include "ui/program_wide.h"

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

class On_The_Demo_Phone : public testing::Test {
  protected:
    void SetUp() override {
        server_port = std::to_string(odd_port());
        setenv("ANDROID_ADB_SERVER_PORT", server_port.c_str(), 1);
        setenv("ADB_USB", "0", 1);
        setenv("ADB_EMU", "0", 1);
        for (const char* place : {"ANDROID_SDK_HOME", "TMPDIR"}) setenv(place, file("").c_str(), 1);
        adb("start-server");
        desktop.make_sleeps_instant();
        document.windowControllerDidLoadNib();
    }
    void TearDown() override {
        desktop.end_work();
        phone.reset();
        adb("kill-server");
        unsetenv("TMPDIR");  // it goes with the folder
    }

    void announce_phone(const Arguments& options = {}) {
        const int port = odd_port();
        Arguments words{DEMO_PHONE_PROGRAM, "--port",     std::to_string(port), "--control",
                        file("ctl"),        "--announce", server_port};
        words.insert(words.end(), options.begin(), options.end());
        phone = std::make_unique<Running_Program>(words);
        serial = "emulator-" + std::to_string(port - 1);
        const std::string listed = serial + "\tdevice";
        ASSERT_TRUE(
            desktop.pump_until([&] { return adb("devices").find(listed) != std::string::npos; }));
    }
    void refresh() {
        document.OnBT_Refresh();
        desktop.finish_work();
    }
    void connect(const Arguments& phone_options) {
        announce_phone(phone_options);
        refresh();
        ASSERT_EQ(g_connected_adb, 1);
    }
    void load_contacts() {
        document.OnBT_Contacts();
        desktop.finish_work();
    }
    static std::string adb(const std::string& command) {
        return output_of({"/usr/bin/env", "adb", command});
    }
    void tell(const std::string& command) {
        output_of({DEMO_PHONE_PROGRAM, "--tell", file("ctl"), command});
    }
    std::string file(const std::string& name) const { return folder.path(name); }
    const Row_List<Contacts_TableSource_Column>& rows() const {
        return g_contacts_tablesource->table_rows;
    }

    const Temporary_Folder folder;
    std::string server_port, serial;
    std::unique_ptr<Running_Program> phone;
    Test_Desktop desktop;
    MainDocument document{desktop, PROGRAM_FOLDER};
};

}  // namespace velk
