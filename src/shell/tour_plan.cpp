// Where the tour goes.
#include <QAbstractItemView>
#include <QDir>
#include <algorithm>
#include <cctype>

#include "base/text.h"
#include "managers/contacts_tablesource.h"
#include "session/main_document.h"
#include "shell/picture_list.h"
#include "shell/tour.h"
#include "shell/velk_window.h"
#include "shell/widgets.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

/// A short attempt may be over before the first point is lit.
bool the_points_run() {
    const Image& first = g_View_Start->m_Image_loading_1;
    const bool lit = first.picture() == g_PicFileName_LoadingAnimation_Light;
    return !first.hidden() && (lit || g_loading_animation_stop);
}

std::function<bool()> has_no_rows(const Section& section) {
    return [&section] { return section.table->rows().count() == 0; };
}

std::string small_letters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return std::tolower(letter); });
    return text;
}

}  // namespace

void Tour::plan() {
    stops_.push_back({"connecting", [this] { start_attempt(); }, [] { return the_points_run(); }});
    stops_.push_back({"connected", {}, [this] { return attempt_has_ended(); }});
    stops_.push_back({"summary", [this] { click("m_BT_MyAndroid"); },
                      [this] { return shows(nullptr); },
                      [this] { return summary_in_words(document_); }});
    plan_section(DEFINE_VIEW_Contacts, "m_BT_Contacts");
    plan_section(DEFINE_VIEW_SMS, "m_BT_SMS");
    plan_section(DEFINE_VIEW_App, "m_BT_Apps");
    plan_section(DEFINE_VIEW_Music, "m_BT_Music");
    plan_section(DEFINE_VIEW_Photo, "m_BT_Photo");
    plan_section(DEFINE_VIEW_Video, "m_BT_Video");
    plan_section(DEFINE_VIEW_Book, "m_BT_Book");
}

void Tour::plan_section(int id, const char* button) {
    const MainViewController* const view = document_.m_views[static_cast<std::size_t>(id)].get();
    const Section* const section = view->section();
    if (!section) return;
    const std::string name = small_letters(section->title);
    stops_.push_back({.name = name,
                      .start = [this, button] { click(button); },
                      .reached =
                          [this, view, section] {
                              return shows(view) && all_guards_are_up(*section) &&
                                     !document_.lists_are_coming() &&
                                     document_.busy.m_LB_Busy.text().empty();
                          },
                      .report =
                          [section] {
                              return format("%s: %d rows\n", section->title.c_str(),
                                            section->table->rows().count());
                          }});
    if (id == DEFINE_VIEW_Contacts) plan_contacts(*section);
    if (id == DEFINE_VIEW_SMS) plan_messages(*section);
    if (section->pictures.path_column) plan_pictures(name, *section);
}

void Tour::plan_contacts(const Section& section) {
    plan_dialog("contacts-add", "OnBT_AddContacts", "Contacts_Add");
    plan_end_of_dialog("Contacts_Add");
    plan_first_row("contacts-selected", section);
    plan_dialog("contacts-modify", "OnBT_ModifyContacts", "Contacts_Edit");
    stops_.back().left_out = has_no_rows(section);
    plan_end_of_dialog("Contacts_Edit");
    plan_export("contacts", "OnBT_ContactsExport", section);
}

void Tour::plan_messages(const Section& section) {
    plan_first_row("messages-selected", section);
    plan_dialog("messages-send", "OnBT_SendSMS", "SMS_Send");
    plan_dialog("messages-recipients", "OnBT_Contacts", "SMS_Contacts");
    stops_.back().reached = [this] { return is_in_front("SMS_Contacts") && lists_all_contacts(); };
    plan_end_of_dialog("SMS_Contacts");
    plan_end_of_dialog("SMS_Send");
    plan_export("messages", "OnBT_Export_SMS", section);
}

void Tour::plan_pictures(const std::string& name, const Section& section) {
    stops_.push_back({.name = name + "-pictures",
                      .start = [this] { click("view_pictures"); },
                      .reached =
                          [this] {
                              const auto* const list = window_.findChild<Picture_List*>();
                              return list && list->isVisible() && list->complete();
                          },
                      .left_out = has_no_rows(section)});
}

void Tour::plan_first_row(const std::string& name, const Section& section) {
    stops_.push_back({.name = name,
                      .start = [this, &section] { select_first_row(section); },
                      .reached = [&section] { return section.table->selected_row() == 0; },
                      .left_out = has_no_rows(section)});
}

void Tour::plan_dialog(const std::string& name, const char* button, const char* dialog) {
    stops_.push_back({.name = name,
                      .start = [this, button] { click(button); },
                      .reached = [this, dialog] { return is_in_front(dialog); }});
}

void Tour::plan_end_of_dialog(const char* dialog) {
    stops_.push_back({.name = std::string("the end of ") + dialog,
                      .start = [this] { close_dialog(); },
                      .reached = [this, dialog] { return !is_in_front(dialog); },
                      .left_out = [this, dialog] { return !is_in_front(dialog); },
                      .pictured = false});
}

void Tour::plan_export(const std::string& name, const char* button, const Section& section) {
    stops_.push_back({.name = name + "-export",
                      .start = [this, button] { click(button); },
                      .reached = [this] { return front()->inherits("QFileDialog"); }});
    const std::string path = QDir(shown(folder_)).absoluteFilePath(shown(name)).toStdString();
    stops_.push_back({.name = name + "-exported",
                      .start = [this, path] { choose_file(path); },
                      .reached =
                          [this, &section] {
                              return front() == &window_ &&
                                     section.status->text().starts_with("Successed to save");
                          },
                      .agrees = true});
}

bool Tour::lists_all_contacts() const {
    const auto* const table = front()->findChild<QAbstractItemView*>();
    return table && table->model()->rowCount() == g_contacts_tablesource->table_rows.count() &&
           document_.busy.m_LB_Busy.text().empty();
}

bool Tour::shows(const MainViewController* view) const {
    return document_.m_Control_Box1.view() == view;
}

// A phone on the cable may have started an attempt already.
void Tour::start_attempt() {
    if (g_can_click_refresh) click("OnBT_Refresh");
}

bool Tour::attempt_has_ended() {
    if (!g_can_click_refresh || !g_can_click_loading_animation) return false;
    if (!g_connected_adb)
        fail("no phone was reached: " + document_.m_LB_Connected.text() + " (shown is " +
             document_.m_Control_Box1.view()->name() + ")");
    return !finished_;
}

}  // namespace velk
