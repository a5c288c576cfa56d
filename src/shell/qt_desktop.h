// The window system behind the program's Desktop.
#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "shell/input_hold.h"
#include "ui/desktop.h"

namespace velk {

/// Made after the QApplication and before the document; outlives both document and window.
class Qt_Desktop : public QObject, public Desktop {
    Q_OBJECT

  public:
    Qt_Desktop();

    /// The window that boxes stand before. Without one they stand alone.
    void set_window(QWidget* window);

    /// The window is closing: open boxes go, which lets the workers go that wait for them, and
    /// boxes that still come are answered as if the person had cancelled them.
    void drop_boxes();

    /// A box of the shell's own: it goes like the others.
    void keep(QDialog* box);

    void open_alert(const Alert& alert, std::function<void(int)> answered) override;
    void open_file_panel(const File_Panel& panel, std::function<void(std::string)> chosen) override;
    Watch watch(int descriptor, std::function<void()> readable) override;
    void beep() override;
    bool end_editing() override;
    void terminate() override;

  signals:
    /// A turn of the queue is over: what its closures changed can be looked at again.
    void turn_ended();
    /// Closures wait. Emitted on any thread.
    void woken();

  protected:
    void show_dialog(Dialog& dialog, std::function<void()> closed) override;
    void input_changed() override { input_hold_.hold(!takes_input()); }
    void wake() override;

  private:
    void turn();
    /// What stands foremost: the box that was opened last, else the window.
    QWidget* front() const;
    /// The second of two quick clicks may give the keys back to a window behind a box.
    void lead_keys_to_front(const QWindow* focused) const;

    QPointer<QWidget> window_;
    std::vector<QPointer<QDialog>> boxes_;  // that are open, each behind the next
    bool boxes_dropped_ = false;
    Input_Hold input_hold_;
};

}  // namespace velk
