#pragma once

#include "controls/control.h"

#include <vector>

namespace parabolt {

class OptionButton;

/// Option buttons of which one at most is selected.
class OptionGroup {
private:
    friend class OptionButton;
    std::vector<OptionButton*> buttons_;
};

/// One of several choices that exclude each other.
class OptionButton : public Control {
public:
    OptionButton(ControlSet& form, OptionGroup& group, std::string_view name,
                 std::string_view caption, bool selected = false);

    const std::string& caption() const { return caption_; }
    bool selected() const { return selected_; }
    /// Selects the button and takes the selection from the others of its group. Raises `Click`,
    /// from code as from the user, if the button wasn't selected before.
    void select();
    /// The same without an event, where its consequences are laid beside it.
    void lay();

    bool takesFocus() const override { return true; }

    Event<> Choosing; ///< another button is about to be selected: all is still as it was
    Event<> Click;

private:
    void deselect();

    OptionGroup& group_;
    std::string caption_;
    bool selected_;
};

/// A switch.
class CheckBox : public Control {
public:
    CheckBox(ControlSet& form, std::string_view name, std::string_view caption);

    const std::string& caption() const { return caption_; }
    bool checked() const { return checked_; }
    void setChecked(bool checked); ///< raises nothing

    bool takesFocus() const override { return true; }

private:
    std::string caption_;
    bool checked_ = false;
};

/// A list that drops down and shows its selected entry.
class DropDownList : public Control {
public:
    DropDownList(ControlSet& form, std::string_view name);

    const std::vector<std::string>& items() const { return items_; }
    /// Replaces all entries; none is selected afterwards. Raises nothing.
    void setItems(std::vector<std::string> items);
    /// Index of the selected entry, from 0; -1 if none is.
    int listIndex() const { return listIndex_; }
    /// Selects an entry that the list has. Raises `Click` if another or none was selected before.
    void select(int index);
    /// The same without an event, where its consequences are laid beside it.
    void lay(int index);
    /// The selected entry; empty if none is.
    std::string text() const;
    /// Index of an entry; -1 if the list doesn't have it.
    int indexOf(std::string_view entry) const;

    bool takesFocus() const override { return true; }

    Event<> Choosing; ///< another entry is about to be selected: all is still as it was
    Event<> Click;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

} // namespace parabolt
