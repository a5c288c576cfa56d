#include "session/main_document.h"
#include "shell/tour.h"

namespace velk {

std::string summary_in_words(const MainDocument& document) {
    struct Line {
        const char* what;
        const std::string& value;
    };
    const Line lines[] = {
        {"Phone", document.m_LB_MobileName.text()},
        {"Android", document.m_LB_AndroidVersion.text()},
        {"Connection", document.m_LB_Connected.text()},
        {"Cable", document.m_LB_USBConnect.text()},
        {"Serial number", document.m_LB_SerialNumber.text()},
        {"Battery", document.m_LB_Battery.text()},
        {"Phone memory", document.m_LB_Size_PhoneTotal.text()},
        {"Phone memory, free", document.m_LB_Size_PhoneTotalFree.text()},
        {"Storage", document.m_LB_Size_StorageTotal.text()},
        {"Storage, free", document.m_LB_Size_StorageTotalFree.text()},
        {"Toolbar", document.m_BT_Contacts.title()},
        {"Toolbar", document.m_BT_SMS.title()},
        {"Toolbar", document.m_BT_Apps.title()},
        {"Toolbar", document.m_BT_Music.title()},
        {"Toolbar", document.m_BT_Photo.title()},
        {"Toolbar", document.m_BT_Video.title()},
        {"Toolbar", document.m_BT_Book.title()},
    };
    std::string words;
    for (const Line& line : lines) words += std::string(line.what) + ": " + line.value + "\n";
    return words;
}

}  // namespace velk
