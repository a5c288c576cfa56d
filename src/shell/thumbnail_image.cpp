#include "shell/thumbnail_image.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "shell/widgets.h"

namespace velk {

namespace {

constexpr QSize kept_size = thumbnail_size * 2;  // sharp on a screen with twice the pixels, too
constexpr int quality = 85;                      // of 100, as photos are mostly kept

/// `size`, or less where that would be more than `most`.
QSize within(QSize size, QSize most) {
    const bool fits = size.width() <= most.width() && size.height() <= most.height();
    return fits ? size : size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1});
}

/// The formats of photos, as far as there are readers. A drawing, whatever its name, could keep its
/// reader busy for minutes.
bool is_photo_format(const QByteArray& format) {
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    static const QList<QByteArray> photos = {"bmp", "gif", "jpeg", "jpg", "png", "webp"};
    return photos.contains(format) && formats.contains(format);
}

}  // namespace

bool has_reader(const std::string& path) {
    return is_photo_format(QFileInfo(shown(path)).suffix().toLower().toLatin1());
}

// A reader that scales while it reads needs a fraction of the memory and the time.
std::string small_picture(const std::string& file) {
    QImageReader reader(QFile::decodeName(file.c_str()));
    reader.setDecideFormatFromContent(true);
    if (!is_photo_format(reader.format())) return {};
    reader.setAutoTransform(true);
    if (const QSize size = reader.size(); size.isValid()) {
        const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
        const QSize most = turned ? kept_size.transposed() : kept_size;
        reader.setScaledSize(within(size, most));
    }
    const QImage image = reader.read();
    if (image.isNull()) return {};
    QByteArray content;
    QBuffer buffer(&content);
    const QImage small = image.scaled(within(image.size(), kept_size), Qt::KeepAspectRatio,
                                      Qt::SmoothTransformation);
    const bool written =
        small.hasAlphaChannel() ? small.save(&buffer, "PNG") : small.save(&buffer, "JPEG", quality);
    return written ? content.toStdString() : std::string();
}

QImage thumbnail(const std::string& content, qreal ratio) {
    const auto bytes =
        QByteArray::fromRawData(content.data(), static_cast<qsizetype>(content.size()));
    QImage image = QImage::fromData(bytes);
    if (image.isNull()) return image;
    const QSize size = within(image.size(), (QSizeF(thumbnail_size) * ratio).toSize());
    image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return image;
}

}  // namespace velk
