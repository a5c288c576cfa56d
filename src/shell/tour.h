#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace velk {

class MainDocument;
class MainViewController;
struct Section;
class Velk_Window;

/// Shows the program at work by itself: connects, visits every section with clicks, opens its
/// dialogs, exports its page into the folder, saves a picture at each stop, prints what the summary
/// and the tables hold, and closes the window. What is on the phone stays as it is.
class Tour : public QObject {
    Q_OBJECT

  public:
    /// Shows the window. `folder` is made when it is not there.
    Tour(MainDocument& document, Velk_Window& window, std::string folder);

    /// For the program's end: 0, or 1 when a stop was not reached. The reason was printed then.
    int status() const { return status_; }

  private:
    struct Stop {
        std::string name;               // what is waited for, and the picture's name
        std::function<void()> start;    // what a person would do
        std::function<bool()> reached;  // true when the window shows it
        std::function<std::string()> report = {};
        std::function<bool()> left_out = {};  // there is nothing to be seen here
        bool pictured = true;
        bool agrees = false;  // a question on the way is answered with "Yes"
    };

    // The plan.
    void plan();
    void plan_section(int view, const char* button);
    void plan_contacts(const Section& section);
    void plan_messages(const Section& section);
    void plan_pictures(const std::string& name, const Section& section);
    void plan_first_row(const std::string& name, const Section& section);
    void plan_dialog(const std::string& name, const char* button, const char* dialog);
    void plan_end_of_dialog(const char* dialog);
    void plan_export(const std::string& name, const char* button, const Section& section);
    bool shows(const MainViewController* view) const;
    bool attempt_has_ended();
    bool lists_all_contacts() const;

    // What a person would do.
    void start_attempt();
    void click(const char* name);
    void select_first_row(const Section& section);
    void close_dialog();
    void choose_file(const std::string& path);
    /// The box that stands foremost, else the window.
    QWidget* front() const;
    /// All that stand before the window, the foremost last.
    std::vector<QWidget*> boxes() const;
    bool is_in_front(const char* name) const;
    bool takes_input() const;

    void start_next();
    void look();
    void answer_question();
    void take_picture();
    void fail(const std::string& reason);
    void finish(int status);

    MainDocument& document_;
    Velk_Window& window_;
    std::string folder_;
    std::deque<Stop> stops_;
    int number_ = 0;
    std::string report_;
    QTimer timer_;
    QElapsedTimer waited_;
    bool finished_ = false;
    int status_ = 1;
};

/// What the summary shows, a line for each value.
std::string summary_in_words(const MainDocument& document);

}  // namespace velk
