#pragma once

#include "managers/manager_fixture.h"
#include "managers/sms_tablesource.h"

namespace velk {

/// The messages manager with a phone whose messages the test lists.
class SMS_Test : public Manager_Test {
  protected:
    SMS_Test() {
        recorder.watch(sms.m_LB_TIPS);
        recorder.watch(sms.m_table);
        g_int_count_sms = 0;
        g_table_sms_need_refresh = 0;
    }
    ~SMS_Test() override { window.test_desktop.end_work(); }

    /// Loads these and forgets what that looked like.
    void load(const std::vector<Agent_Double::Message>& on_the_phone) {
        agent.reply_to(47, Agent_Double::messages(on_the_phone));
        sms.OnBT_Refresh();
        finish();
        recorder.clear();
    }

    SMS_TableSource sms{window};
};

}  // namespace velk
