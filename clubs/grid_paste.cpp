#include "clubs/grid_paste.h"

#include "clubs/cell_editing.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace parabolt {
namespace {

std::vector<std::string> piecesOf(std::string_view text, char delimiter) {
    std::vector<std::string> pieces;
    while (true) {
        const std::size_t end = std::min(text.find(delimiter), text.size());
        pieces.emplace_back(text.substr(0, end));
        if (end == text.size())
            return pieces;
        text.remove_prefix(end + 1);
    }
}

/// A cell with a point, whatever the spreadsheet's language.
std::string withPoint(std::string cell) {
    if (cell.find('.') == std::string::npos && std::count(cell.begin(), cell.end(), ',') == 1)
        cell[cell.find(',')] = '.';
    return cell;
}

/// The numbers of a line; none if it holds anything else.
std::vector<std::string> numbersOf(std::string_view line) {
    auto cells = piecesOf(line, '\t');
    for (std::string& cell : cells)
        cell = withPoint(std::move(cell));
    if (cells.size() > 1 && !parseNumber(cells.front()))
        cells.erase(cells.begin());
    const bool all = std::all_of(cells.begin(), cells.end(),
                                 [](const auto& cell) { return parseNumber(cell).has_value(); });
    return all ? cells : std::vector<std::string>();
}

} // namespace

bool pasteCells(Grid& grid, std::string_view text) {
    std::string lines(text);
    std::erase(lines, '\r');
    while (lines.ends_with('\n'))
        lines.pop_back();
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : piecesOf(lines, '\n')) {
        rows.push_back(numbersOf(line));
        if (rows.back().empty())
            return false;
    }
    const int row = grid.row();
    const int col = grid.col();
    for (std::size_t down = 0; down < rows.size(); ++down)
        for (std::size_t right = 0; right < rows[down].size(); ++right) {
            const int toRow = row + static_cast<int>(down);
            const int toCol = col + static_cast<int>(right);
            if (toRow < grid.rows() && toCol < grid.cols())
                grid.setText(toRow, toCol, cellText(rows[down][right]));
        }
    return true;
}

} // namespace parabolt
