#include "shell/pictures.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

#include "shell/look.h"

namespace velk {

namespace {

// The drawings use these colours and no others where a theme has a say.
constexpr const char* drawn_ink = "#111111";
constexpr const char* drawn_accent = "#2563eb";
constexpr const char* drawn_paper = "#eeeeee";
constexpr const char* drawn_quiet = "#999999";

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap rendered(QByteArray svg, QSize size, qreal ratio) {
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(reader.size().scaled(size * ratio, Qt::KeepAspectRatio));
    QPixmap pixmap = QPixmap::fromImageReader(&reader);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QString key_of(const QString& name, QSize size, qreal ratio, const QString& colours) {
    return QStringLiteral("velk/%1/%2x%3@%4/%5")
        .arg(name)
        .arg(size.width())
        .arg(size.height())
        .arg(ratio)
        .arg(colours);
}

QPixmap drawing(const QString& name, QSize size, qreal ratio) {
    QByteArray svg = content(QStringLiteral(":/pictures/%1.svg").arg(name));
    if (svg.isEmpty()) return {};
    const Look look = Look::now();
    svg.replace(drawn_ink, look.muted.name().toLatin1());
    svg.replace(drawn_accent, look.accent_text.name().toLatin1());
    svg.replace(drawn_paper, look.card.name().toLatin1());
    svg.replace(drawn_quiet, look.edge.name().toLatin1());
    return rendered(svg, size, ratio);
}

/// Draws the icon anew for every size, state and theme that is asked for.
class Themed_Icon : public QIconEngine {
  public:
    Themed_Icon(QString name, Ink ink) : name_(std::move(name)), ink_(ink) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, icon_pixmap(name_, rect.size(), ratio, colour(mode)));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }
    // The size is in device pixels.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
        return icon_pixmap(name_, size, 1, colour(mode));
    }
    QIconEngine* clone() const override { return new Themed_Icon(*this); }

  private:
    QColor colour(QIcon::Mode mode) const {
        const Look look = Look::now();
        if (mode == QIcon::Disabled) return look.disabled;
        switch (ink_) {
            case Ink::muted:
                return look.muted;
            case Ink::accent:
                return look.accent_text;
            case Ink::on_accent:
                return look.on_accent;
            case Ink::text:
                break;
        }
        return look.text;
    }

    QString name_;
    Ink ink_;
};

}  // namespace

bool can_read_drawings() {
    return QImageReader::supportedImageFormats().contains("svg");
}

QPixmap icon_pixmap(const QString& name, QSize size, qreal ratio, const QColor& ink) {
    const QString key = key_of("icon " + name, size, ratio, ink.name());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    QByteArray svg = content(QStringLiteral(":/icons/%1.svg").arg(name));
    if (svg.isEmpty()) return {};
    pixmap = rendered(svg.replace(drawn_ink, ink.name().toLatin1()), size, ratio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon themed_icon(const QString& name, Ink ink) {
    if (!QFile::exists(QStringLiteral(":/icons/%1.svg").arg(name))) return {};
    return QIcon(new Themed_Icon(name, ink));
}

QPixmap picture(const QString& name, QSize size, qreal ratio) {
    const QString key = key_of(name, size, ratio, Look::now().window.name());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = drawing(QFileInfo(name).completeBaseName(), size, ratio);
    if (pixmap.isNull()) {
        pixmap = QPixmap(QStringLiteral(":/pictures/%1").arg(name));
        if (pixmap.isNull()) return pixmap;
        pixmap = pixmap.scaled(size * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        pixmap.setDevicePixelRatio(ratio);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

}  // namespace velk
