#pragma once

#include <QDialog>

#include "shell/binding.h"
#include "shell/guards.h"
#include "ui/dialog.h"

class QBoxLayout;
class QGridLayout;
class QLayout;

namespace velk {

/// The window of any dialog, drawn from its description: captions beside what is shown or typed,
/// the table with its search box, the status line, and the buttons. One opening has one window,
/// which deletes itself when it is closed.
class Dialog_Window : public QDialog {
    Q_OBJECT

  public:
    /// `dialog` must outlive this. `front` is what stands foremost, or nothing.
    Dialog_Window(Dialog& dialog, QWidget* front);
    ~Dialog_Window() override;

    /// Something may have changed a flag that a button waits for.
    void look_at_guards() { guards_.look_again(); }

    /// Boxes that stand before it go first, as if the person had cancelled them.
    void done(int result) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void build();
    void add_fields(QBoxLayout* column);
    void add_lines(QBoxLayout* column);
    void add_field(const Dialog_Field& field, QGridLayout* grid);
    QWidget* control_of(const Dialog_Field& field);
    void add_table(QLayout* column);
    QLayout* button_row();
    void focus_first(QWidget* input);

    Dialog& dialog_;
    Binding binding_;
    Guards guards_;
    QWidget* first_input_ = nullptr;
    bool is_open_ = true;
};

}  // namespace velk
