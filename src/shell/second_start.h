// One Velk for each person on a computer: they would fight over the agent's port. A second start
// brings the window of the first to the front.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <functional>
#include <memory>

namespace velk {

/// The person's folder for what lives as long as a session; empty when there is none.
QString runtime_folder();

/// What a second start wants of the first.
struct Wish {
    bool connect = false;   // to look for the phone
    QByteArray token = {};  // by which the desktop lets a window come to the front
};

/// Who has it is the only Velk in that folder, until it goes; what a crash leaves is no obstacle.
class Only_One {
  public:
    /// With an empty folder, or one that takes no file, everybody is the only one.
    explicit Only_One(const QString& folder);

    enum class Answer { is_first, first_has_come, first_is_silent };
    /// Takes the lock, or asks the one that has it. One that is just ending, or has not yet come
    /// up, is waited for: seconds at most.
    Answer ask(const Wish& wish);

  private:
    bool take();
    bool first_comes(const Wish& wish) const;

    QString folder_;
    std::unique_ptr<QLockFile> lock_;
};

/// The first one's ear for second starts.
class Front_Service {
  public:
    /// `come` is called on the thread that made this. For the holder of the lock in that folder.
    Front_Service(const QString& folder, std::function<void(const Wish&)> come);

  private:
    void listen_to(QLocalSocket* caller);

    QLocalServer server_;
    std::function<void(const Wish&)> come_;
};

}  // namespace velk
