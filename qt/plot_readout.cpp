#include "qt/plot_readout.h"

#include "controls/units.h"
#include "numbers/characters.h"
#include "qt/picture_painter.h"
#include "qt/text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

constexpr double kReach = 32;      ///< pixels from the pointer to a curve
constexpr int kMarker = 5;         ///< radius of the ring at the point, pixels
constexpr double kPointsApart = 5; ///< of the lifted curve, pixels
constexpr int kRim = 5;            ///< pens of the lifted curve
constexpr int kCurve = 3;
constexpr int kGap = 14;         ///< between the point and the label
constexpr int kLetters = 48;     ///< of a line, about
constexpr int kPointsOfKey = 10; ///< a tenth of a second
constexpr int kPointsOfLeap = 50;

QColor toColour(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

} // namespace

PlotReadout::PlotReadout(const MainForm& form, QWidget& frame, QWidget& curves)
    : QWidget(&curves),
      form_(form),
      frame_(frame),
      label_(new QLabel(this)) {
    setObjectName("plotLifted");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    label_->setObjectName("plotReadout");
    label_->setTextFormat(Qt::PlainText);
    label_->setAutoFillBackground(true);
    label_->setFrameShape(QFrame::Box);
    label_->setMargin(4);
    label_->setBackgroundRole(QPalette::ToolTipBase);
    label_->setForegroundRole(QPalette::ToolTipText);
    hide();
    curves.setMouseTracking(true);
    for (QObject* watched : {&curves, &frame})
        watched->installEventFilter(this);
}

void PlotReadout::clear() {
    byKeys_ = false;
    if (picture_.isNull())
        return;
    point_.reset();
    picture_ = {};
    label_->clear();
    hide();
}

/// No curve is near.
void PlotReadout::letGo() {
    if (!point_)
        return;
    point_.reset();
    label_->clear();
    label_->hide();
    update();
}

void PlotReadout::lieOver() {
    if (!picture_.isNull())
        return;
    setGeometry(parentWidget()->rect());
    takePicture();
    label_->hide();
    QWidget::show();
}

bool PlotReadout::begin() {
    byKeys_ = true;
    const auto shown = form_.Runs.ticked();
    if (shown.empty() || form_.Runs[shown.back()].Path.empty())
        return false;
    const auto& path = form_.Runs[shown.back()].Path;
    const auto top = std::max_element(
        path.begin(), path.end(), [](const auto& one, const auto& two) { return one.y < two.y; });
    show({shown.back(), static_cast<std::size_t>(top - path.begin())});
    return true;
}

bool PlotReadout::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
        if (watched == parent())
            lieOver();
        break;
    case QEvent::MouseMove:
        if (watched == parent())
            pointAt(static_cast<QMouseEvent*>(event)->position());
        break;
    case QEvent::Leave:
        if (watched == parent() && !byKeys_)
            clear();
        break;
    case QEvent::FocusOut:
    case QEvent::Resize:
        clear();
        break;
    case QEvent::KeyPress:
        return keyPressed(*static_cast<QKeyEvent*>(event));
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool PlotReadout::keyPressed(const QKeyEvent& key) {
    byKeys_ = true;
    const RunBook& book = form_.Runs;
    int points = kPointsOfKey;
    if ((key.modifiers() & Qt::ControlModifier) != 0)
        points = 1;
    else if ((key.modifiers() & Qt::ShiftModifier) != 0)
        points = kPointsOfLeap;
    constexpr int kAll = 1 << 20;
    switch (key.key()) {
    case Qt::Key_Left:
        points = -points;
        break;
    case Qt::Key_Right:
        break;
    case Qt::Key_Home:
        points = -kAll;
        break;
    case Qt::Key_End:
        points = kAll;
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (point_)
            show(toNeighbour(book, book.ticked(), *point_, key.key() == Qt::Key_Up ? 1 : -1));
        else
            begin();
        return true;
    default:
        return false;
    }
    if (point_)
        show(along(book, *point_, points));
    else
        begin();
    return true;
}

void PlotReadout::pointAt(QPointF place) {
    const CanvasScale& scale = form_.Picture2.scale();
    const double yardsPerPixel = scale.width / parentWidget()->width();
    const double x = scale.left + place.x() * yardsPerPixel;
    const double y = scale.top + place.y() / parentWidget()->height() * scale.height;
    const auto point =
        nearestPoint(form_.Runs, form_.Runs.ticked(),
                     {static_cast<float>(x), static_cast<float>(y)}, kReach * yardsPerPixel);
    byKeys_ = false;
    lieOver();
    if (point)
        show(*point);
    else
        letGo();
}

