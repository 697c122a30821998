#include "tables/table_source.h"

#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <numeric>
#include <tuple>

namespace parabolt {
namespace {

double valueOf(const TableCell& cell) {
    if (const auto* narrow = std::get_if<float>(&cell.number))
        return *narrow;
    const auto* wide = std::get_if<double>(&cell.number);
    return wide != nullptr ? *wide : 0;
}

bool isEmpty(const TableCell& cell) {
    return !cell.hasNumber() && cell.text.empty();
}

} // namespace

TableCell numberCell(float value, std::string_view pattern) {
    return {formatPattern(value, pattern), value};
}

TableCell numberCell(double value, std::string_view pattern) {
    return {formatPattern(value, pattern), value};
}

bool comesBefore(const TableCell& one, const TableCell& other) {
    const auto rank = [](const TableCell& cell) {
        return std::tuple(cell.ticked, isEmpty(cell), valueOf(cell),
                          cell.hasNumber() ? std::string() : lowerCase(cell.text));
    };
    return rank(one) < rank(other);
}

TableExtract completeTable(const TableSource& table) {
    TableExtract extract{std::vector<std::size_t>(table.rowCount()),
                         std::vector<std::size_t>(table.columns().size())};
    std::iota(extract.rows.begin(), extract.rows.end(), std::size_t{0});
    std::iota(extract.columns.begin(), extract.columns.end(), std::size_t{0});
    return extract;
}

} // namespace parabolt
