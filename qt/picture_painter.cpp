#include "qt/picture_painter.h"

#include "controls/units.h"
#include "qt/text.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

constexpr double kHaloWidth = 50; ///< of the rim around letters, on both sides together, twips

QColor toQColor(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

QFont canvasFont() {
    return QFont(QStringList{"MS Sans Serif", "Liberation Sans", "Arial", "Helvetica"});
}

/// Turns the painter to device pixels until the end of its life. Returns where a rectangle of the
/// painter's former coordinates lies on the device.
class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter)
        : painter_(painter),
          toDevice_(painter.deviceTransform()) {
        painter_.save();
        painter_.setWorldTransform(toDevice_.inverted() * painter_.worldTransform());
    }
    ~DevicePixels() { painter_.restore(); }
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    QRectF map(const QRectF& rect) const { return toDevice_.mapRect(rect); }

private:
    QPainter& painter_;
    QTransform toDevice_;
};

/// The nearest rectangle of whole device pixels.
QRectF onWholePixels(const QRectF& rect) {
    const QPointF corner(std::round(rect.left()), std::round(rect.top()));
    return {corner, QPointF(std::round(rect.right()), std::round(rect.bottom()))};
}

/// Draws the shapes of one canvas, one kind after the other, in device pixels.
class ShapePainter {
public:
    ShapePainter(QPainter& painter, const PictureBox& picture, const QRectF& target)
        : painter_(painter),
          scale_(picture.scale()),
          target_(target),
          perTwip_(target.width() / picture.geometry().width) {
        painter_.setRenderHint(QPainter::Antialiasing);
        QFont font = canvasFont();
        font.setPointSizeF(kCanvasText * perTwip_ * kPointsPerInch /
                           painter.device()->logicalDpiY());
        painter_.setFont(font);
        ascent_ = QFontMetricsF(font, painter.device()).ascent();
    }

    void operator()(const DrawnLine& line) const {
        const double width = setPen(line.colour, line.pen, Qt::SquareCap);
        QPointF from = map(line.from);
        QPointF to = map(line.to);
        if (line.from.x == line.to.x || line.from.y == line.to.y) {
            from = settled(from, width);
            to = settled(to, width);
        }
        painter_.drawLine(from, to);
    }

    void operator()(const DrawnCurve& curve) const {
        const double width = setPen(curve.colour, curve.pen, Qt::FlatCap);
        QPolygonF points;
        points.reserve(static_cast<qsizetype>(curve.points.size()));
        for (const TrajectoryPoint& point : curve.points)
            points.append(map({point.x, point.y}));
        // On a screen a polyline is the quicker way with a pen of one pixel, and the slower one
        // with a wider pen.
        if (width <= 1 || painter_.paintEngine()->type() != QPaintEngine::Raster) {
            painter_.drawPolyline(points);
            return;
        }
        QList<QLineF> segments;
        segments.reserve(points.size());
        for (qsizetype i = 1; i < points.size(); ++i)
            segments.append({points[i - 1], points[i]});
        painter_.drawLines(segments);
    }

    void operator()(const DrawnBox& box) const {
        const QRectF rect(map(box.corner),
                          map({box.corner.x + box.size.x, box.corner.y + box.size.y}));
        painter_.fillRect(onWholePixels(rect), toQColor(box.colour));
    }

    void operator()(const DrawnCircle& circle) const {
        const double pen = setPen(circle.colour, circle.pen, Qt::FlatCap);
        double radius = circle.radius * target_.width() / scale_.width;
        if (pen >= 2 * radius) { // the ring is closed to a disc
            radius += pen / 2;
            painter_.setPen(Qt::NoPen);
            painter_.setBrush(toQColor(circle.colour));
        }
        painter_.drawEllipse(map(circle.centre), radius, radius);
        painter_.setBrush(Qt::NoBrush);
    }

    void operator()(const DrawnText& text) const {
        const QString shown = QString::fromStdString(text.text);
        const QFontMetricsF metrics(painter_.font(), painter_.device());
        const QPointF start = map(text.place) + QPointF(0, ascent_) -
                              QPointF(text.anchor.x * metrics.horizontalAdvance(shown),
                                      text.anchor.y * metrics.height());
        if (text.halo) {
            QPainterPath letters;
            letters.addText(start, painter_.font(), shown);
            const double rim = kHaloWidth * perTwip_;
            painter_.strokePath(letters, QPen(toQColor(*text.halo), rim, Qt::SolidLine,
                                              Qt::RoundCap, Qt::RoundJoin));
        }
        painter_.setPen(toQColor(text.colour));
        painter_.drawText(start, shown);
    }