void PlotReadout::show(PathPoint point) {
    if (point == point_)
        return;
    lieOver();
    const auto before = std::exchange(point_, point);
    if (before && before->number == point.number) {
        update(around(*before)); // the curve stays
        update(around(point));
    } else {
        update();
    }
    tell(readoutOf(form_.Runs, point));
    placeLabel(placeOf(form_.Runs[point.number].Path.at(point.index)));
    label_->show();
}

/// Shows a text of several lines, of which the first may be too long.
void PlotReadout::tell(const std::string& text) {
    label_->setAccessibleName(toQt(text));
    const QFontMetrics metrics = label_->fontMetrics();
    const int widest = std::min(width() * 2 / 5, kLetters * metrics.averageCharWidth());
    const std::size_t first = text.find('\n');
    const std::string name =
        elided(text.substr(0, first), widest,
               [&metrics](std::string_view part) { return metrics.horizontalAdvance(toQt(part)); });
    label_->setText(toQt(name + (first < text.size() ? text.substr(first) : "")));
}

QPointF PlotReadout::placeOf(TrajectoryPoint point) const {
    const CanvasScale& scale = form_.Picture2.scale();
    return {(double{point.x} - scale.left) / scale.width * width(),
            (double{point.y} - scale.top) / scale.height * height()};
}

QRect PlotReadout::around(PathPoint point) const {
    constexpr int kRoom = kMarker + 3;
    const QPoint at = placeOf(form_.Runs[point.number].Path.at(point.index)).toPoint();
    return {at - QPoint(kRoom, kRoom), QSize(2 * kRoom + 1, 2 * kRoom + 1)};
}

/// Beside the point and inside the plot.
void PlotReadout::placeLabel(QPointF at) {
    label_->adjustSize();
    const QSize size = label_->size();
    QPoint corner = at.toPoint() + QPoint(kGap, -size.height() - kGap);
    if (corner.x() + size.width() > width())
        corner.setX(at.toPoint().x() - kGap - size.width());
    if (corner.y() < 0)
        corner.setY(at.toPoint().y() + kGap);
    label_->move(std::max(corner.x(), 0),
                 std::max(std::min(corner.y(), height() - size.height()), 0));
}

/// Paints the curves once, pixel by pixel as the screen has them.
void PlotReadout::takePicture() {
    const double ratio = devicePixelRatioF();
    const QPointF corner = QPointF(mapTo(window(), QPoint())) * ratio;
    shift_ = corner - QPointF(std::floor(corner.x()), std::floor(corner.y()));
    picture_ = QPixmap((QSizeF(size()) * ratio).toSize() + QSize(1, 1));
    picture_.fill(toColour(form_.Picture2.background()));
    QPainter painter(&picture_);
    painter.translate(shift_);
    painter.scale(ratio, ratio);
    paintPicture(painter, form_.Picture2, rect());
}

/// The disc at the landing, in front of those of other curves.
void PlotReadout::paintLanding(QPainter& painter, const RunRecord& run) const {
    const CanvasScale& scale = form_.Picture2.scale();
    const double perTwip = width() / form_.Picture2.geometry().width;
    for (const Drawing& drawing : form_.Picture2.drawings()) {
        const auto* ring = std::get_if<DrawnCircle>(&drawing);
        if (ring == nullptr || ring->colour != run.CurveColor ||
            ring->centre.x != run.Path.back().x)
            continue;
        const QPointF centre((ring->centre.x - scale.left) / scale.width * width(),
                             (ring->centre.y - scale.top) / scale.height * height());
        const double radius =
            ring->radius / scale.width * width() + ring->pen * kTwipsPerPixel * perTwip / 2;
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(toColour(run.CurveColor));
        painter.drawEllipse(centre, radius, radius);
    }
}

void PlotReadout::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    painter.drawPixmap(QRectF(-shift_ / ratio, QSizeF(picture_.size()) / ratio), picture_,
                       QRectF(QPointF(), picture_.size()));
    if (!point_)
        return;
    const RunRecord& run = form_.Runs[point_->number];
    // Each point would take longer, and look the same.
    QPolygonF curve;
    for (const TrajectoryPoint& point : run.Path)
        if (const QPointF place = placeOf(point);
            curve.isEmpty() || &point == &run.Path.back() ||
            (place - curve.back()).manhattanLength() >= kPointsApart)
            curve.append(place);
    painter.setRenderHint(QPainter::Antialiasing);
    // White around the colour, which may be dark, as the ground is.
    for (const QPen& pen : {QPen(Qt::white, kRim), QPen(toColour(run.CurveColor), kCurve)}) {
        painter.setPen(pen);
        painter.drawPolyline(curve);
    }
    paintLanding(painter, run);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::white);
    painter.drawEllipse(placeOf(run.Path.at(point_->index)), kMarker, kMarker);
}

} // namespace parabolt
