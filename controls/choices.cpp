#include "controls/choices.h"

#include <algorithm>
#include <utility>

namespace parabolt {

OptionButton::OptionButton(ControlSet& form, OptionGroup& group, std::string_view name,
                           std::string_view caption, bool selected)
    : Control(form, name, WhileBusy::Held),
      group_(group),
      caption_(caption),
      selected_(selected) {
    group_.buttons_.push_back(this);
}

void OptionButton::select() {
    if (selected_)
        return;
    Choosing();
    lay();
    Click();
}

void OptionButton::lay() {
    for (OptionButton* other : group_.buttons_)
        other->deselect();
    selected_ = true;
    viewChanged();
}

void OptionButton::deselect() {
    if (!selected_)
        return;
    selected_ = false;
    viewChanged();
}

CheckBox::CheckBox(ControlSet& form, std::string_view name, std::string_view caption)
    : Control(form, name, WhileBusy::Held),
      caption_(caption) {}

void CheckBox::setChecked(bool checked) {
    if (checked_ == checked)
        return;
    checked_ = checked;
    viewChanged();
}

DropDownList::DropDownList(ControlSet& form, std::string_view name)
    : Control(form, name, WhileBusy::Held) {}

void DropDownList::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    listIndex_ = -1;
    viewChanged();
}

void DropDownList::select(int index) {
    if (listIndex_ == index)
        return;
    Choosing();
    lay(index);
    Click();
}

void DropDownList::lay(int index) {
    listIndex_ = index;
    viewChanged();
}

std::string DropDownList::text() const {
    return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

int DropDownList::indexOf(std::string_view entry) const {
    const auto found = std::find(items_.begin(), items_.end(), entry);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

} // namespace parabolt
