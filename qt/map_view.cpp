#include "qt/map_view.h"

#include "qt/picture_painter.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>

namespace parabolt {
namespace {

constexpr double kTextTwips = 165; ///< of the canvas's text
constexpr int kLeap = 5;           ///< steps that an arrow key goes with Shift

Rgb toRgb(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

} // namespace

MapPicture::MapPicture(const CarryMap& map, QSizeF size, double textPixels, Rgb ground, Rgb ink)
    : size_(size),
      canvas_(controls_, "mapPicture", ground, ink) {
    const double twips = kTextTwips / textPixels;
    canvas_.setGeometry({0, 0, size.width() * twips, size.height() * twips});
    if (map.result() != nullptr)
        drawMap(canvas_, *map.result(), map.shown(), map.marks());
}

void MapPicture::paint(QPainter& painter, const QRectF& target) const {
    paintPicture(painter, canvas_, target);
}

MapView::MapView(CarryMap& map, QWidget* parent) : QWidget(parent), map_(map) {
    setObjectName("mapView");
    setAccessibleName("Carry map");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize MapView::sizeHint() const {
    return minimumSizeHint() * 2;
}

QSize MapView::minimumSizeHint() const {
    const int line = fontMetrics().height();
    return {22 * line, 14 * line};
}

void MapView::redraw() {
    drawn_ = {};
    update();
}

double MapView::textPixels() const {
    return QFontInfo(font()).pixelSize();
}

double MapView::twipsPerPixel() const {
    return kTextTwips / textPixels();
}

MapPicture MapView::pictureOnPaper() const {
    return {map_, size(), textPixels(), kWhite, kBlack};
}

MapFrame MapView::frame() const {
    const MapResult* shown = map_.result();
    return {width() * twipsPerPixel(), height() * twipsPerPixel(),
            shown != nullptr ? shown->request.ranges : map_.ranges()};
}

void MapView::paintEvent(QPaintEvent*) {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (drawn_.size() != pixels) {
        drawn_ = QPixmap(pixels);
        drawn_.setDevicePixelRatio(devicePixelRatioF());
        const QColor ground = palette().color(QPalette::Base);
        drawn_.fill(ground);
        QPainter painter(&drawn_);
        MapPicture(map_, size(), textPixels(), toRgb(ground),
                   toRgb(palette().color(QPalette::Text)))
            .paint(painter, rect());
    }
    QPainter painter(this);
    painter.drawPixmap(QPointF(), drawn_);
    if (map_.cross())
        paintCross(painter);
}

void MapView::paintCross(QPainter& painter) const {
    const MapFrame axes = frame();
    const double scale = 1 / twipsPerPixel();
    const QRectF area(axes.corner().x * scale, axes.corner().y * scale, axes.size().x * scale,
                      axes.size().y * scale);
    const Place place = axes.place(*map_.cross());
    const QPointF at(place.x * scale, place.y * scale);
    const QLineF lines[] = {{area.left(), at.y(), area.right(), at.y()},
                            {at.x(), area.top(), at.x(), area.bottom()}};
    // Light over dark shows on any ground; it is brighter while the keys move it.
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 150), 3),
                            QPen(hasFocus() ? Qt::white : QColor(255, 255, 255, 170), 1)}) {
        painter.setPen(pen);
        painter.drawLines(lines, 2);
    }
}

bool MapView::placeCross(QPointF at) {
    if (!map_.isCurrent()) // what is seen is about to go
        return false;
    const double twips = twipsPerPixel();
    const auto point = frame().point({at.x() * twips, at.y() * twips});
    if (!point)
        return false;
    map_.setCross(*point);
    update();
    emit crossMoved();
    return true;
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    placeCross(event->position());
}

void MapView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && placeCross(event->position()))
        emit taken();
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The first press has placed the cross hair; the map may have moved under it since.
    if (event->button() == Qt::LeftButton && map_.cross())
        emit runAsked();
}

void MapView::keyPressEvent(QKeyEvent* event) {
    const int steps = (event->modifiers() & Qt::ShiftModifier) != 0 ? kLeap : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        map_.moveCross(-steps, 0);
        break;
    case Qt::Key_Right:
        map_.moveCross(steps, 0);
        break;
    case Qt::Key_Up:
        map_.moveCross(0, steps);
        break;
    case Qt::Key_Down:
        map_.moveCross(0, -steps);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (map_.cross())
            emit taken();
        return;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    update();
    emit crossMoved();
}

void MapView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        redraw();
}

} // namespace parabolt
