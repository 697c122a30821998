#pragma once

#include "maps/carry_map.h"

#include <QPixmap>
#include <QWidget>

namespace parabolt {

/// The picture of a map on white paper, of a size in pixels, with text of so many pixels.
class MapPicture {
public:
    MapPicture(const CarryMap& map, QSizeF size, double textPixels, Rgb ground, Rgb ink);

    /// Paints it over a rectangle of the same shape.
    void paint(QPainter& painter, const QRectF& target) const;
    QSizeF size() const { return size_; }

private:
    QSizeF size_;
    ControlSet controls_; // of the canvas alone
    PictureBox canvas_;
};

/// Shows the carry map, and a cross hair over it that follows the pointer and the arrow keys.
class MapView : public QWidget {
    Q_OBJECT

public:
    explicit MapView(CarryMap& map, QWidget* parent = nullptr);

    /// The map has changed: draws it anew.
    void redraw();
    /// The picture for a file or the clipboard, in the size that it has here.
    MapPicture pictureOnPaper() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

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
    void changeEvent(QEvent* event) override;

private:
    double textPixels() const;
    double twipsPerPixel() const;
    MapFrame frame() const;
    bool placeCross(QPointF at);
    void paintCross(QPainter& painter) const;

    CarryMap& map_;
    QPixmap drawn_; ///< the map without the cross hair; null when it has changed
};

} // namespace parabolt
