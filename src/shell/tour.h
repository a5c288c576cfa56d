#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>

class QAbstractButton;

namespace velk {

class MainDocument;
class MainViewController;
class Velk_Window;

/// Shows the program at work by itself: connects, visits every section with clicks, saves a picture
/// of the window at each stop, prints what the summary and the tables hold, and closes the window.
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
        std::function<std::string()> report;
    };

    void plan();
    void plan_sections();
    void start_next();
    void look();
    void take_picture();
    void click(const char* name);
    void fail(const std::string& reason);
    void finish(int status);
    bool shows(const MainViewController* view) const;
    bool attempt_has_ended();

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
