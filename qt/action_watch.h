#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace parabolt {

/// Notices when what the user did has been done: the event loop comes round after a key, a click or
/// the like, and no message, question or file dialog waits for an answer.
class ActionWatch : public QObject {
    Q_OBJECT

public:
    explicit ActionWatch(std::function<void()> ended);

    /// While it is busy nothing counts as done. When it no longer is, what went before has ended.
    void setBusy(bool busy);
    bool busy() const { return busy_; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void comeRound();

    std::function<void()> ended_;
    QTimer round_;
    bool busy_ = false;
};

} // namespace parabolt
