#include "session/window_outlets.h"

namespace velk {

std::array<Outlet*, 13> Window_Outlets::summary_controls() {
    return {&m_BT_Bottom_Apps,
            &m_BT_Bottom_Contacts,
            &m_BT_Bottom_SMS,
            &m_LB_MobileNameBig,
            &m_BT_Refresh,
            &m_LB_Size_PhoneTotalFree,
            &m_LB_Size_StorageTotalFree,
            &m_LB_Size_Phone_BK,
            &m_LB_Size_Storage_BK,
            &m_LevelIndicator_Size_Phone,
            &m_LevelIndicator_Size_Storage,
            &m_LB_Free_Phone_Caption,
            &m_LB_Free_Storage_Caption};
}

}  // namespace velk
