#include "qt/column_tips.h"

#include "qt/text.h"
#include "results/result_table.h"

#include <QHelpEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

namespace parabolt {

ColumnTips::ColumnTips(QPlainTextEdit& table) : QObject(&table), table_(table) {
    table_.viewport()->installEventFilter(this);
}

bool ColumnTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const auto& asked = *static_cast<QHelpEvent*>(event);
    const double across = asked.pos().x() + table_.horizontalScrollBar()->value() -
                          table_.document()->documentMargin();
    const double character = QFontMetricsF(table_.font()).horizontalAdvance('0');
    const std::string_view meaning =
        across < 0 ? std::string_view()
                   : columnMeaning(static_cast<std::size_t>(across / character));
    QToolTip::showText(asked.globalPos(), toQt(meaning), table_.viewport()); // hides, if empty
    return true;
}

} // namespace parabolt
