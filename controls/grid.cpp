#include "controls/grid.h"

namespace parabolt {

Grid::Grid(ControlSet& form, std::string_view name, int rows, int cols)
    : Control(form, name),
      rows_(rows),
      cols_(cols),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols)),
      columns_(static_cast<std::size_t>(cols)) {}

std::size_t Grid::at(int row, int col) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
}

void Grid::moveTo(int row, int col) {
    if (row == row_ && col == col_)
        return;
    LeaveCell();
    row_ = row;
    col_ = col;
    viewChanged();
    EnterCell();
}

const std::string& Grid::text(int row, int col) const {
    return cells_.at(at(row, col)).text;
}

void Grid::setText(int row, int col, std::string_view text) {
    cells_.at(at(row, col)).text = text;
    cellChanged(row, col);
}

void Grid::setCellBackColor(std::optional<Rgb> colour) {
    cells_.at(at(row_, col_)).background = colour;
    cellChanged(row_, col_);
}

std::optional<Rgb> Grid::cellBackColor(int row, int col) const {
    return cells_.at(at(row, col)).background;
}

void Grid::setFormatString(std::string_view format) {
    for (int col = 0; col < cols_; ++col) {
        const std::size_t bar = format.find('|');
        std::string_view entry = format.substr(0, bar);
        format = bar == std::string_view::npos ? std::string_view() : format.substr(bar + 1);
        Column& column = columns_[static_cast<std::size_t>(col)];
        column.centred = entry.starts_with('^');
        if (column.centred)
            entry.remove_prefix(1);
        column.leastWidth = entry;
        setText(0, col, entry);
    }
    viewChanged();
}

bool Grid::centred(int col) const {
    return columns_.at(static_cast<std::size_t>(col)).centred;
}

const std::string& Grid::leastWidthText(int col) const {
    return columns_.at(static_cast<std::size_t>(col)).leastWidth;
}

void Grid::cellChanged(int row, int col) const {
    if (onCellChange)
        onCellChange(row, col);
}

} // namespace parabolt
