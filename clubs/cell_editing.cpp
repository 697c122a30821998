#include "clubs/cell_editing.h"

#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <limits>

namespace parabolt {

std::string cellText(std::string_view typed) {
    // A number beyond the range of a double stays a number, so that its bounds refuse it.
    constexpr double kMost = std::numeric_limits<double>::max();
    return shortestText(std::clamp(leadingNumber(typed), -kMost, kMost));
}

CellEditing::CellEditing(Grid& grid, TextBox& edit, Focus& focus, Advance advance)
    : grid_(grid),
      edit_(edit),
      focus_(focus),
      advance_(advance) {
    grid_.EnterCell.connect([this] { enterCell(); });
    grid_.LeaveCell.connect([this] { leaveCell(); });
    grid_.GotFocus.connect([this] { grid_.setCellBackColor(kEditGreen); });
    grid_.LostFocus.connect([this] { grid_.setCellBackColor(std::nullopt); });
    grid_.DblClick.connect([this] {
        if (grid_.mouseRow() != 0)
            open();
    });
    grid_.KeyDown.connect([this](int code) {
        if (code == keys::kF2)
            open();
    });
    grid_.KeyPress.connect([this](KeyStroke& key) { gridKeyPress(key); });
    edit_.KeyDown.connect([this](int code) { editKeyDown(code); });
    edit_.KeyPress.connect([this](KeyStroke& key) { editKeyPress(key); });
    edit_.LostFocus.connect([this] { closeEdit(); });
}

void CellEditing::open() {
    if (grid_.row() == 0)
        return;
    edit_.setText(grid_.text());
    edit_.setVisible(true);
    edit_.setSelection(edit_.text().size(), 0);
    focus_.give(edit_);
}

void CellEditing::next() {
    const bool lastRow = grid_.row() == grid_.rows() - 1;
    if (advance_ == Advance::AlongRow)
        stepOn();
    else if (!lastRow)
        grid_.moveTo(grid_.row() + 1, grid_.col());
}

void CellEditing::settle() {
    if (edit_.visible())
        focus_.give(grid_);
    takeEdit();
}

void CellEditing::enterCell() {
    edit_.setText("");
    edit_.setVisible(false);
    grid_.setTag(grid_.text());
    grid_.setCellBackColor(kEditGreen);
    focus_.give(grid_);
}

void CellEditing::leaveCell() {
    takeEdit();
    grid_.setCellBackColor(std::nullopt);
}

void CellEditing::closeEdit() {
    showEdit();
    edit_.setVisible(false);
}

void CellEditing::takeEdit() {
    showEdit();
    edit_.setText("");
}

void CellEditing::showEdit() {
    if (!edit_.text().empty())
        setCell(edit_.text());
}

void CellEditing::gridKeyPress(KeyStroke& key) {
    switch (key.code) {
    case keys::kEnter:
        return next();
    case keys::kEscape:
        return;
    case keys::kBackspace: {
        const std::string& text = grid_.text();
        const std::size_t count = characterCount(text);
        grid_.setText(text.substr(0, characterStart(text, count > 0 ? count - 1 : 0)));
        return open();
    }
    default:
        grid_.setText(key.text);
        open();
    }
}

void CellEditing::editKeyDown(int code) {
    switch (code) {
    case keys::kEscape:
        edit_.setText(grid_.tag());
        edit_.setSelection(edit_.text().size(), 0);
        break;
    case keys::kLeft:
        if (edit_.selStart() == 0)
            stepBack();
        break;
    case keys::kRight:
        if (edit_.selStart() == edit_.text().size())
            stepOn();
        break;
    case keys::kUp:
        if (grid_.row() > Grid::kFixed)
            grid_.moveTo(grid_.row() - 1, grid_.col());
        break;
    case keys::kDown:
        if (grid_.row() < grid_.rows() - 1)
            grid_.moveTo(grid_.row() + 1, grid_.col());
        break;
    default:
        break;
    }
}

void CellEditing::editKeyPress(KeyStroke& key) {
    switch (key.code) {
    case keys::kEnter:
        key.swallowed = true;
        return confirm();
    case keys::kBackspace:
        return backspaceInCell();
    default: // Escape brings no text, so the cell goes back to what the box shows again.
        setCell(edit_.text() + key.text);
    }
}

void CellEditing::confirm() {
    setCell(edit_.text());
    edit_.setVisible(false);
    next();
    focus_.give(grid_);
}

void CellEditing::backspaceInCell() {
    const std::size_t caret = characterCount(edit_.text().substr(0, edit_.selStart()));
    if (caret == 0)
        return;
    std::string text = grid_.text();
    const std::size_t from = characterStart(text, caret - 1);
    text.erase(from, characterStart(text, caret) - from);
    setCell(text);
}

void CellEditing::stepBack() {
    if (grid_.col() > Grid::kFixed)
        grid_.moveTo(grid_.row(), grid_.col() - 1);
    else if (grid_.row() > Grid::kFixed)
        grid_.moveTo(grid_.row() - 1, grid_.cols() - 1);
}

void CellEditing::stepOn() {
    if (grid_.col() < grid_.cols() - 1)
        grid_.moveTo(grid_.row(), grid_.col() + 1);
    else if (grid_.row() < grid_.rows() - 1)
        grid_.moveTo(grid_.row() + 1, Grid::kFixed);
}

} // namespace parabolt
