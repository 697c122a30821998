#pragma once

#include "controls/rich_text_box.h"

#include <QObject>

class QPlainTextEdit;
class QTextCursor;

namespace parabolt {

/// Ties the result table to the widget that shows it: coloured lines in, typing and caret out. Lets
/// go of the table when it dies; it must do so before the table does.
class RichTextBinding : public QObject {
    Q_OBJECT

public:
    RichTextBinding(RichTextBox& box, QPlainTextEdit& edit);
    ~RichTextBinding() override;

private:
    void insert(std::size_t position, const std::string& text, Rgb colour);
    void takeCaret();
    void moveCaret(std::size_t position);
    QTextCursor cursorAt(std::size_t position) const;
    void show(const QTextCursor& cursor);
    void takeText();

    RichTextBox& box_;
    QPlainTextEdit& edit_;
    bool showing_ = false; ///< what changes now comes from the table, not from the user
};

} // namespace parabolt
