// The four sections that list files. What each has of its own is in file_panes.cpp.
#pragma once

#include "managers/file_tablesource.h"

namespace velk {

// Each is made with the main window, and loads its list at once.

class Music_TableSource final : public File_Table<Music_TableSource_Column> {
  public:
    explicit Music_TableSource(Main_Window& window);
    void Load() { start_loading(); }
    void OnBT_Export_Music() { choose_folder_and_export(); }

    static inline Flag g_can_click_load = 1;
    static inline Flag g_can_click_install = 1;
    static inline Flag g_can_click_delete_music = 1;
    static inline Flag g_can_click_music_export = 1;
};

class Video_TableSource final : public File_Table<Video_TableSource_Column> {
  public:
    explicit Video_TableSource(Main_Window& window);
    void Load() { start_loading(); }
    void OnBT_Export_Video() { choose_folder_and_export(); }

    static inline Flag g_can_click_sms_load = 1;
    static inline Flag g_can_add_file = 1;
    static inline Flag g_can_click_delete_video = 1;
    static inline Flag g_can_click_video_export = 1;
};

class Photo_TableSource final : public File_Table<Photo_TableSource_Column> {
  public:
    explicit Photo_TableSource(Main_Window& window);
    void Load() { start_loading(); }
    void OnBT_Export_Photo() { choose_folder_and_export(); }

    static inline Flag g_can_click_sms_load = 1;
    static inline Flag g_can_click_add_photo = 1;
    static inline Flag g_can_click_delete_photo = 1;
    static inline Flag g_can_click_photo_export = 1;
};

class Book_TableSource final : public File_Table<Book_TableSource_Column> {
  public:
    explicit Book_TableSource(Main_Window& window);
    void SMSLoad() { start_loading(); }
    void OnBT_Export_Book() { choose_folder_and_export(); }

    static inline Flag g_can_click_sms_load = 1;
    static inline Flag g_can_add_file = 1;
    static inline Flag g_can_click_delete_book = 1;
    static inline Flag g_can_click_book_export = 1;
};

}  // namespace velk
