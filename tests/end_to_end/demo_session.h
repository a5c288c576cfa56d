// The program's session with the demo phone, with nothing between that is not real.
#pragma once

#include <gmock/gmock.h>

#include "demo_phone/adb_tools.h"
#include "managers/contacts_tablesource.h"
#include "session/main_document.h"
#include "support/test_desktop.h"
#include "ui/program_wide.h"

namespace velk {

class On_The_Demo_Phone : public Adb_Test {
  protected:
    void SetUp() override {
        Adb_Test::SetUp();
        desktop.make_sleeps_instant();
        document.windowControllerDidLoadNib();
    }
    void TearDown() override {
        desktop.end_work();
        Adb_Test::TearDown();
    }

    void refresh() {
        document.OnBT_Refresh();
        desktop.finish_work();
    }
    void connect(const Arguments& phone_options) {
        announce_phone(phone_options);
        ASSERT_TRUE(becomes("device"));
        refresh();
        ASSERT_EQ(g_connected_adb, 1);
    }
    void load_contacts() {
        document.OnBT_Contacts();
        desktop.finish_work();
    }
    std::string view() const {
        const MainViewController* shown = document.m_Control_Box1.view();
        return shown == nullptr ? "nothing" : shown->name();
    }
    const Row_List<Contacts_TableSource_Column>& rows() const {
        return g_contacts_tablesource->table_rows;
    }

    Test_Desktop desktop;
    MainDocument document{desktop, PROGRAM_FOLDER};
};

}  // namespace velk
