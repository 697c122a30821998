#include "qt/dialogs.h"

#include "mainform/main_form.h"
#include "qt/text.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>

namespace parabolt {
namespace {

constexpr int kLeastWidth = 260; ///< pixels

/// A message box that closes by its buttons and, without an answer, only where it says so: Esc is
/// OK or Cancel, but neither Yes nor No, either of which may cost data.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

    bool closes() const { return (standardButtons() & (Ok | Cancel)) != NoButton; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!event->matches(QKeySequence::Cancel) || closes())
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (closes())
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }
};

/// Remembers the window in front that is no dialog.
class FrontWatch : public QObject {
public:
    FrontWatch() {
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* front) {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (front != nullptr && window->windowHandle() == front &&
                    window->windowType() == Qt::Window)
                    last_ = window;
        });
    }
    QWidget* last() const { return last_ != nullptr && last_->isVisible() ? last_.get() : nullptr; }

private:
    QPointer<QWidget> last_;
};

const FrontWatch& frontWatch() {
    static const FrontWatch kWatch;
    return kWatch;
}

QMessageBox::StandardButton ask(std::string_view text, QMessageBox::StandardButtons buttons) {
    Box box(QMessageBox::NoIcon, toQt(kApplicationTitle), toQt(text), buttons, frontWindow());
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    if (!box.closes())
        box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    // Wide enough for its title.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(kLeastWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QWidget* frontWindow() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* last = frontWatch().last())
        return last;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmMain")
            return window;
    return nullptr;
}

QtMessageBoxes::QtMessageBoxes() {
    frontWatch();
}

void QtMessageBoxes::show(std::string_view message) {
    parabolt::ask(message, QMessageBox::Ok);
}

bool QtMessageBoxes::ask(std::string_view question) {
    return parabolt::ask(question, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

MessageBoxes::Answer QtMessageBoxes::askOrCancel(std::string_view question) {
    switch (parabolt::ask(question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

void QtEventLoop::yield() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace parabolt
