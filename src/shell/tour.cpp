#include "shell/tour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QDialogButtonBox>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <cstdio>
#include <utility>

#include "base/text.h"
#include "session/main_document.h"
#include "shell/pictures.h"
#include "shell/velk_window.h"
#include "ui/section.h"

namespace velk {

namespace {

constexpr QSize size_of_pictures{1280, 800};
constexpr int milliseconds_between_looks = 20;
constexpr int longest_wait = 120'000;  // milliseconds at one stop
constexpr QColor shade(0, 0, 0, 70);   // over what a box stands before

void press_and_release(QWidget* target, QPointF at) {
    const QPointF on_screen = target->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, on_screen, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, on_screen, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(target, &press);
    QCoreApplication::sendEvent(target, &release);
}

void press_and_release(QWidget* target) {
    press_and_release(target, QRectF(target->rect()).center());
}

}  // namespace

Tour::Tour(MainDocument& document, Velk_Window& window, std::string folder)
    : document_(document), window_(window), folder_(std::move(folder)) {
    window_.setFixedSize(size_of_pictures);
    // The mouse is out of the way before the window comes: no button looks touched in a picture.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    window_.show();
    timer_.setInterval(milliseconds_between_looks);
    connect(&timer_, &QTimer::timeout, this, &Tour::look);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (!finished_) fail("the window was closed");
    });
    if (!can_read_drawings()) {
        fail(no_drawings);
    } else if (QDir().mkpath(shown(folder_))) {
        plan();
        timer_.start();
        start_next();
    } else {
        fail("cannot make the folder " + folder_);
    }
}

void Tour::start_next() {
    while (!stops_.empty() && stops_.front().left_out && stops_.front().left_out())
        stops_.pop_front();
    if (stops_.empty()) return finish(0);
    waited_.start();
    if (stops_.front().start) stops_.front().start();
}

void Tour::look() {
    if (finished_) return;
    if (qobject_cast<QMessageBox*>(front())) return answer_question();
    const Stop stop = stops_.front();
    if (takes_input() && stop.reached()) {
        if (stop.pictured) take_picture();
        if (stop.report) report_ += stop.report();
        if (finished_) return;
        stops_.pop_front();
        start_next();
    } else if (waited_.hasExpired(longest_wait)) {
        fail("waited too long for: " + stop.name);
    }
}

void Tour::answer_question() {
    const auto* const box = qobject_cast<QMessageBox*>(front());
    for (QAbstractButton* const button : box->buttons())
        if (stops_.front().agrees && button->text() == QStringLiteral("Yes"))
            return press_and_release(button);
    fail("the program asks: " + box->text().toStdString());
}

QWidget* Tour::front() const {
    QWidget* const box = QApplication::activeModalWidget();
    return box ? box : &window_;
}

std::vector<QWidget*> Tour::boxes() const {
    std::vector<QWidget*> boxes;
    for (QWidget* box = front(); box && box != &window_; box = box->parentWidget())
        boxes.insert(boxes.begin(), box);
    return boxes;
}

// A box that opens while the window is held is free.
bool Tour::takes_input() const {
    return front() != &window_ || document_.desktop().takes_input();
}

bool Tour::is_in_front(const char* name) const {
    return front()->objectName() == QLatin1String(name);
}

void Tour::take_picture() {
    window_.bring_up_to_date();
    const std::string file =
        format("%s/%02d-%s.png", folder_.c_str(), ++number_, stops_.front().name.c_str());
    QPixmap picture(size_of_pictures);
    window_.render(&picture);
    QPainter painter(&picture);
    for (QWidget* const box : boxes()) {
        painter.fillRect(picture.rect(), shade);
        QRect place = box->rect();
        place.moveCenter(picture.rect().center());
        painter.drawPixmap(place.topLeft(), box->grab());
    }
    painter.end();
    if (!picture.save(shown(file))) fail("cannot write " + file);
}

// Pages may have buttons of one name; the one that is seen is meant.
void Tour::click(const char* name) {
    for (auto* const button : front()->findChildren<QAbstractButton*>(QString::fromLatin1(name)))
        if (button->isVisible() && button->isEnabled()) return press_and_release(button);
    fail(std::string("no button to press: ") + name);
}

void Tour::select_first_row(const Section& section) {
    auto* const table = window_.findChild<QAbstractItemView*>(shown(section.table->name()));
    const QModelIndex first = table->model()->index(0, 0);
    table->scrollTo(first);
    press_and_release(table->viewport(), table->visualRect(first).center());
}

void Tour::close_dialog() {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(front(), &escape);
}

void Tour::choose_file(const std::string& path) {
    auto* const name = front()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    auto* const buttons = front()->findChild<QDialogButtonBox*>();
    if (!name || !buttons) return fail("no panel to choose a file in");
    name->setText(shown(path));
    press_and_release(buttons->button(QDialogButtonBox::Save));
}

void Tour::fail(const std::string& reason) {
    std::fprintf(stderr, "velk: the tour ended early: %s\n", reason.c_str());
    finish(1);
}

void Tour::finish(int status) {
    if (std::exchange(finished_, true)) return;
    status_ = status;
    timer_.stop();
    std::printf("\n%s", report_.c_str());
    window_.close();
}

}  // namespace velk
