#pragma once

#include "controls/control.h"
#include "controls/event.h"
#include "numbers/coloured_text.h"

#include <cstddef>
#include <optional>

namespace parabolt {

/// A box of coloured lines that the user can also type into. Lines end in a line feed, so the text
/// that follows the last line end is one more line, empty or not. Lines count from 0, positions are
/// bytes of the UTF-8 text.
class RichTextBox : public Control {
public:
    RichTextBox(ControlSet& form, std::string_view name);

    const std::string& text() const { return text_; }
    /// The same in its colours.
    const ColouredTexts& content() const { return content_; }
    void clear();
    /// Puts a content in place of the present one, with the caret at a position.
    void replace(const ColouredTexts& content, std::size_t caret);
    /// Inserts a text in one colour in front of a position and leaves the caret behind it.
    void insert(std::size_t position, std::string_view text, Rgb colour);
    /// The colour in which typing at the caret goes on, until the caret is moved.
    void setSelColor(Rgb colour);
    const std::optional<Rgb>& selColor() const { return selColor_; }

    std::size_t lineCount() const;
    std::size_t lineFromChar(std::size_t position) const;
    /// Start of a line; nothing if the text has no such line.
    std::optional<std::size_t> lineStart(std::size_t line) const;
    /// Scrolls the view down by a number of lines from where it stands, at most to the text's end.
    void scroll(int lines);

    std::size_t caret() const { return caret_; } ///< or the start of a selection
    /// Of the view: the user has moved the caret or selected from here on.
    void setCaret(std::size_t position);
    /// Of the view: the user has typed, and the whole content is this now.
    void edited(ColouredTexts content, std::size_t caret);

    double width() const { return width_; } ///< twips
    void setWidth(double twips);

    bool takesFocus() const override { return true; }

    Event<> Change; ///< the text has changed
    /// The user is about to change the text to this: it is still as it was.
    Event<const std::string&> Editing;
    /// Set by the view: position, text and colour of what came in.
    std::function<void(std::size_t, const std::string&, Rgb)> onInsert;
    std::function<void()> onClear;            ///< set by the view
    std::function<void(Rgb)> onSelColor;      ///< set by the view
    std::function<void(std::size_t)> onCaret; ///< set by the view: the caret's new position
    std::function<void(int)> onScroll;        ///< set by the view

private:
    void insertContent(std::size_t position, const ColouredText& piece);

    std::string text_;
    ColouredTexts content_;
    std::optional<Rgb> selColor_;
    std::size_t caret_ = 0;
    double width_ = 0;
};

} // namespace parabolt
