#include "controls/text_box.h"

#include "numbers/characters.h"

#include <algorithm>

namespace parabolt {

TextBox::TextBox(ControlSet& form, std::string_view name, std::string_view text)
    : Control(form, name, WhileBusy::Held),
      text_(text) {}

void TextBox::setText(std::string_view text) {
    if (maxLength_ > 0)
        text = text.substr(0, characterStart(text, maxLength_));
    if (text_ == text)
        return;
    layText(text);
    Change();
}

void TextBox::layText(std::string_view text) {
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    viewChanged();
}

void TextBox::setMaxLength(std::size_t characters) {
    maxLength_ = characters;
    setText(std::string(text_));
}

void TextBox::setSelection(std::size_t start, std::size_t length) {
    selStart_ = std::min(start, text_.size());
    selLength_ = std::min(length, text_.size() - selStart_);
    viewChanged();
}

void SelectWholeText(TextBox& field) {
    field.setSelection(0, field.text().size());
}

void SelectAllTextBoxes(const ControlSet& form) {
    for (Control* control : form.all())
        if (auto* field = dynamic_cast<TextBox*>(control))
            SelectWholeText(*field);
}

} // namespace parabolt
