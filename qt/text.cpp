#include "qt/text.h"

#include <QPlainTextEdit>

namespace parabolt {

QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string fromQt(const QString& text) {
    return text.toStdString();
}

QString textOf(const QPlainTextEdit& edit) {
    return edit.document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, '\n')
        .replace(QChar::LineSeparator, '\n'); // of Shift and Enter
}

} // namespace parabolt
