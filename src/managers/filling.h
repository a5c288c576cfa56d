// How a worker fills a table with the rows that it has read.
#pragma once

#include <utility>
#include <vector>

#include "ui/desktop.h"
#include "ui/table.h"

namespace velk {

/// One filling, from the emptied table on. Worker; rows and table must live as long as the window.
/// Whoever empties the table meanwhile ends the filling: nothing of it is shown any more.
template <class Row>
class Filling {
  public:
    /// Empties the table.
    Filling(Desktop& desktop, Row_List<Row>& rows, Table& table)
        : desktop_(desktop), rows_(rows), table_(table), clears_(desktop.ask([&] {
              rows.clear();
              table.reload();
              return rows.clears();
          })) {}

    /// Posts that the rows are appended and brought into sight one after the other, `told` being
    /// called behind each with the row.
    template <class Told>
    void append(std::vector<Row> loaded, Told told) {
        for (Row& row : loaded)
            post_while_mine([&rows = rows_, &table = table_, told, row = std::move(row)]() mutable {
                rows.push_back(std::move(row));
                table.reload_appended();
                table.scroll_to_last();
                told(rows[rows.size() - 1]);
            });
    }

    /// Posts what belongs to this filling alone, and is dropped with it.
    template <class Change>
    void post_while_mine(Change change) {
        desktop_.post([&rows = rows_, clears = clears_, change = std::move(change)]() mutable {
            if (rows.clears() == clears) change();
        });
    }

  private:
    Desktop& desktop_;
    Row_List<Row>& rows_;
    Table& table_;
    const int clears_;
};

}  // namespace velk
