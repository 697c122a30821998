#include "controls/rich_text_box.h"

#include <algorithm>
#include <utility>

namespace parabolt {

RichTextBox::RichTextBox(ControlSet& form, std::string_view name) : Control(form, name) {}

void RichTextBox::replace(const ColouredTexts& content, std::size_t caret) {
    clear();
    for (const ColouredText& piece : content)
        insert(text_.size(), piece.text, piece.colour);
    setCaret(caret);
    if (onCaret)
        onCaret(caret_);
}

void RichTextBox::clear() {
    caret_ = 0;
    if (text_.empty())
        return;
    text_.clear();
    content_.clear();
    if (onClear)
        onClear();
    Change();
}

void RichTextBox::insert(std::size_t position, std::string_view text, Rgb colour) {
    position = std::min(position, text_.size());
    text_.insert(position, text);
    insertContent(position, {std::string(text), colour});
    caret_ = position + text.size();
    if (onInsert)
        onInsert(position, std::string(text), colour);
    Change();
}

void RichTextBox::insertContent(std::size_t position, const ColouredText& piece) {
    auto at = content_.begin();
    for (; at != content_.end() && position >= at->text.size(); ++at)
        position -= at->text.size();
    if (position > 0) {
        ColouredText rest{at->text.substr(position), at->colour};
        at->text.resize(position);
        at = content_.insert(std::next(at), std::move(rest));
    }
    content_.insert(at, piece);
}

void RichTextBox::setSelColor(Rgb colour) {
    selColor_ = colour;
    if (onSelColor)
        onSelColor(colour);
}

std::size_t RichTextBox::lineCount() const {
    return static_cast<std::size_t>(std::count(text_.begin(), text_.end(), '\n')) + 1;
}

std::size_t RichTextBox::lineFromChar(std::size_t position) const {
    const auto end = text_.begin() + static_cast<std::ptrdiff_t>(std::min(position, text_.size()));
    return static_cast<std::size_t>(std::count(text_.begin(), end, '\n'));
}

std::optional<std::size_t> RichTextBox::lineStart(std::size_t line) const {
    std::size_t start = 0;
    for (; line > 0; --line) {
        const std::size_t end = text_.find('\n', start);
        if (end == std::string::npos)
            return std::nullopt;
        start = end + 1;
    }
    return start;
}

void RichTextBox::scroll(int lines) {
    if (onScroll)
        onScroll(lines);
}

void RichTextBox::setCaret(std::size_t position) {
    caret_ = std::min(position, text_.size());
    selColor_.reset();
}

void RichTextBox::edited(ColouredTexts content, std::size_t caret) {
    std::string text;
    for (const ColouredText& piece : content)
        text += piece.text;
    const bool differs = text_ != text;
    if (differs)
        Editing(text);
    text_ = std::move(text);
    content_ = std::move(content);
    setCaret(caret);
    if (differs)
        Change();
}

void RichTextBox::setWidth(double twips) {
    width_ = twips;
    viewChanged();
}

} // namespace parabolt
