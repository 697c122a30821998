#include "qt/action_watch.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <utility>

namespace parabolt {

ActionWatch::ActionWatch(std::function<void()> ended) : ended_(std::move(ended)) {
    round_.setSingleShot(true);
    connect(&round_, &QTimer::timeout, this, [this] { comeRound(); });
    qApp->installEventFilter(this);
}

void ActionWatch::setBusy(bool busy) {
    busy_ = busy;
    if (!busy)
        round_.start();
}

bool ActionWatch::eventFilter(QObject* watched, QEvent* event) {
    // What a slow window takes in at a stroke are several actions all the same. Keys and clicks
    // come to the system's window first.
    const bool begins = event->type() == QEvent::Shortcut ||
                        (watched->isWindowType() && (event->type() == QEvent::KeyPress ||
                                                     event->type() == QEvent::MouseButtonPress));
    if (begins && round_.isActive()) {
        round_.stop();
        comeRound();
    }
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::Close:
        round_.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ActionWatch::comeRound() {
    const QWidget* modal = QApplication::activeModalWidget();
    const bool asks = qobject_cast<const QMessageBox*>(modal) != nullptr ||
                      qobject_cast<const QFileDialog*>(modal) != nullptr;
    if (!busy_ && !asks)
        ended_();
}

} // namespace parabolt
