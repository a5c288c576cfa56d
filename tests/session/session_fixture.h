// A whole session without a window: the document, a scripted adb beside it, an agent, and the
// record of everything that the window would have shown, in order.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "session/main_document.h"
#include "support/agent_double.h"
#include "support/fake_adb.h"
#include "support/outlet_recorder.h"
#include "support/test_desktop.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

class Session : public testing::Test {
  protected:
    static constexpr const char* usable_list = "List of devices attached \nR58 M\tdevice\n\n";

    Session() {
        desktop.make_sleeps_instant();
        watch_everything();
        document.windowControllerDidLoadNib();
        recorder.clear();
    }
    ~Session() override { desktop.end_work(); }

    /// Answers that let an attempt end well.
    void phone_is_fine() {
        adb.answer("devices", usable_list);
        agent.reply_to(38, Agent_Double::battery(85));
        const std::map<int, const char*> values = {
            {81, "3000000"}, {85, "1000000"}, {79, "5000000000"}, {83, "1073741825"}, {75, "4.4.2"},
            {77, "Demo"},    {65, "12x"},     {66, "12x"},        {67, "30"},         {68, "40"},
            {70, "60"},      {72, "8"},       {74, "12"},         {114, "1.0"}};
        for (const auto& [code, text] : values) agent.reply_to(code, Agent_Double::value(text));
    }

    /// Presses Refresh and waits for the end of the attempt and of the loads behind it.
    void refresh() {
        document.OnBT_Refresh();
        desktop.finish_work();
    }

    std::string view_in_the_box() const {
        const MainViewController* view = document.m_Control_Box1.view();
        return view == nullptr ? "nothing" : view->name();
    }

    Fake_Adb adb;
    Test_Desktop desktop;
    Outlet_Recorder recorder;
    MainDocument document{desktop, adb.directory()};
    /// The sections have tried to load before there was an agent.
    const bool first_loads_have_ended = (desktop.finish_work(), true);
    Agent_Double agent;

  private:
    void watch_everything() {
        desktop.on_note = [this](const std::string& note) {
            if (!note.starts_with("sleep")) recorder.note(note);
        };
        MainDocument& d = document;
        const auto watch = [this](auto&... outlets) { (recorder.watch(outlets), ...); };
        watch(d.m_LB_ps, d.m_LB_Connected, d.m_LB_USBConnect, d.m_LB_SerialNumber,
              d.m_LB_MobileName, d.m_LB_AndroidVersion, d.m_LB_Battery, d.m_LB_Size_PhoneTotal,
              d.m_LB_Size_StorageTotal, d.m_LB_MobileNameBig, d.m_LB_Size_PhoneTotalFree,
              d.m_LB_Size_StorageTotalFree, d.m_LB_Size_Phone_BK, d.m_LB_Size_Storage_BK,
              d.m_LB_Free_Phone_Caption, d.m_LB_Free_Storage_Caption, d.m_BT_MyAndroid,
              d.m_BT_Contacts, d.m_BT_SMS, d.m_BT_Apps, d.m_BT_Music, d.m_BT_Photo, d.m_BT_Video,
              d.m_BT_Book, d.m_BT_Refresh, d.m_BT_Bottom_Apps, d.m_BT_Bottom_Contacts,
              d.m_BT_Bottom_SMS, d.m_Progress_Battery, d.m_LevelIndicator_Size_Phone,
              d.m_LevelIndicator_Size_Storage);
        recorder.watch(document.m_Control_Box1, [this] { return ": " + view_in_the_box(); });
    }
};

}  // namespace velk
