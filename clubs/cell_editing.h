#pragma once

#include "controls/focus.h"
#include "controls/grid.h"

#include <string>
#include <string_view>

namespace parabolt {

/// Background of the current cell and of the edit box over it.
inline constexpr Rgb kEditGreen{0xC0, 0xFF, 0xC0};

/// The text of a cell for what was typed into it: the leading number in its shortest text.
std::string cellText(std::string_view typed);

/// The key and focus rules of one grid and the edit box over its current cell. Either the box is
/// hidden, the grid has the focus and the current cell is green; or the box stands over the cell
/// and has the focus. The cell follows what is typed, and takes the box's text when box or cell is
/// left.
class CellEditing {
public:
    /// Where a confirmed entry leads: on along the row, or down the column.
    enum class Advance { AlongRow, DownColumn };

    /// Connects the events of both controls.
    CellEditing(Grid& grid, TextBox& edit, Focus& focus, Advance advance);

    /// Opens the edit box on the current cell.
    void open();
    /// Moves the current cell on after a confirmed entry; the last one stays.
    void next();
    /// Closes the edit box, if it is open, and puts what it holds into the cell. Commands do this
    /// first, so that they work on what the user sees.
    void settle();

private:
    void enterCell();
    void leaveCell();
    void gridKeyPress(KeyStroke& key);
    void editKeyDown(int code);
    void editKeyPress(KeyStroke& key);
    void confirm();
    void backspaceInCell();
    void stepBack();
    void stepOn();
    void closeEdit();
    void takeEdit();
    void showEdit();
    void setCell(std::string_view typed) { grid_.setText(cellText(typed)); }

    Grid& grid_;
    TextBox& edit_;
    Focus& focus_;
    Advance advance_;
};

} // namespace parabolt
