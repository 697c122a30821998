#pragma once

#include <QObject>

class QPlainTextEdit;

namespace parabolt {

/// Names the column of the result table under the pointer in a tool tip. Lives as long as the
/// widget.
class ColumnTips : public QObject {
    Q_OBJECT

public:
    explicit ColumnTips(QPlainTextEdit& table);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPlainTextEdit& table_;
};

} // namespace parabolt
