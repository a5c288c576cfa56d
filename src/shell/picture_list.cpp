#include "shell/picture_list.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>
#include <QStandardPaths>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "shell/look.h"
#include "shell/pictures.h"
#include "shell/row_table.h"
#include "shell/table_model.h"
#include "shell/text_label.h"
#include "shell/thumbnail_image.h"
#include "shell/widgets.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr int space_around = 10;  // the picture in its tile
constexpr int space_above_name = 6;
constexpr int space_between_tiles = 8;
constexpr qreal roundness = 6;
constexpr int size_of_stand_in = 40;
constexpr int most_kilobytes = 48 * 1024;  // of pictures in memory: more than any screen shows

QSize size_of_tile(const QFontMetrics& font) {
    return thumbnail_size +
           QSize(2 * space_around, 2 * space_around + space_above_name + font.height());
}

QString folder_of_thumbnails() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/velk/thumbnails");
}

int kilobytes(const QPixmap& pixmap) {
    return 1 + pixmap.width() * pixmap.height() * pixmap.depth() / 8 / 1024;
}

/// The picture, whole and in its own shape, and the file's name under it.
class Picture_Delegate : public QStyledItemDelegate {
  public:
    explicit Picture_Delegate(Picture_List* list) : QStyledItemDelegate(list), list_(*list) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return size_of_tile(option.fontMetrics);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Look look = Look::now();
        const bool selected = option.state & QStyle::State_Selected;
        const QRect tile(option.rect.topLeft(), size_of_tile(option.fontMetrics));
        painter->save();
        painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        paint_ground(painter, tile, option, look);
        const QRect room(tile.topLeft() + QPoint(space_around, space_around), thumbnail_size);
        paint_picture(painter, room, list_.picture_of(index),
                      selected ? look.on_accent : look.muted);
        const QRect line(room.left(), room.bottom() + 1 + space_above_name, room.width(),
                         option.fontMetrics.height());
        const QString name = one_line(QFileInfo(index.data().toString()).fileName());
        painter->setPen(selected ? look.on_accent : look.text);
        painter->drawText(line, static_cast<int>(Qt::AlignCenter) | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(name, Qt::ElideMiddle, line.width()));
        painter->restore();
    }

  private:
    static void paint_ground(QPainter* painter, const QRect& tile,
                             const QStyleOptionViewItem& option, const Look& look) {
        const bool selected = option.state & QStyle::State_Selected;
        const bool hovered = option.state & QStyle::State_MouseOver;
        const bool focused = option.state & QStyle::State_HasFocus;
        painter->setPen(focused ? QPen(look.accent_text, 2) : QPen(Qt::NoPen));
        painter->setBrush(selected ? look.accent : hovered ? look.stripe : QColor(Qt::transparent));
        painter->drawRoundedRect(QRectF(tile).adjusted(1, 1, -1, -1), roundness + 2, roundness + 2);
    }

    static void paint_picture(QPainter* painter, const QRect& room, const QPixmap& picture,
                              const QColor& ink) {
        QRectF place(QPointF(), picture.isNull() ? QSizeF(size_of_stand_in, size_of_stand_in)
                                                 : picture.deviceIndependentSize());
        place.moveCenter(QRectF(room).center());
        place.moveTopLeft(place.topLeft().toPoint());
        if (picture.isNull()) {
            const qreal ratio = painter->device()->devicePixelRatioF();
            painter->drawPixmap(place.topLeft(), icon_pixmap(QStringLiteral("photo"),
                                                             place.size().toSize(), ratio, ink));
            return;
        }
        QPainterPath edge;
        edge.addRoundedRect(place, roundness, roundness);
        painter->setClipPath(edge);
        painter->drawPixmap(place.topLeft(), picture);
        painter->setClipping(false);
    }

    const Picture_List& list_;
};

}  // namespace

