#include "controls/control.h"

namespace parabolt {

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
