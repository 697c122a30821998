#pragma once

#include "controls/control.h"

namespace parabolt {

/// Which control of a form has the focus. The logic moves it here and the view follows; when the
/// user moves it in the view, the view reports it here. Either way the text box that is left raises
/// its `LostFocus`, once, before the focus has gone.
class Focus {
public:
    Control* active() const { return active_; }

    /// Gives the focus to a control and says whether it has it in the end. A control that is
    /// disabled or hidden refuses it, and nothing happens. A `LostFocus` handler on the way that
    /// gives the focus to another control, such as the field that it refused, overrules the target;
    /// no further `LostFocus` comes from that.
    bool give(Control& target);

    /// Set by the view: moves the real focus to `active()`.
    std::function<void()> onMove;

private:
    Control* active_ = nullptr;
    Control* target_ = nullptr;
    bool leaving_ = false;
};

} // namespace parabolt
