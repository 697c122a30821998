#pragma once

#include "maps/carry_map.h"
#include "maps/map_frame.h"
#include "qt/chart_view.h"

namespace parabolt {

/// Draws what a map shows at the time of the drawing. The map must outlive it.
DrawChart drawingOf(const CarryMap& map);

/// Shows the carry map, and a cross hair over it that follows the pointer and the arrow keys.
class MapView : public ChartView {
    Q_OBJECT

public:
    explicit MapView(CarryMap& map, QWidget* parent = nullptr);

signals:
    void crossMoved();
    void taken();    ///< the values under the cross hair are wanted in the form
    void runAsked(); ///< and the shot is to be flown

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    MapFrame frame() const;
    bool placeCross(QPointF at);
    void paintCross(QPainter& painter) const;

    CarryMap& map_;
};

} // namespace parabolt