Picture_List::Picture_List(const Section& section, Row_Table& table, Desktop& desktop,
                           std::function<bool()> may_fetch, QWidget* parent)
    : QListView(parent),
      section_(section),
      table_(table),
      model_(table.table_model()),
      desktop_(desktop),
      path_column_(column_named(section.table->rows(), section.pictures.path_column)),
      size_column_(column_named(section.table->rows(), section.pictures.size_column)),
      ratio_(qApp->devicePixelRatio()),
      pictures_(most_kilobytes),
      thumbnails_(desktop, folder_of_thumbnails().toStdString(), outside(std::move(may_fetch))) {
    set_up();
    setModel(&model_);
    setModelColumn(model_.view_column(path_column_));
    delete selectionModel();
    setSelectionModel(table.selectionModel());
    setItemDelegate(new Picture_Delegate(this));
}

void Picture_List::set_up() {
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setGridSize(size_of_tile(fontMetrics()) + QSize(space_between_tiles, space_between_tiles));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setAccessibleDescription(table_.accessibleDescription());
}

Thumbnails::Outside Picture_List::outside(std::function<bool()> may_fetch) {
    return {.may_fetch = std::move(may_fetch),
            .shrink = small_picture,
            .deliver = [this, ratio = ratio_](const std::string& key, const std::string& content) {
                desktop_.post([this, key, image = thumbnail(content, ratio)] { take(key, image); });
            }};
}

void Picture_List::take(const std::string& key, const QImage& image) {
    const QPixmap pixmap = QPixmap::fromImage(image);
    pictures_.insert(shown(key), new QPixmap(pixmap), kilobytes(pixmap));
    viewport()->update();
}

Thumbnails::Wish Picture_List::wish_of(int row) const {
    const Table_Rows& rows = section_.table->rows();
    const int place = model_.table_row(row);
    if (place >= rows.count()) return {};
    const std::string& path = rows.cell(place, path_column_);
    if (!has_reader(path)) return {};
    return {Thumbnail_Cache::key_of(g_device_serial_number, path, rows.cell(place, size_column_)),
            path};
}

QPixmap Picture_List::picture_of(const QModelIndex& index) const {
    const QPixmap* const picture = pictures_.object(shown(wish_of(index.row()).key));
    return picture ? *picture : QPixmap();
}

// Rows stand in lines from the top, so the first one in sight is found by halves.
int Picture_List::first_row_in_sight() const {
    int from = 0;
    int to = model_.rowCount();
    while (from < to) {
        const int middle = from + (to - from) / 2;
        if (visualRect(model_.index(middle, modelColumn())).bottom() < 0)
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}

std::vector<Thumbnails::Wish> Picture_List::wishes_in_sight() const {
    std::vector<Thumbnails::Wish> wishes;
    for (int row = first_row_in_sight(); row < model_.rowCount(); ++row) {
        if (visualRect(model_.index(row, modelColumn())).top() >= viewport()->height()) break;
        Thumbnails::Wish wish = wish_of(row);
        if (!wish.path.empty() && !pictures_.contains(shown(wish.key)))
            wishes.push_back(std::move(wish));
    }
    return wishes;
}

bool Picture_List::complete() const {
    const std::vector<Thumbnails::Wish> wishes = wishes_in_sight();
    return std::all_of(wishes.begin(), wishes.end(),
                       [this](const auto& wish) { return thumbnails_.gave_up(wish.key); });
}

// The toolkit forgets the selection, which the table's rows have kept.
void Picture_List::reset() {
    QListView::reset();
    thumbnails_.try_all_again();
    table_.restore_selection();
}

// Whatever brings other rows into sight has them painted.
void Picture_List::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    table_.say_when_empty(viewport());
    thumbnails_.want(wishes_in_sight());
}

void Picture_List::hideEvent(QHideEvent* event) {
    QListView::hideEvent(event);
    thumbnails_.want({});
}

}  // namespace velk
