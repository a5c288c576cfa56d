#include "managers/file_panes.h"

#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* after_an_add = "Starting install this application to your phone...";
constexpr const char* id_and_path = "%s:%s";
constexpr const char* id_alone = "%s";

const File_Pane music_pane = {
    .name = "Music",
    .title = "Music",
    .files = "music",
    .button = Toolbar_Section::music,
    .button_title = "Music",
    .list_code = "115",
    .loading = "Loading No.%s '%s' musics......",
    .loaded = "There are %zu musics on your mobile phone.",
    .phone_folder = "/sdcard/music",
    .after_add = after_an_add,
    .delete_result = id_and_path,
    .delete_code = &sock_apk::getCommand_DelMusicFile,
    .has_ids = true,
    .export_button = "OnBT_Export_Music",
    .may_load = Music_TableSource::g_can_click_load,
    .may_add = Music_TableSource::g_can_click_install,
    .may_delete = Music_TableSource::g_can_click_delete_music,
    .may_export = Music_TableSource::g_can_click_music_export,
    .counted = g_int_count_music,
};

const File_Pane video_pane = {
    .name = "Video",
    .title = "Videos",
    .files = "videos",
    .button = Toolbar_Section::video,
    .button_title = "Videos",
    .list_code = "117",
    .loading = "Loading No.%s '%s' videos......",
    .loaded = "There are %zu videos on your Mobile Phone.",
    .phone_folder = "/sdcard/movies",
    .after_add = after_an_add,
    .delete_result = id_and_path,
    .delete_code = &sock_apk::getCommand_DelVideoFile,
    .has_ids = true,
    .export_button = "OnBT_Export_Video",
    .may_load = Video_TableSource::g_can_click_sms_load,
    .may_add = Video_TableSource::g_can_add_file,
    .may_delete = Video_TableSource::g_can_click_delete_video,
    .may_export = Video_TableSource::g_can_click_video_export,
    .counted = g_int_count_videos,
};

const File_Pane photo_pane = {
    .name = "Photo",
    .title = "Photos",
    .files = "photos",
    .button = Toolbar_Section::photo,
    .button_title = "Photos",
    .list_code = "118",
    .loading = "Loading No.%s '%s' photos......",
    .loaded = "There are %zu photos on your Mobile Phone.",
    .phone_folder = "/sdcard/photo",
    .after_add = "",
    .delete_result = id_and_path,
    .delete_code = &sock_apk::getCommand_DelPhotoFile,
    .has_ids = true,
    .export_button = "OnBT_Export_Photo",
    .pictures = {"photo_file_path", "photo_size"},
    .may_load = Photo_TableSource::g_can_click_sms_load,
    .may_add = Photo_TableSource::g_can_click_add_photo,
    .may_delete = Photo_TableSource::g_can_click_delete_photo,
    .may_export = Photo_TableSource::g_can_click_photo_export,
    .counted = g_int_count_photos,
};

const File_Pane book_pane = {
    .name = "Book",
    .title = "Books",
    .files = "books",
    .button = Toolbar_Section::book,
    .button_title = "Books",
    .list_code = "119",
    .loading = "Loading No.%s '%s' books......",
    .loaded = "There are %zu books on your Mobile Phone.",
    .phone_folder = "/sdcard/book",
    .after_add = after_an_add,
    .delete_result = id_alone,
    .delete_code = &sock_apk::getCommand_DelBookFile,
    .has_ids = false,
    .export_button = "OnBT_Export_Book",
    .may_load = Book_TableSource::g_can_click_sms_load,
    .may_add = Book_TableSource::g_can_add_file,
    .may_delete = Book_TableSource::g_can_click_delete_book,
    .may_export = Book_TableSource::g_can_click_book_export,
    .counted = g_int_count_books,
};

}  // namespace

Music_TableSource::Music_TableSource(Main_Window& window) : File_Table(window, music_pane) {
    Load();
}

Video_TableSource::Video_TableSource(Main_Window& window) : File_Table(window, video_pane) {
    Load();
}

Photo_TableSource::Photo_TableSource(Main_Window& window) : File_Table(window, photo_pane) {
    Load();
}

Book_TableSource::Book_TableSource(Main_Window& window) : File_Table(window, book_pane) {
    SMSLoad();
}

}  // namespace velk
