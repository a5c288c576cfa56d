#pragma once

#include <QTableView>

#include "shell/binding.h"
#include "ui/table.h"

namespace velk {

class Table_Model;

/// A table on the window: shows a Table's rows or those of them that are searched for, reports what
/// the person selects, sorts the rows themselves when a header is clicked, and copies the selection
/// as text.
class Row_Table : public QTableView {
    Q_OBJECT

  public:
    /// `table` must outlive this. `empty_text` stands in the table while it has no rows.
    Row_Table(Table& table, Binding& binding, QString empty_text, QWidget* parent = nullptr);

    /// Shows the rows that have this text in them, all when it is empty. The same rows stay
    /// selected, but for those that go from sight; none does once the one selected last
    /// goes, or when they come to lie in too many places for the view to paint them in time.
    void search(const QString& typed);

    Table_Model& table_model() { return *model_; }
    /// Entries of a menu that select all rows and copy the selected ones; their keys work where
    /// the rows are.
    const QList<QAction*>& selection_entries() const { return selection_entries_; }
    /// For each column an entry of a menu, with keys, that does what a click on its header does.
    const QList<QAction*>& sort_entries() const { return sort_entries_; }
    /// Selects in the view what is selected in the table, as far as it is in sight.
    void restore_selection();
    /// Paints why nothing is to be seen, while there are no rows.
    void say_when_empty(QWidget* on) const;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr int none = -1;

    void set_up_columns();
    void add_selection_entries();
    void add_sort_entries();
    void show_changes();
    void report_selection();
    void sort_by(int column);
    void show_arrow();
    void copy_selection() const;
    std::vector<int> selected_row_numbers() const;

    Table& table_;
    Table_Model* model_;
    QString empty_text_;
    QList<QAction*> selection_entries_;
    QList<QAction*> sort_entries_;
    int rows_ = 0;  // how many there were when last looked
    int scrolls_ = 0;
    int sorted_column_ = none;  // which a click has sorted, while no other rows have come
    bool ascending_ = false;
    bool by_itself_ = false;  // what changes in the selection now is none of the person's doing
};

}  // namespace velk
