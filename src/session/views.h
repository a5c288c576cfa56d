// The content views, without a window: what each holds and does. The window draws a page for each
// the first time that it is shown. Those that show a section are in section_views.h.
#pragma once

#include <array>
#include <string>

#include "ui/for_thread_var.h"
#include "ui/outlets.h"
#include "ui/section.h"

namespace velk {

class MainDocument;

// The ids: a view's place in the session's list of views.
inline constexpr int DEFINE_VIEW_Start = 0;
inline constexpr int DEFINE_VIEW_AllowPCConnect = 1;
inline constexpr int DEFINE_VIEW_Contacts = 2;
inline constexpr int DEFINE_VIEW_SMS = 3;
inline constexpr int DEFINE_NULL = 4;
inline constexpr int DEFINE_VIEW_SettingPhoneUSB = 5;
inline constexpr int DEFINE_VIEW_App = 6;
inline constexpr int DEFINE_VIEW_Music = 7;
inline constexpr int DEFINE_VIEW_Photo = 8;
inline constexpr int DEFINE_VIEW_Video = 9;
inline constexpr int DEFINE_VIEW_Book = 10;

/// The base of every content view. Made by the session, lives as long as it does.
class MainViewController {
  public:
    /// `name` is the class's own, "View_Start", and names the page that the window draws.
    explicit MainViewController(std::string name) : name_(std::move(name)) {}
    virtual ~MainViewController() = default;
    MainViewController(const MainViewController&) = delete;
    MainViewController& operator=(const MainViewController&) = delete;

    const std::string& name() const { return name_; }
    const std::string& title() const { return title_; }

    /// The document whose data the view shows; set by the session when it builds its views.
    MainDocument* managedObjectContext = nullptr;

    /// Called each time before the view is shown; loads it the first time.
    void load_once();

    /// The table section the view shows, or none.
    virtual const Section* section() const { return nullptr; }

  protected:
    virtual void loadView() {}

  private:
    std::string name_;
    std::string title_;
    bool loaded_ = false;
};

/// The three views of the connection hide the summary page's controls when they are loaded, and
/// have a Refresh button of their own.
class Connection_View : public MainViewController {
  public:
    using MainViewController::MainViewController;
    Label m_LB_Trouble{"m_LB_Trouble"};  // what has to be put right, as things stand now

    /// The session's Refresh button.
    void OnBT_Refresh();

  protected:
    void loadView() override;
};

/// The start view: a phone, a computer, and four points that run between them while an attempt
/// runs.
class View_Start : public Connection_View {
  public:
    View_Start();
    ~View_Start() override;

    Image m_Image_loading_1{"m_Image_loading_1"};
    Image m_Image_loading_2{"m_Image_loading_2"};
    Image m_Image_loading_3{"m_Image_loading_3"};
    Image m_Image_loading_4{"m_Image_loading_4"};
    Image m_Image_USB_Line{"m_Image_USB_Line"};
    Label m_LB_Msg_ConnectPhone{"m_LB_Msg_ConnectPhone"};
    Label m_LB_ConnectingYourPhone{"m_LB_ConnectingYourPhone"};

    // Any thread.
    void Start_Loading_Animation();
    /// Asks the animation to stop and returns at once; it ends at its next step.
    void Stop_Loading_Animation();
    /// Starts the animation unless it runs: two picture names, and the seconds of one step.
    void Loading_Animation(const std::string& PictureGray, const std::string& PictureLight,
                           float TimeInterval);

  private:
    static constexpr int no_point = -1;

    std::array<Image*, 4> all_points();
    void animate(const For_Thread_Var& arguments);
    void switch_to_points(bool to_points);
    /// Lights one point, counted from 0, and no other.
    void light(int lit, const For_Thread_Var& arguments);
};

/// Asks the person to allow this computer on the phone.
class View_AllowPCConnect : public Connection_View {
  public:
    View_AllowPCConnect();
    Label m_LB_Tips{"m_LB_Tips"};
};

/// Explains how to switch on USB debugging.
class View_SettingPhoneUSB : public Connection_View {
  public:
    View_SettingPhoneUSB() : Connection_View("View_SettingPhoneUSB") {}
};

/// An empty view.
struct View_NULL : MainViewController {
    View_NULL() : MainViewController("View_NULL") {}
};

}  // namespace velk
