#pragma once

#include "clubs/cell_editing.h"
#include "clubs/club_form.h"
#include "controls/services.h"

#include <cstdint>
#include <functional>

namespace parabolt {

/// What the club editor does but for its files: it shows the club set, judges and applies what the
/// user made of it, and asks before edits are lost. The set itself changes only when applied.
class ClubEditor {
public:
    /// `showInMainForm` is called when the set has been applied or saved, for the main form's
    /// caption.
    ClubEditor(ClubForm& form, ClubTables& clubs, MessageBoxes& messages, Desktop& desktop,
               std::function<void()> showInMainForm);

    /// True if every cell lies within its bounds. Otherwise tells about the first that doesn't,
    /// club by club and irons first, and makes it current.
    [[nodiscard]] bool ValidateClubGrids();
    /// Puts grids and texts into the club set.
    void ApplyClubGrids();
    /// True if grids or texts differ from the club set.
    bool ClubGridsChanged() const;

    /// Opens the edit box of a grid on its current cell. The grids are 0 for the irons and 1 for
    /// the woods; any other number does nothing.
    void EditClubCell(std::int16_t GridIndex);
    /// Moves the current cell of a grid on.
    void NextClubCell(std::int16_t GridIndex);

    /// Closes open edit boxes and puts what they hold into their cells.
    void settle();

    Event<> Applying; ///< the club set is about to change

    /// Asks about edits that aren't applied, and applies them if the user wants. False if the form
    /// must stay open. The view asks before it closes, however it is being closed.
    [[nodiscard]] bool queryUnload();

private:
    void paste(Grid& grid, const std::string& cells);
    void Command2_Click();
    void Command3_Click();
    void unload() const;
    CellEditing* editing(std::int16_t GridIndex);

    ClubForm& form_;
    ClubTables& clubs_;
    MessageBoxes& messages_;
    std::function<void()> showInMainForm_;
    CellEditing irons_;
    CellEditing woods_;
};

} // namespace parabolt
