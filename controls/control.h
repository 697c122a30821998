#pragma once

#include "controls/event.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

class Control;

/// The controls of one form, in the order of their creation. A control enters its form's set when
/// it is made and never leaves it: set and controls belong to one form and die with it.
class ControlSet {
public:
    const std::vector<Control*>& all() const { return controls_; }

private:
    friend class Control;
    std::vector<Control*> controls_;
};

/// Whether a control is held back while the form is busy with a study or a batch.
enum class WhileBusy { Held, Free };

/// What all controls have: a name, and whether they can be used and seen. The logic works on
/// controls only; it never learns whether a widget shows them.
class Control {
public:
    Control(ControlSet& form, std::string_view name, WhileBusy whileBusy = WhileBusy::Free);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return name_; }
    bool enabled() const { return enabled_ && !held_; }
    void setEnabled(bool enabled);
    /// Holds the control back, whatever else enables or disables it meanwhile: it is disabled until
    /// it is let go, and then as enabled as it would be without.
    void setHeld(bool held);
    WhileBusy whileBusy() const { return whileBusy_; }
    bool visible() const { return visible_; }
    void setVisible(bool visible);

    /// True if the control can hold the focus at all; a disabled or hidden one refuses it.
    virtual bool takesFocus() const { return false; }
    bool canTakeFocus() const { return takesFocus() && enabled() && visible_; }
    /// Called when the focus leaves for another control of the form, while it is still here.
    virtual void focusLost() const {}
    /// Called when the focus has come from elsewhere.
    virtual void focusGained() const {}

    /// Set by the view, and called after each change of what the control shows.
    std::function<void()> onViewChange;

protected:
    void viewChanged() const;

private:
    std::string name_;
    WhileBusy whileBusy_;
    bool enabled_ = true;
    bool held_ = false;
    bool visible_ = true;
};

} // namespace parabolt
