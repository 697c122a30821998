#include "qt/splash_window.h"

#include "qt/text.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QTimer>
#include <cmath>

namespace parabolt {

namespace {

constexpr auto kStyle = R"(
    #Frame1 { background: #0b2036; border: 1px solid #3a6f8c; }
    QLabel { color: #f4f6f7; background: transparent; }
    #lblVersion, #lblWarning { color: #b9c9d3; }
    #Label1 { color: #7fd0ff; text-decoration: underline; }
)";

/// A stored picture at its size in logical pixels, sharp at any density of the screen: the file
/// holds four times as many.
class PictureLabel : public QWidget {
public:
    PictureLabel(const QString& name, const QString& file, QSize size, QWidget* parent)
        : QWidget(parent),
          image_(file) {
        setObjectName(name);
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const double density = devicePixelRatioF();
        QImage scaled =
            image_.scaled(size() * density, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(density);
        QPainter(this).drawImage(0, 0, scaled);
    }

private:
    QImage image_;
};

/// Takes the second press of a double click, whose first has closed a window, from whatever stands
/// behind that window.
class SecondPress : public QObject {
public:
    explicit SecondPress(const QMouseEvent& first) : QObject(qApp), place_(first.globalPosition()) {
        qApp->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this, &QObject::deleteLater);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress &&
            event->type() != QEvent::MouseButtonDblClick)
            return false;
        deleteLater();
        qApp->removeEventFilter(this);
        const QPointF away = static_cast<QMouseEvent*>(event)->globalPosition() - place_;
        const int near = QGuiApplication::styleHints()->mouseDoubleClickDistance();
        return std::abs(away.x()) <= near && std::abs(away.y()) <= near;
    }

private:
    QPointF place_;
};

QLabel* label(const Label& control, double relativeSize, QWidget* parent) {
    auto* widget = new QLabel(toQt(control.caption()), parent);
    widget->setObjectName(toQt(control.name()));
    widget->setTextFormat(Qt::PlainText);
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * relativeSize);
    widget->setFont(font);
    return widget;
}

} // namespace

SplashWindow::SplashWindow(frmSplash& splash, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      splash_(splash.handlers) {
    SplashForm& form = splash.form;
    setObjectName("frmSplash");
    setWindowTitle(toQt(form.lblProductName.caption()));
    setStyleSheet(kStyle);
    // The main form comes when the splash has gone: that must not end the program.
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* frame = new QFrame(this);
    frame->setObjectName("Frame1");
    auto* picture1 = new PictureLabel("Picture1", ":/images/splash_flight.png", {250, 139}, frame);
    auto* picture2 = new PictureLabel("Picture2", ":/images/splash_ball.png", {200, 66}, frame);
    QLabel* product = label(form.lblProductName, 2.6, frame);
    QLabel* version = label(form.lblVersion, 1, frame);
    QLabel* warning = label(form.lblWarning, 0.9, frame);
    warning->setWordWrap(true);
    QLabel* link = label(form.Label1, 1, frame);
    link->setCursor(Qt::PointingHandCursor);
    link->installEventFilter(this);

    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(10);
    grid->addWidget(picture1, 0, 0, 3, 1);
    grid->addWidget(product, 0, 1, Qt::AlignTop);
    grid->addWidget(version, 1, 1, Qt::AlignTop);
    grid->addWidget(picture2, 2, 1, Qt::AlignBottom);
    grid->addWidget(warning, 3, 0, 1, 2);
    grid->addWidget(link, 4, 0, 1, 2, Qt::AlignLeft);

    auto* whole = new QGridLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    whole->addWidget(frame, 0, 0);

    binding_ = std::make_unique<FormBinding>(*this, form.controls, form.focus);
    form.Unload.connect([this] { QDialog::done(Accepted); });
}

void SplashWindow::keyPressEvent(QKeyEvent* event) {
    // A key that is still held down, such as the Enter that chose About, isn't pressed anew.
    if (!event->isAutoRepeat())
        splash_.Form_KeyPress();
}

void SplashWindow::mousePressEvent(QMouseEvent* event) {
    new SecondPress(*event); // goes by itself
    const QWidget* clicked = childAt(event->position().toPoint());
    if (clicked && clicked->objectName() == "Picture1")
        splash_.Picture1_Click();
    else
        splash_.Frame1_Click();
}

bool SplashWindow::eventFilter(QObject* watched, QEvent* event) {
    // The second press of a double click opens nothing anew, and must not reach the form behind.
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() != QEvent::MouseButtonPress)
        return QDialog::eventFilter(watched, event);
    splash_.Label1_Click();
    return true;
}

void SplashWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    activateWindow();
}

void SplashWindow::done(int) {
    splash_.unload();
}

} // namespace parabolt
