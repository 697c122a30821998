#pragma once

#include "controls/control.h"

#include <utility>

namespace parabolt {

/// A control that shows one line of text; base of those that differ by what they do.
class CaptionedControl : public Control {
public:
    CaptionedControl(ControlSet& form, std::string_view name, std::string_view caption,
                     WhileBusy whileBusy = WhileBusy::Free)
        : Control(form, name, whileBusy),
          caption_(caption) {}
    const std::string& caption() const { return caption_; }

protected:
    void changeCaption(std::string caption);

private:
    std::string caption_;
};

/// Text that names another control or tells something.
class Label : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    void setCaption(std::string caption) { changeCaption(std::move(caption)); }
};

/// A titled box around other controls. `Width` is in twips.
class Frame : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    double width() const { return width_; }
    void setWidth(double twips);

private:
    double width_ = 0;
};

/// A push button.
class Button : public CaptionedControl {
public:
    Button(ControlSet& form, std::string_view name, std::string_view caption)
        : CaptionedControl(form, name, caption, WhileBusy::Held) {}
    bool takesFocus() const override { return true; }
    Event<> Click;
};

/// A menu title or an entry of a menu. A title's `Click` comes when its menu opens.
class MenuItem : public CaptionedControl {
public:
    /// What a command does first: settle the field being edited, or nothing.
    enum class First { Settles, WaitsForNothing };

    MenuItem(ControlSet& form, std::string_view name, std::string_view caption,
             WhileBusy whileBusy = WhileBusy::Held, First first = First::Settles)
        : CaptionedControl(form, name, caption, whileBusy),
          first_(first) {}
    First first() const { return first_; }
    void setCaption(std::string caption) { changeCaption(std::move(caption)); }
    Event<> Click;

private:
    First first_;
};

/// A clock that raises its event after each interval while it is enabled. It starts disabled.
class Timer : public Control {
public:
    Timer(ControlSet& form, std::string_view name, int intervalMs);
    int interval() const { return intervalMs_; } ///< milliseconds
    void setInterval(int milliseconds);
    Event<> Tick;

private:
    int intervalMs_;
};

/// A bar that fills from its least to its greatest value.
class ProgressBar : public Control {
public:
    ProgressBar(ControlSet& form, std::string_view name, int least, int greatest);
    int least() const { return least_; }
    int greatest() const { return greatest_; }
    int value() const { return value_; }
    void setValue(int value);

private:
    int least_;
    int greatest_;
    int value_;
};

} // namespace parabolt
