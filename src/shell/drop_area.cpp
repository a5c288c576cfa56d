#include "shell/drop_area.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "shell/look.h"
#include "shell/widgets.h"

namespace velk {

namespace {

constexpr int space_around = 12;

/// The bytes of the path, which need not be a text.
std::string path_of(const QUrl& url) {
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    return QByteArray::fromPercentEncoding(path).toStdString();
}

}  // namespace

Drop_Area::Drop_Area(const Dropped_Files& taken, QWidget* page)
    : QLabel(shown(taken.hint), page), taken_(taken) {
    setObjectName(QStringLiteral("drop_area"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setFont(scaled_font(1.25, true));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    page->setAcceptDrops(true);
    page->installEventFilter(this);
}

bool Drop_Area::eventFilter(QObject* page, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
            hold_over(*static_cast<QDropEvent*>(event));
            return true;
        case QEvent::Drop:
            drop(*static_cast<QDropEvent*>(event));
            return true;
        case QEvent::DragLeave:
        case QEvent::Hide:
            hide();
            return false;
        default:
            return QLabel::eventFilter(page, event);
    }
}

std::vector<std::string> Drop_Area::taken_of(const QDropEvent& event) const {
    std::vector<std::string> paths;
    if (taken_.guard && !*taken_.guard) return paths;
    QStringList patterns;
    for (const std::string& pattern : taken_.patterns) patterns << shown(pattern);
    for (const QUrl& url : event.mimeData()->urls())
        if (url.isLocalFile() && (patterns.isEmpty() || QDir::match(patterns, url.fileName())))
            paths.push_back(path_of(url));
    return paths;
}

void Drop_Area::hold_over(QDropEvent& event) {
    const bool takes = !taken_of(event).empty();
    // A drag may be meant to move; what is copied to the phone must stay where it is.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(takes);
    setGeometry(parentWidget()->rect().marginsRemoved(
        {space_around, space_around, space_around, space_around}));
    raise();
    setVisible(takes);
}

void Drop_Area::drop(QDropEvent& event) {
    hide();
    std::vector<std::string> paths = taken_of(event);
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(!paths.empty());
    if (!paths.empty()) taken_.take(std::move(paths));
}

}  // namespace velk
