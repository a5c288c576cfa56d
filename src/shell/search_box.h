#pragma once

#include <QLineEdit>

namespace velk {

class Row_Table;

/// The box above a table in which a person types what the table shall show. Ctrl+F leads into it,
/// Escape empties it and leads back.
class Search_Box : public QLineEdit {
    Q_OBJECT

  public:
    /// `looks_for` stands in the box while it is empty. The table must have its name.
    Search_Box(Row_Table& table, const QString& looks_for, QWidget* parent = nullptr);

    /// Leads into the box; its keys work wherever the box is shown.
    QAction* find() const { return find_; }
    /// Empties the box; its key works where the rows are, and is of use while there is something to
    /// empty.
    QAction* show_all() const { return show_all_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void lead_into_the_table();

    Row_Table& table_;
    QAction* find_;
    QAction* show_all_;
};

}  // namespace velk
