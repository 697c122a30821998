#pragma once

#include <QString>
#include <string>
#include <string_view>

class QPlainTextEdit;

namespace parabolt {

/// The logic's texts are UTF-8. Malformed bytes become replacement characters.
QString toQt(std::string_view utf8);
std::string fromQt(const QString& text);

/// What stands in a text edit, with \n between lines. Keeps fixed blanks, unlike toPlainText.
QString textOf(const QPlainTextEdit& edit);

} // namespace parabolt
