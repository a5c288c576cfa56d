// The content views that show a section; their managers do the work.
#pragma once

#include "managers/app_tablesource.h"
#include "managers/contacts_tablesource.h"
#include "managers/file_panes.h"
#include "managers/sms_tablesource.h"
#include "session/views.h"

namespace velk {

template <class Source>
class Section_View : public MainViewController {
  public:
    Section_View(std::string name, Main_Window& window)
        : MainViewController(std::move(name)), source(window) {}
    const Section* section() const override { return &source.section; }

    Source source;
};

struct View_Contacts : Section_View<Contacts_TableSource> {
    explicit View_Contacts(Main_Window& window) : Section_View("View_Contacts", window) {}
};
struct View_SMS : Section_View<SMS_TableSource> {
    explicit View_SMS(Main_Window& window) : Section_View("View_SMS", window) {}
};
struct View_App : Section_View<App_TableSource> {
    explicit View_App(Main_Window& window) : Section_View("View_App", window) {}
};
struct View_Music : Section_View<Music_TableSource> {
    explicit View_Music(Main_Window& window) : Section_View("View_Music", window) {}
};
struct View_Photo : Section_View<Photo_TableSource> {
    explicit View_Photo(Main_Window& window) : Section_View("View_Photo", window) {}
};
struct View_Video : Section_View<Video_TableSource> {
    explicit View_Video(Main_Window& window) : Section_View("View_Video", window) {}
};
struct View_Book : Section_View<Book_TableSource> {
    explicit View_Book(Main_Window& window) : Section_View("View_Book", window) {}
};

}  // namespace velk
