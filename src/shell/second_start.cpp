#include "shell/second_start.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <utility>

#include "base/trace.h"

namespace velk {

namespace {

constexpr int longest_wait = 5'000;  // milliseconds; closing a window takes two seconds at most
constexpr int pause_between_tries = 50;
constexpr int longest_silence = 1'000;  // of one that has taken the call
constexpr qint64 longest_wish = 4'096;  // bytes

const QByteArray here = "here\n";

QString socket_in(const QString& folder) {
    return folder + QStringLiteral("/velk.socket");
}

// One line: what to do, and the token, which has neither blanks nor line breaks.
QByteArray line_of(const Wish& wish) {
    return (wish.connect ? "connect " : "show ") + wish.token.simplified() + '\n';
}

Wish wish_of(const QByteArray& line) {
    const qsizetype blank = line.indexOf(' ');
    return {line.left(blank) == "connect", line.mid(blank + 1).trimmed()};
}

}  // namespace

QString runtime_folder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

Only_One::Only_One(const QString& folder) : folder_(folder) {
    if (folder.isEmpty()) return;
    lock_ = std::make_unique<QLockFile>(folder + QStringLiteral("/velk.lock"));
    lock_->setStaleLockTime(0);  // only the end of its holder makes a lock stale
}

bool Only_One::take() {
    return !lock_ || lock_->tryLock(0) || lock_->error() != QLockFile::LockFailedError;
}

Only_One::Answer Only_One::ask(const Wish& wish) {
    QElapsedTimer waited;
    waited.start();
    do {
        if (take()) return Answer::is_first;
        if (first_comes(wish)) return Answer::first_has_come;
        QThread::msleep(pause_between_tries);
    } while (!waited.hasExpired(longest_wait));
    return Answer::first_is_silent;
}

bool Only_One::first_comes(const Wish& wish) const {
    QLocalSocket first;
    first.connectToServer(socket_in(folder_));
    if (!first.waitForConnected(longest_silence)) return false;
    first.write(line_of(wish));
    while (!first.canReadLine())
        if (!first.waitForReadyRead(longest_silence)) return false;
    return first.readLine() == here;
}

Front_Service::Front_Service(const QString& folder, std::function<void(const Wish&)> come)
    : come_(std::move(come)) {
    if (folder.isEmpty()) return;
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* const caller = server_.nextPendingConnection()) listen_to(caller);
    });
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(socket_in(folder));  // of one that has crashed
    if (!server_.listen(socket_in(folder)))
        log_line("a second start will not be heard: %s",
                 server_.errorString().toStdString().c_str());
}

void Front_Service::listen_to(QLocalSocket* caller) {
    caller->setReadBufferSize(longest_wish);
    QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    const auto hear = [this, caller] {
        if (!caller->canReadLine()) return;
        const Wish wish = wish_of(caller->readLine());
        QObject::disconnect(caller, &QLocalSocket::readyRead, nullptr, nullptr);  // one is enough
        caller->write(here);
        caller->flush();  // the other one ends while this one comes
        caller->disconnectFromServer();
        come_(wish);
    };
    QObject::connect(caller, &QLocalSocket::readyRead, &server_, hear);
    hear();
}

}  // namespace velk
