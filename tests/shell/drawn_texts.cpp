#include "drawn_texts.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <map>

namespace velk {

namespace {

/// Takes note of texts; everything else that is painted goes nowhere.
class Text_Engine : public QPaintEngine {
  public:
    Text_Engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    }
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF place(at.x(), at.y() - item.ascent(), item.width(),
                           item.ascent() + item.descent());
        QRectF seen = state->transform().mapRect(place);
        if (!systemClip().isEmpty()) seen &= systemClip().boundingRect();
        if (painter()->hasClipping()) seen = clipped(seen);
        texts.push_back({item.text(), seen.toAlignedRect(), state->pen().color(), {}});
    }
    Type type() const override { return User; }

    /// Around a selection, a field draws its text twice and clips each to its part.
    QRectF clipped(const QRectF& place) const {
        QPainterPath path;
        path.addRect(place);
        return state->transform().map(painter()->clipPath()).intersected(path).boundingRect();
    }

    std::vector<Drawn_Text> texts;
};

class Text_Device : public QPaintDevice {
  public:
    explicit Text_Device(QWidget& like) : like_(like) {}
    QPaintEngine* paintEngine() const override { return &engine; }

    mutable Text_Engine engine;

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return like_.width();
            case PdmHeight:
                return like_.height();
            case PdmDpiX:
            case PdmPhysicalDpiX:
                return like_.logicalDpiX();
            case PdmDpiY:
            case PdmPhysicalDpiY:
                return like_.logicalDpiY();
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return QPaintDevice::metric(metric);
        }
    }

  private:
    QWidget& like_;
};

/// Around letters, the colour that most of the place has.
QColor ground_in(const QImage& image, const QRect& place) {
    std::map<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x) ++counts[image.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    return most->first;
}

QColor over(const QColor& ground, const QColor& ink) {
    const auto mix = [&](int below, int above) {
        return static_cast<int>(below + (above - below) * static_cast<double>(ink.alphaF()));
    };
    return {mix(ground.red(), ink.red()), mix(ground.green(), ink.green()),
            mix(ground.blue(), ink.blue())};
}

}  // namespace

std::vector<Drawn_Text> drawn_texts(QWidget& window) {
    const QImage image = window.grab().toImage();
    Text_Device device(window);
    QPainter painter(&device);
    window.render(&painter);
    painter.end();
    std::vector<Drawn_Text> texts = std::move(device.engine.texts);
    for (Drawn_Text& one : texts) one.place &= image.rect();
    std::erase_if(texts, [](const Drawn_Text& one) {
        return one.place.isEmpty() || one.text.trimmed().isEmpty();
    });
    for (Drawn_Text& one : texts) {
        one.ground = ground_in(image, one.place);
        one.ink = over(one.ground, one.ink);
    }
    return texts;
}

}  // namespace velk
