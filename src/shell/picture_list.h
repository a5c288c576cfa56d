#pragma once

#include <QCache>
#include <QListView>
#include <QPixmap>
#include <functional>
#include <string>
#include <vector>

#include "managers/thumbnails.h"
#include "ui/section.h"

namespace velk {

class Row_Table;
class Table_Model;

/// The rows of a table as pictures: the same rows, search and selection. What is on the screen is
/// fetched from the phone in the background, a picture at a time, and nothing else is.
class Picture_List : public QListView {
    Q_OBJECT

  public:
    /// `table` shows the rows of `section`, and both outlive this. Nothing is fetched while
    /// `may_fetch` is false.
    Picture_List(const Section& section, Row_Table& table, Desktop& desktop,
                 std::function<bool()> may_fetch, QWidget* parent = nullptr);

    /// Goes on with fetching when that may start now.
    void go_on() { thumbnails_.go_on(); }
    /// Every row on the screen has its picture, or will not get one.
    bool complete() const;
    /// The picture of the row, or a null one.
    QPixmap picture_of(const QModelIndex& index) const;

    void reset() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void set_up();
    Thumbnails::Outside outside(std::function<bool()> may_fetch);
    void take(const std::string& key, const QImage& image);
    /// What fetches the row's picture; without a path for a file that has no reader.
    Thumbnails::Wish wish_of(int row) const;
    std::vector<Thumbnails::Wish> wishes_in_sight() const;
    int first_row_in_sight() const;

    const Section& section_;
    Row_Table& table_;
    Table_Model& model_;
    Desktop& desktop_;
    int path_column_;
    int size_column_;
    qreal ratio_;
    QCache<QString, QPixmap> pictures_;  // a null one could not be read
    Thumbnails thumbnails_;
};

}  // namespace velk
