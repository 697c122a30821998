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

TableExtract wholeTable(const TableSource& table) {
    TableExtract extract;
    extract.rows.resize(table.rowCount());
    std::iota(extract.rows.begin(), extract.rows.end(), std::size_t{0});
    const auto columns = table.columns();
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].holds != TableColumn::Holds::Ticks)
            extract.columns.push_back(i);
    return extract;
}

} // namespace parabolt
