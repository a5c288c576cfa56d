#pragma once

#include <QObject>
#include <functional>

namespace velk {

/// Calls `end` on the user-interface thread when the system asks the program to end (SIGTERM,
/// SIGHUP, SIGINT). One object at a time; while it lives, these signals no longer kill.
class Unix_Signals : public QObject {
    Q_OBJECT

  public:
    explicit Unix_Signals(std::function<void()> end);
    ~Unix_Signals() override;
};

}  // namespace velk
