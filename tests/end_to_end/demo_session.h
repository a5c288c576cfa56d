// The program's session with the real adb, whose server is the test's own, and the demo phone as a
// program: nothing in between that is not real.
#pragma once

#include <gmock/gmock.h>

#include "end_to_end/demo_phone_programs.h"
#include "managers/contacts_tablesource.h"
#include "session/main_document.h"
#include "support/test_desktop.h"
#include "ui/program_wide.h"

namespace velk {

class On_The_Demo_Phone : public testing::Test, protected Demo_Phone_Programs {
  protected:
    void SetUp() override {
        desktop.make_sleeps_instant();
        document.windowControllerDidLoadNib();
    }
    void TearDown() override { desktop.end_work(); }

    void announce_phone(const Arguments& options = {}) {
        start_phone(options);
        ASSERT_TRUE(desktop.pump_until([this] { return phone_is_listed(); }));
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
    const Row_List<Contacts_TableSource_Column>& rows() const {
        return g_contacts_tablesource->table_rows;
    }

    Test_Desktop desktop;
    MainDocument document{desktop, PROGRAM_FOLDER};
};

}  // namespace velk
