#include "measured/columns.h"

#include "measured/cell_number.h"
#include "numbers/characters.h"

#include <algorithm>

namespace parabolt {
namespace {

/// The names of a row's headings.
std::vector<HeadingParts> partsOf(const CsvRow& row) {
    std::vector<HeadingParts> parts;
    for (const std::string& cell : row.cells)
        parts.push_back(headingParts(cell));
    return parts;
}

/// Takes over what a file tells of a column's unit, if it tells anything.
void tellUnit(ColumnMeaning& column, std::string_view cell) {
    const std::string text = withoutBlanks(cell);
    if (text.empty() || textOf(column.quantity).units.empty())
        return;
    const auto unit = unitNamed(text);
    const bool known = unit && suits(*unit, column.quantity);
    column.unit = known ? *unit : MeasuredUnit::None;
    column.unknownUnit = known ? std::string() : text;
}

/// True for what files write as a unit even if nobody knows it: "[slug/ft3]".
bool isBracketed(std::string_view cell) {
    const std::string text = withoutBlanks(cell);
    return text.size() > 2 && ((text.front() == '[' && text.back() == ']') ||
                               (text.front() == '(' && text.back() == ')'));
}

bool standIn(std::span<const HeadingParts> parts, std::span<const std::string_view> marks) {
    return std::all_of(marks.begin(), marks.end(), [&parts](std::string_view mark) {
        const std::string name = headingParts(mark).name;
        return std::any_of(parts.begin(), parts.end(),
                           [&name](const HeadingParts& part) { return part.name == name; });
    });
}

} // namespace

HeadingParts headingParts(std::string_view cell) {
    const std::string text = lowerCase(withoutBlanks(cell));
    const std::size_t bracket = text.find_first_of("[(");
    if (bracket == std::string::npos || bracket == 0)
        return {text, {}};
    const std::size_t end = std::min(text.find_first_of("])", bracket), text.size());
    return {withoutBlanks(text.substr(0, bracket)),
            withoutBlanks(text.substr(bracket + 1, end - bracket - 1))};
}

bool hasMarks(const CsvRow& row, const Device& device) {
    return standIn(partsOf(row), device.marks);
}

std::vector<ColumnMeaning> columnsBelow(const CsvRow& headings, const Device& device) {
    const auto parts = partsOf(headings);
    std::vector<ColumnMeaning> columns;
    for (const DeviceColumn& known : device.columns) {
        const std::string name = headingParts(known.heading).name;
        for (std::size_t column = 0; column < parts.size(); ++column)
            if (parts[column].name == name) {
                columns.push_back({column, known.quantity, known.unit});
                tellUnit(columns.back(), parts[column].unit);
            }
    }
    return columns;
}

bool takeUnits(const CsvRow& row, std::vector<ColumnMeaning>& columns) {
    bool units = false;
    for (const ColumnMeaning& column : columns) {
        if (textOf(column.quantity).units.empty())
            continue;
        const std::string_view cell = cellOf(row, column.column);
        if (unitNamed(cell))
            units = true;
        else if (!isBracketed(cell) && cell.find_first_of("0123456789") != std::string_view::npos)
            return false;
    }
    if (units)
        for (ColumnMeaning& column : columns)
            tellUnit(column, cellOf(row, column.column));
    return units;
}

std::string_view cellOf(const CsvRow& row, std::size_t column) {
    return column < row.cells.size() ? std::string_view(row.cells[column]) : std::string_view();
}

std::span<const CsvRow> firstRows(const ShotFile& file) {
    return std::span(file.rows).first(std::min(file.rows.size(), kHeadingRows));
}

const Device* recognise(const ShotFile& file) {
    for (const CsvRow& row : firstRows(file)) {
        const auto parts = partsOf(row);
        for (const Device& device : devices())
            if (standIn(parts, device.marks))
                return &device;
    }
    return nullptr;
}

} // namespace parabolt
