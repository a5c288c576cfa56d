// The controls of the main window, as the program sees them.
#pragma once

#include <array>

#include "session/content_box.h"
#include "ui/busy_line.h"
#include "ui/outlets.h"

namespace velk {

struct Window_Outlets {
    Label window_title{"window_title"};
    Content_Box m_Control_Box1{"m_Control_Box1"};

    // The toolbar.
    Button m_BT_MyAndroid{"m_BT_MyAndroid"};
    Button m_BT_Contacts{"m_BT_Contacts"};
    Button m_BT_SMS{"m_BT_SMS"};
    Button m_BT_Apps{"m_BT_Apps"};
    Button m_BT_Music{"m_BT_Music"};
    Button m_BT_Photo{"m_BT_Photo"};
    Button m_BT_Video{"m_BT_Video"};
    Button m_BT_Book{"m_BT_Book"};

    // Always on the window.
    Label m_LB_ps{"m_LB_ps"};        // the status line
    Busy_Line busy;                  // what is waited for, beside the status line
    Label m_LB_Port{"m_LB_Port"};    // what keeps every connection from working; empty, mostly
    Label m_LB_Agent{"m_LB_Agent"};  // why the agent cannot do everything; empty, mostly
    Label m_LB_Connected{"m_LB_Connected"};
    Label m_LB_USBConnect{"m_LB_USBConnect"};
    Label m_LB_SerialNumber{"m_LB_SerialNumber"};
    Label m_LB_MobileName{"m_LB_MobileName"};
    Label m_LB_AndroidVersion{"m_LB_AndroidVersion"};
    Label m_LB_Battery{"m_LB_Battery"};
    Level_Indicator m_Progress_Battery{"m_Progress_Battery", 5};
    Label m_LB_Size_PhoneTotal{"m_LB_Size_PhoneTotal"};
    Label m_LB_Size_StorageTotal{"m_LB_Size_StorageTotal"};

    // The summary page's controls.
    Button m_BT_Bottom_Apps{"m_BT_Bottom_Apps"};
    Button m_BT_Bottom_Contacts{"m_BT_Bottom_Contacts"};
    Button m_BT_Bottom_SMS{"m_BT_Bottom_SMS"};
    Label m_LB_MobileNameBig{"m_LB_MobileNameBig"};
    Button m_BT_Refresh{"m_BT_Refresh"};
    Label m_LB_Size_PhoneTotalFree{"m_LB_Size_PhoneTotalFree"};
    Label m_LB_Size_StorageTotalFree{"m_LB_Size_StorageTotalFree"};
    Label m_LB_Size_Phone_BK{"m_LB_Size_Phone_BK"};
    Label m_LB_Size_Storage_BK{"m_LB_Size_Storage_BK"};
    Level_Indicator m_LevelIndicator_Size_Phone{"m_LevelIndicator_Size_Phone", 100};
    Level_Indicator m_LevelIndicator_Size_Storage{"m_LevelIndicator_Size_Storage", 100};
    Label m_LB_Free_Phone_Caption{"m_LB_Free_Phone_Caption"};
    Label m_LB_Free_Storage_Caption{"m_LB_Free_Storage_Caption"};

    /// The controls that hidden_some hides and shows, in its order.
    std::array<Outlet*, 13> summary_controls();
};

}  // namespace velk
