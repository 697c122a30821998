#pragma once

#include "plots/picture_box.h"
#include "qt/picture_file.h"

#include <QPixmap>
#include <QWidget>

namespace parabolt {

/// A chart in a size in pixels, with text of so many pixels.
class ChartPicture {
public:
    ChartPicture(const DrawChart& draw, QSizeF size, double textPixels, Rgb ground, Rgb ink);

    /// Paints it over a rectangle of the same shape.
    void paint(QPainter& painter, const QRectF& target) const;
    const PictureBox& canvas() const { return canvas_; }

private:
    ControlSet controls_; // of the canvas alone
    PictureBox canvas_;
};

/// Shows a chart in the colours and the text size of the desktop, sharp at any density.
class ChartView : public QWidget {
    Q_OBJECT

public:
    ChartView(const QString& name, const QString& accessibleName, DrawChart draw,
              QWidget* parent = nullptr);

    /// The chart has changed: draws it anew.
    void redraw();
    /// The chart for a file, the clipboard or a page: black on white, in the size that it has here.
    FilePicture onPaper() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    double twipsPerPixel() const;

private:
    double textPixels() const;

    DrawChart draw_;
    QPixmap drawn_; ///< null when it has changed
};

} // namespace parabolt
