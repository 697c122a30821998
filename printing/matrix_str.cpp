#include "printing/matrix_str.h"

#include "files/code_page.h"

#include <stdexcept>

namespace parabolt {
namespace {

/// The column, if 16 bits hold it.
long checked(long column) {
    if (column != static_cast<std::int16_t>(column))
        throw std::overflow_error("column beyond 16 bits");
    return column;
}

/// Last column of a value of `length` bytes; 0 for an unknown alignment.
long lastColumn(std::int32_t align, long column, long length) {
    switch (align) {
    case clsMatrixStr::Left:
        return checked(length + column) - 1;
    case clsMatrixStr::Right:
        return column;
    case clsMatrixStr::Centred:
        return checked((length - 1) / 2 + column);
    default:
        return 0;
    }
}

} // namespace

void clsMatrixStr::Clear() {
    rows_.assign(1, {});
}

std::string clsMatrixStr::GetField(std::int16_t vintRow) const {
    return vintRow > MaxRows() ? std::string()
                               : fromCodePage(rows_.at(static_cast<std::size_t>(vintRow)));
}

void clsMatrixStr::Field(std::int32_t veumAlign, std::int16_t vintCol, std::int16_t vintRow,
                         std::string_view vvntValue) {
    if (vintRow < 0)
        throw std::out_of_range("row below 0");
    const auto rowIndex = static_cast<std::size_t>(vintRow);
    if (vintRow > MaxRows())
        rows_.resize(rowIndex + 1);
    const std::string bytes = toCodePage(vvntValue);
    if (bytes.empty())
        return;
    const long length = checked(static_cast<long>(bytes.size()));
    const long last = lastColumn(veumAlign, vintCol, length);
    checked(last - length); // the column before the first
    if (last < 1)
        return;
    const auto end = static_cast<std::size_t>(last);
    const std::string_view value = std::string_view(bytes).substr(0, end);
    std::string& row = rows_[rowIndex];
    if (row.size() < end)
        row.append(end - row.size(), ' ');
    row.replace(end - value.size(), value.size(), value);
}

std::string clsMatrixStr::OutForm() const {
    std::string text;
    for (std::size_t row = 1; row < rows_.size(); ++row) {
        const std::size_t length = rows_[row].find_last_not_of(' ') + 1;
        text.append(fromCodePage(std::string_view(rows_[row]).substr(0, length))).append("\r\n");
    }
    return text;
}

} // namespace parabolt
