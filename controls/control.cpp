#include "controls/control.h"

#include <algorithm>

namespace parabolt {

Control* ControlSet::find(std::string_view name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(),
                     [name](const Control* control) { return control->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

Control::Control(ControlSet& form, std::string_view name, WhileBusy whileBusy)
    : name_(name),
      whileBusy_(whileBusy) {
    form.controls_.push_back(this);
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled)
        return;
    enabled_ = enabled;
    viewChanged();
}

void Control::setHeld(bool held) {
    if (held_ == held)
        return;
    held_ = held;
    viewChanged();
}

void Control::setVisible(bool visible) {
    if (visible_ == visible)
        return;
    visible_ = visible;
    viewChanged();
}

void Control::viewChanged() const {
    if (onViewChange)
        onViewChange();
}

} // namespace parabolt