    void operator()(const DrawnImage& image) const {
        const int rows = static_cast<int>(image.pixels.size()) / image.columns;
        QImage pixels(image.columns, rows, QImage::Format_RGB32);
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < image.columns; ++column) {
                const Rgb& colour =
                    image.pixels[static_cast<std::size_t>(row * image.columns + column)];
                pixels.setPixel(column, row, qRgb(colour.red, colour.green, colour.blue));
            }
        const QRectF rect(map(image.corner),
                          map({image.corner.x + image.size.x, image.corner.y + image.size.y}));
        painter_.drawImage(onWholePixels(rect.normalized()), pixels);
    }

private:
    QPointF map(Place place) const {
        return {target_.left() + (place.x - scale_.left) / scale_.width * target_.width(),
                target_.top() + (place.y - scale_.top) / scale_.height * target_.height()};
    }

    /// The place nearest to a point at which a pen's edges lie between pixels, not across them.
    static QPointF settled(QPointF point, double width) {
        const QPointF half(width / 2, width / 2);
        return QPointF((point - half).toPoint()) + half;
    }

    /// Sets a pen of whole device pixels and returns its width.
    double setPen(Rgb colour, int pixels, Qt::PenCapStyle cap) const {
        const double width = std::max(1.0, std::round(pixels * kTwipsPerPixel * perTwip_));
        painter_.setPen(QPen(toQColor(colour), width, Qt::SolidLine, cap, Qt::RoundJoin));
        return width;
    }

    QPainter& painter_;
    const CanvasScale& scale_;
    QRectF target_;
    double perTwip_;
    double ascent_ = 0;
};

bool paintable(const PictureBox& picture, const QRectF& target) {
    return picture.geometry().width > 0 && picture.geometry().height > 0 && !target.isEmpty();
}

/// Everything on the canvas, cut off at the target's edges, in device pixels.
void paintShapes(QPainter& painter, const PictureBox& picture, const QRectF& target) {
    painter.save();
    painter.setClipRect(onWholePixels(target), Qt::IntersectClip);
    const ShapePainter shapePainter(painter, picture, target);
    for (const Drawing& drawing : picture.drawings())
        std::visit(shapePainter, drawing);
    painter.restore();
}

void fill(QPainter& painter, const PictureBox& picture, const QRectF& target) {
    painter.fillRect(onWholePixels(target), toQColor(picture.background()));
}

} // namespace

double canvasTextWidth(std::string_view text) {
    QFont font = canvasFont();
    font.setPixelSize(static_cast<int>(kCanvasText));
    font.setHintingPreference(QFont::PreferNoHinting);
    return QFontMetricsF(font).horizontalAdvance(toQt(text));
}

void paintPicture(QPainter& painter, const PictureBox& picture, const QRectF& target) {
    if (!paintable(picture, target))
        return;
    const DevicePixels device(painter);
    fill(painter, picture, device.map(target));
    paintShapes(painter, picture, device.map(target));
}

void paintFrame(QPainter& painter, const QRectF& rect, double pen) {
    const DevicePixels device(painter);
    const QRectF edges = device.map(rect);
    const double width = std::max(1.0, std::round(pen * edges.width() / rect.width()));
    const double half = width / 2;
    const QRectF outside = onWholePixels(edges.adjusted(-half, -half, half, half));
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(outside.adjusted(half, half, -half, -half));
}

void paintPlot(QPainter& painter, const PlotCanvases& plot, const QRectF& target) {
    if (!paintable(plot.outer, target) || !paintable(plot.inner, target))
        return;
    const DevicePixels device(painter);
    const QRectF outer = device.map(target);
    const double perTwip = outer.width() / plot.outer.geometry().width;
    const PictureBox::Geometry& place = plot.inner.geometry();
    const QRectF inner(outer.left() + place.left * perTwip, outer.top() + place.top * perTwip,
                       place.width * perTwip, place.height * perTwip);
    fill(painter, plot.outer, outer);
    fill(painter, plot.inner, inner);
    paintShapes(painter, plot.inner, inner);
    paintShapes(painter, plot.outer, outer);
}

} // namespace parabolt
