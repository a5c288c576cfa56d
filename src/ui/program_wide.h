// The names that the whole program knows, all in this one file.
//
// Flags are bytes, 0 or 1, and belong to the user-interface thread like everything that a window
// shows. A can-click flag is 1 while its action may start: the handler tests it and sets it to 0,
// the action's worker sets it back when it ends; a handler that finds 0 does nothing and queues
// nothing. A need-refresh flag is 1 while its table is stale: the section's button tests and
// clears it, and reloads the table.
#pragma once

#include <map>
#include <string>

#include "ui/command.h"

namespace velk {

class MainDocument;
class Contacts_TableSource;
class SMS_TableSource;
class App_TableSource;
class SMS_Contacts;
class View_Start;

// Set once by each of these when it is made, cleared when it goes.
inline MainDocument* g_window = nullptr;
inline Contacts_TableSource* g_contacts_tablesource = nullptr;
inline SMS_TableSource* g_sms_tablesource = nullptr;
inline App_TableSource* g_app_tablesource = nullptr;
inline SMS_Contacts* g_SMS_Contacts = nullptr;
inline View_Start* g_View_Start = nullptr;

// The connection.
inline int g_device = 100;               // arrivals less messages of the USB bus; logged only
inline Flag g_run_threading = 0;         // 1 from a screen reset to the start of an attempt
inline int g_total_count = 0;            // attempts since the program's start; logged
inline int g_kill_adb_server_count = 0;  // attempts that found a phone waiting for "Allow PC"
inline Flag g_ver4_unauthorized = 0;     // the phone has not allowed this computer yet
inline Flag g_connected_adb = 0;         // the agent is deployed and the summary read
inline Flag g_is_to_print = 1;           // progress texts go to the status line
inline std::string g_device_serial_number;

/// 1 once anything was added, deleted, imported, sent, installed or uninstalled since the summary
/// was read: what the phone counted then is no measure of its lists any more.
inline Flag g_phone_was_changed = 0;

// Actions that may start. Those of the other sections are members of their managers.
inline Flag g_can_click_refresh = 1;
inline Flag g_can_click_contacts_load = 1;
inline Flag g_can_click_contacts_import = 1;
inline Flag g_can_click_contacts_delete_all = 1;
inline Flag g_can_click_sms_load = 1;
inline Flag g_can_click_sms_delete_all = 1;
inline Flag g_can_click_loading_animation = 1;
inline Flag g_loading_animation_stop = 0;  // 1 asks the animation to stop

// Tables that are stale.
inline Flag g_table_contacts_need_refresh = 1;
inline Flag g_table_sms_need_refresh = 1;
inline Flag g_table_app_need_refresh = 1;

// What the phone counted, as the device summary read it.
inline int g_int_count_contacts = 0;
inline int g_int_count_sms = 0;
inline int g_int_count_apps = 0;
inline int g_int_count_photos = 0;
inline int g_int_count_music = 0;
inline int g_int_count_videos = 0;
inline int g_int_count_books = 0;

// The application: set when it starts.
inline std::map<std::string, std::string> gPageSettingKeyValue;  // of the configuration
inline std::string kBundleIdentifier;  // names the program's folder among the person's data
inline std::string kTempInputDir;      // whole paths of two folders in it
inline std::string kTempOutputDir;

// The look of the toolbar.
inline constexpr Flag g_toolbar_text_is_white = 1;
inline Flag b_is_white_ToolBar_ButtonCaption = g_toolbar_text_is_white;

// The start view's points.
inline constexpr const char* g_PicFileName_LoadingAnimation_Gray = "connectPoint.png";
inline constexpr const char* g_PicFileName_LoadingAnimation_Light = "connectingPoint.png";

}  // namespace velk
