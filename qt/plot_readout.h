#pragma once

#include "mainform/main_form.h"
#include "sets/path_points.h"

#include <QPixmap>
#include <QWidget>

class QLabel;

namespace parabolt {

/// Answers for the plot of the main form: the curve nearest to the pointer is lifted out of the
/// others, and the label "plotReadout" tells what the ball does there. Keys do the same where the
/// plot has the focus: left and right along the curve (a tenth of a second; with Ctrl one step of
/// the flight, with Shift half a second), up and down to the next curve, Home and End.
///
/// It lies over the curves, with a picture of them, while the pointer is inside the plot or the
/// keys move it, and costs nothing else.
class PlotReadout : public QWidget {
    Q_OBJECT

public:
    /// `curves` is the widget of `Picture2`, inside `frame`, that of `Picture1`.
    PlotReadout(const MainForm& form, QWidget& frame, QWidget& curves);

    /// Starts with the keys, at the top of the newest curve that is shown; false if there is none.
    bool begin();
    /// The keys have led to a point.
    bool walking() const { return byKeys_ && point_; }
    /// Hides it: it is no longer wanted, or the plot has been drawn anew.
    void clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool keyPressed(const QKeyEvent& key);
    void pointAt(QPointF place);
    void lieOver();
    void show(PathPoint point);
    void letGo();
    void tell(const std::string& text);
    void paintLanding(QPainter& painter, const RunRecord& run) const;
    QPointF placeOf(TrajectoryPoint point) const;
    QRect around(PathPoint point) const;
    void takePicture();
    void placeLabel(QPointF at);

    const MainForm& form_;
    QWidget& frame_;
    QLabel* label_;
    std::optional<PathPoint> point_;
    bool byKeys_ = false; ///< the keys have led to the point, not the pointer
    QPixmap picture_;     ///< of the curves, in device pixels of the screen
    QPointF shift_; ///< of the picture's first pixel against this widget's corner, device pixels
};

} // namespace parabolt
