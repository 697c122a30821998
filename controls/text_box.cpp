#include "controls/text_box.h"

#include <algorithm>

namespace parabolt {

namespace {

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::size_t characterStart(std::string_view text, std::size_t character) {
    for (std::size_t at = 0; at < text.size(); ++at)
        if (startsCharacter(text[at]) && character-- == 0)
            return at;
    return text.size();
}

TextBox::TextBox(ControlSet& form, std::string_view name, std::string_view text)
    : Control(form, name, WhileBusy::Held),
      text_(text) {}

void TextBox::setText(std::string_view text) {
    if (maxLength_ > 0)
        text = text.substr(0, characterStart(text, maxLength_));
    if (text_ == text)
        return;
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    viewChanged();
    Change();
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
