#pragma once

#include "controls/control.h"

#include <cstddef>

namespace parabolt {

/// Key codes that handlers of text boxes and grids ask for.
namespace keys {
inline constexpr int kBackspace = 8;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kF2 = 113;
} // namespace keys

/// A character on its way into a control. Backspace, Enter and Escape come as their key codes with
/// no text, everything that can be typed comes as text (UTF-8) with no code.
struct KeyStroke {
    int code = 0;
    std::string text;
    bool swallowed = false; ///< set by a handler: the control must not act on the key itself
};

/// An editable line of text, or lines that end in CR LF. Texts are UTF-8; positions count bytes.
class TextBox : public Control {
public:
    TextBox(ControlSet& form, std::string_view name, std::string_view text = {});

    const std::string& text() const { return text_; }
    /// Puts a text into the box, the caret at its start. Raises `Change` if it differs from the
    /// present one, and nothing if it is equal. The view calls it too, for what the user types.
    void setText(std::string_view text);
    /// The same without a `Change`, where its consequences are laid beside it.
    void layText(std::string_view text);

    /// Cuts the present text and each later one to that many characters; 0 lifts the limit.
    void setMaxLength(std::size_t characters);
    std::size_t maxLength() const { return maxLength_; }

    std::size_t selStart() const { return selStart_; }
    std::size_t selLength() const { return selLength_; }
    /// Selects a stretch of the text, cut to the text's length. A length of 0 places the caret.
    void setSelection(std::size_t start, std::size_t length);

    bool takesFocus() const override { return true; }
    void focusLost() const override { LostFocus(); }

    Event<> Change;
    Event<> LostFocus;
    Event<int> KeyDown;         ///< the key code
    Event<KeyStroke&> KeyPress; ///< before the box takes the character in
    Event<int> KeyUp;           ///< the key code

private:
    std::string text_;
    std::size_t maxLength_ = 0;
    std::size_t selStart_ = 0;
    std::size_t selLength_ = 0;
};

/// Selects the whole text of a box, so that the next keystroke replaces it.
void SelectWholeText(TextBox& field);

/// `SelectWholeText` on each text box of a form.
void SelectAllTextBoxes(const ControlSet& form);

} // namespace parabolt
