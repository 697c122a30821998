#include "controls/focus.h"

namespace parabolt {

bool Focus::give(Control& target) {
    if (!target.canTakeFocus())
        return false;
    target_ = &target;
    if (leaving_)
        return true;
    if (target_ != active_ && active_ != nullptr) {
        leaving_ = true;
        active_->focusLost();
        leaving_ = false;
        if (!target_->canTakeFocus()) // any more
            target_ = active_;
    }
    const bool arrives = active_ != target_;
    active_ = target_;
    if (onMove)
        onMove();
    if (arrives)
        active_->focusGained();
    return active_ == &target;
}

} // namespace parabolt
