#include "qt/chart_view.h"

#include "qt/picture_painter.h"

#include <QEvent>
#include <QFontInfo>
#include <QPainter>
#include <memory>
#include <utility>

namespace parabolt {
namespace {

Rgb toRgb(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

} // namespace

ChartPicture::ChartPicture(const DrawChart& draw, QSizeF size, double textPixels, Rgb ground,
                           Rgb ink)
    : canvas_(controls_, "chart", ground, ink) {
    const double twips = kCanvasText / textPixels;
    canvas_.setGeometry({0, 0, size.width() * twips, size.height() * twips});
    canvas_.setTextMeasure(canvasTextWidth);
    draw(canvas_);
}

void ChartPicture::paint(QPainter& painter, const QRectF& target) const {
    paintPicture(painter, canvas_, target);
}

ChartView::ChartView(const QString& name, const QString& accessibleName, DrawChart draw,
                     QWidget* parent)
    : QWidget(parent),
      draw_(std::move(draw)) {
    setObjectName(name);
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ChartView::sizeHint() const {
    return minimumSizeHint() * 2;
}

QSize ChartView::minimumSizeHint() const {
    const int line = fontMetrics().height();
    return {22 * line, 14 * line};
}

void ChartView::redraw() {
    drawn_ = {};
    update();
}

double ChartView::textPixels() const {
    return QFontInfo(font()).pixelSize();
}

double ChartView::twipsPerPixel() const {
    return kCanvasText / textPixels();
}

FilePicture ChartView::onPaper() const {
    const auto chart =
        std::make_shared<ChartPicture>(draw_, QSizeF(size()), textPixels(), kWhite, kBlack);
    return {accessibleName(), size(),
            [chart](QPainter& painter, const QRectF& target) { chart->paint(painter, target); }};
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (drawn_.size() != pixels) {
        drawn_ = QPixmap(pixels);
        drawn_.setDevicePixelRatio(devicePixelRatioF());
        const QColor ground = palette().color(QPalette::Base);
        drawn_.fill(ground);
        QPainter painter(&drawn_);
        ChartPicture(draw_, size(), textPixels(), toRgb(ground),
                     toRgb(palette().color(QPalette::Text)))
            .paint(painter, rect());
    }
    QPainter painter(this);
    painter.drawPixmap(QPointF(), drawn_);
}

void ChartView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        redraw();
}

} // namespace parabolt
