#include "qt/map_view.h"

#include <QKeyEvent>
#include <QPainter>

namespace parabolt {
namespace {

constexpr int kLeap = 5; ///< steps that an arrow key goes with Shift

} // namespace

DrawChart drawingOf(const CarryMap& map) {
    return [&map](PictureBox& canvas) {
        if (map.result() != nullptr)
            drawMap(canvas, *map.result(), map.shown(), map.marks());
    };
}

MapView::MapView(CarryMap& map, QWidget* parent)
    : ChartView("mapView", "Carry map", drawingOf(map), parent),
      map_(map) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
}

MapFrame MapView::frame() const {
    const MapResult* shown = map_.result();
    return {width() * twipsPerPixel(), height() * twipsPerPixel(),
            shown != nullptr ? shown->request.ranges : map_.ranges()};
}

void MapView::paintEvent(QPaintEvent* event) {
    ChartView::paintEvent(event);
    if (!map_.cross())
        return;
    QPainter painter(this);
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
        ChartView::keyPressEvent(event);
        return;
    }
    update();
    emit crossMoved();
}

} // namespace parabolt
