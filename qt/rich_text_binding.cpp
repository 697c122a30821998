#include "qt/rich_text_binding.h"

#include "qt/text.h"

#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

namespace parabolt {
namespace {

QTextCharFormat inColour(Rgb colour) {
    QTextCharFormat format;
    format.setForeground(QColor(colour.red, colour.green, colour.blue));
    return format;
}

Rgb colourOf(const QTextFragment& fragment) {
    const QColor colour = fragment.charFormat().foreground().color();
    const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
    return {part(colour.red()), part(colour.green()), part(colour.blue())};
}

/// What the widget holds. A line end counts to what stands before it.
ColouredTexts contentOf(const QPlainTextEdit& edit) {
    ColouredTexts content;
    const auto append = [&content](const std::string& text, Rgb colour) {
        if (content.empty() || content.back().colour != colour)
            content.push_back({{}, colour});
        content.back().text += text;
    };
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
        if (block != edit.document()->begin())
            append("\n", content.empty() ? kBlack : content.back().colour);
        for (auto at = block.begin(); !at.atEnd(); ++at)
            append(fromQt(at.fragment().text().replace(QChar::LineSeparator, '\n')),
                   colourOf(at.fragment()));
    }
    return content;
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
    box_.onCaret = [this](std::size_t position) { moveCaret(position); };
    std::size_t end = 0;
    for (const ColouredText& piece : box_.content()) {
        insert(end, piece.text, piece.colour);
        end += piece.text.size();
    }
    connect(&edit_, &QPlainTextEdit::cursorPositionChanged, this, &RichTextBinding::takeCaret);
    connect(&edit_, &QPlainTextEdit::selectionChanged, this, &RichTextBinding::takeCaret);
    connect(&edit_, &QPlainTextEdit::textChanged, this, &RichTextBinding::takeText);
}

RichTextBinding::~RichTextBinding() {
    box_.onClear = nullptr;
    box_.onInsert = nullptr;
    box_.onSelColor = nullptr;
    box_.onCaret = nullptr;
    box_.onScroll = nullptr;
}

void RichTextBinding::insert(std::size_t position, const std::string& text, Rgb colour) {
    const QScopedValueRollback guard(showing_, true);
    QTextCursor cursor = cursorAt(position);
    cursor.insertText(toQt(text), inColour(colour));
    show(cursor);
}

void RichTextBinding::moveCaret(std::size_t position) {
    const QScopedValueRollback guard(showing_, true);
    show(cursorAt(position));
}

QTextCursor RichTextBinding::cursorAt(std::size_t position) const {
    QTextCursor cursor(edit_.document());
    cursor.setPosition(static_cast<int>(toQt(box_.text().substr(0, position)).size()));
    return cursor;
}

void RichTextBinding::show(const QTextCursor& cursor) {
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
    box_.edited(contentOf(edit_), fromQt(text.left(edit_.textCursor().selectionStart())).size());
}

} // namespace parabolt
