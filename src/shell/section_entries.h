// The places that a person can go to, in the order of the toolbar and of the View menu.
#pragma once

#include "session/main_document.h"

namespace velk {

struct Section_Entry {
    Button Window_Outlets::*outlet;
    const char* icon;
    void (MainDocument::*handler)();  // decides whether anything happens
    const char* view;                 // the name of the section's view; My Android has none
};

inline constexpr Section_Entry section_entries[] = {
    {&Window_Outlets::m_BT_MyAndroid, "my_android", &MainDocument::OnBT_MyAndroid, ""},
    {&Window_Outlets::m_BT_Contacts, "contacts", &MainDocument::OnBT_Contacts, "View_Contacts"},
    {&Window_Outlets::m_BT_SMS, "sms", &MainDocument::OnBT_SMS, "View_SMS"},
    {&Window_Outlets::m_BT_Apps, "apps", &MainDocument::OnBT_App, "View_App"},
    {&Window_Outlets::m_BT_Music, "music", &MainDocument::OnBT_Music, "View_Music"},
    {&Window_Outlets::m_BT_Photo, "photo", &MainDocument::OnBT_Photo, "View_Photo"},
    {&Window_Outlets::m_BT_Video, "video", &MainDocument::OnBT_Video, "View_Video"},
    {&Window_Outlets::m_BT_Book, "book", &MainDocument::OnBT_Book, "View_Book"},
};

/// The section of the view in the box; an empty box means My Android, and the views of the
/// connection belong to none.
inline bool is_shown(const Section_Entry& entry, const Content_Box& box) {
    return entry.view == (box.view() ? box.view()->name() : std::string());
}

/// What the shown view lists; nothing for a view that is no section.
inline const Section* shown_section(const MainDocument& document) {
    const MainViewController* const view = document.m_Control_Box1.view();
    return view ? view->section() : nullptr;
}

}  // namespace velk
