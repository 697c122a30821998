#include "qt/rich_text_binding.h"

#include "qt/text.h"

#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace parabolt {
namespace {

QTextCharFormat inColour(Rgb colour) {
    QTextCharFormat format;
    format.setForeground(QColor(colour.red, colour.green, colour.blue));
    return format;
}

} // namespace

RichTextBinding::RichTextBinding(RichTextBox& box, QPlainTextEdit& edit) : box_(box), edit_(edit) {
    box_.onClear = [this] {
        const QScopedValueRollback guard(showing_, true);
        edit_.clear();
    };
    box_.onInsert = [this](std::size_t position, const std::string& text, Rgb colour) {
        insert(position, text, colour);
    };
    box_.onSelColor = [this](Rgb colour) { edit_.setCurrentCharFormat(inColour(colour)); };
    box_.onScroll = [this](int lines) {
        QScrollBar* bar = edit_.verticalScrollBar();
        bar->setValue(bar->value() + lines);
    };
    if (!box_.text().empty())
        insert(0, box_.text(), kBlack);
    connect(&edit_, &QPlainTextEdit::cursorPositionChanged, this, &RichTextBinding::takeCaret);
    connect(&edit_, &QPlainTextEdit::selectionChanged, this, &RichTextBinding::takeCaret);
    connect(&edit_, &QPlainTextEdit::textChanged, this, &RichTextBinding::takeText);
}

RichTextBinding::~RichTextBinding() {
    box_.onClear = nullptr;
    box_.onInsert = nullptr;
    box_.onSelColor = nullptr;
    box_.onScroll = nullptr;
}

void RichTextBinding::insert(std::size_t position, const std::string& text, Rgb colour) {
    const QScopedValueRollback guard(showing_, true);
    QTextCursor cursor(edit_.document());
    cursor.setPosition(static_cast<int>(toQt(box_.text().substr(0, position)).size()));
    cursor.insertText(toQt(text), inColour(colour));
    edit_.setTextCursor(cursor);
    edit_.horizontalScrollBar()->setValue(0);
}

void RichTextBinding::takeCaret() {
    if (showing_)
        return;
    const QString text = textOf(edit_);
    box_.setCaret(fromQt(text.left(edit_.textCursor().selectionStart())).size());
}

void RichTextBinding::takeText() {
    if (showing_)
        return;
    const QString text = textOf(edit_);
    box_.edited(fromQt(text), fromQt(text.left(edit_.textCursor().selectionStart())).size());
}

} // namespace parabolt
