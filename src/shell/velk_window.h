#pragma once

#include <QWidget>

#include "shell/widgets.h"

namespace velk {

class Content_Stack;
class MainMenu_Main;
class Qt_Desktop;

/// The main window: toolbar, the line about the phone, the content box beside the summary, and the
/// status line. It shows the document's outlets and calls its handlers; it decides nothing.
class Velk_Window : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive the window.
    Velk_Window(MainDocument& document, Qt_Desktop& desktop);

    /// Shows at once what otherwise shows at the end of the turn.
    void bring_up_to_date();

    MainMenu_Main& menu() { return *menu_; }
    /// Before all other windows, also from where it was minimised to.
    void bring_to_front();

  signals:
    // Whoever has done it: the program, or the desktop.
    void was_minimised();
    void was_restored();
    /// What a person can do now may be something else than before.
    void may_have_changed();

  protected:
    void changeEvent(QEvent* event) override;
    /// Goes from the screen at once; the document then ends the program.
    void closeEvent(QCloseEvent* event) override;

  private:
    void build();
    QWidget* status_strip();
    /// A line that tells of a trouble; not there while all is well.
    QWidget* warning_line(Label& trouble);
    /// The Tab key goes through the window as the eye does, also where pages came later.
    void set_tab_order();

    MainDocument& document_;
    Qt_Desktop& desktop_;
    Binding binding_;
    Guards guards_;
    Content_Stack* content_ = nullptr;
    MainMenu_Main* menu_ = nullptr;
    bool minimised_ = false;
    bool closed_ = false;
};

}  // namespace velk
