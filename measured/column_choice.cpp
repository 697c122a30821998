#include "measured/cell_number.h"
#include "measured/columns.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace parabolt {
namespace {

using ChoiceJson = nlohmann::json;

/// The row with the most texts, the first of several; null if there is no text at all.
const CsvRow* headingRow(const ShotFile& file) {
    const auto textsIn = [](const CsvRow& row) {
        return std::count_if(row.cells.begin(), row.cells.end(), [](const std::string& cell) {
            return !isMissing(cell) && cell.find_first_of("0123456789") == std::string::npos;
        });
    };
    const auto rows = firstRows(file);
    const auto best = std::max_element(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
        return textsIn(a) < textsIn(b);
    });
    return best != rows.end() && textsIn(*best) > 0 ? &*best : nullptr;
}

/// The columns under headings that some device, or the program itself, writes; the first device
/// that knows a heading tells what it means. Each quantity once.
std::vector<ColumnMeaning> meaningsBelow(const CsvRow& headings) {
    std::vector<std::optional<ColumnMeaning>> meanings(headings.cells.size());
    for (const Device& device : devices())
        for (const ColumnMeaning& column : columnsBelow(headings, device))
            if (!meanings[column.column])
                meanings[column.column] = column;
    std::vector<ColumnMeaning> columns;
    columns.reserve(meanings.size());
    for (const auto& meaning : meanings)
        if (meaning && std::none_of(columns.begin(), columns.end(), [&meaning](const auto& other) {
                return other.quantity == meaning->quantity;
            }))
            columns.push_back(*meaning);
    return columns;
}

std::optional<Quantity> quantityNamed(const std::string& name) {
    for (const QuantityText& text : quantities())
        if (text.name == name)
            return text.quantity;
    return std::nullopt;
}

std::optional<ChosenColumn> chosenColumnOf(const ChoiceJson& json) {
    const auto quantity = quantityNamed(json.at("quantity").get<std::string>());
    const auto unit = json.at("unit").get<std::string>();
    if (!quantity || (unit.empty() != textOf(*quantity).units.empty()))
        return std::nullopt;
    const auto known = unit.empty() ? MeasuredUnit::None : unitNamed(unit);
    if (!known || (!unit.empty() && !suits(*known, *quantity)))
        return std::nullopt;
    return ChosenColumn{json.at("column").get<std::size_t>(), json.at("heading").get<std::string>(),
                        *quantity, *known};
}

} // namespace

std::string choiceText(const ColumnChoice& choice) {
    ChoiceJson columns = ChoiceJson::array();
    for (const ChosenColumn& column : choice.columns)
        columns.push_back({{"column", column.column},
                           {"heading", column.heading},
                           {"quantity", textOf(column.quantity).name},
                           {"unit", nameOf(column.unit)}});
    const ChoiceJson json = {
        {"name", choice.name}, {"computesCarry", choice.computesCarry}, {"columns", columns}};
    return json.dump(-1, ' ', false, ChoiceJson::error_handler_t::replace);
}

std::optional<ColumnChoice> choiceOf(std::string_view text) {
    try {
        const auto json = ChoiceJson::parse(text);
        ColumnChoice choice{json.at("name"), json.at("computesCarry"), {}};
        for (const ChoiceJson& column : json.at("columns")) {
            const auto chosen = chosenColumnOf(column);
            if (!chosen)
                return std::nullopt;
            choice.columns.push_back(*chosen);
        }
        return choice;
    } catch (const ChoiceJson::exception&) {
        return std::nullopt;
    }
}

bool hasHeadings(const CsvRow& row, const ColumnChoice& choice) {
    const auto stands = [&row](const ChosenColumn& column) {
        return headingParts(cellOf(row, column.column)).name == headingParts(column.heading).name;
    };
    return std::any_of(choice.columns.begin(), choice.columns.end(),
                       [](const ChosenColumn& column) { return !column.heading.empty(); }) &&
           std::all_of(choice.columns.begin(), choice.columns.end(), stands);
}

bool recognises(const ColumnChoice& choice, const ShotFile& file) {
    const auto rows = firstRows(file);
    return std::any_of(rows.begin(), rows.end(),
                       [&choice](const CsvRow& row) { return hasHeadings(row, choice); });
}

ColumnChoice guessedChoice(const ShotFile& file) {
    ColumnChoice choice;
    const CsvRow* row = headingRow(file);
    if (row == nullptr)
        return choice;
    std::vector<ColumnMeaning> columns = meaningsBelow(*row);
    if (const CsvRow* below = row + 1; below != file.rows.data() + file.rows.size())
        takeUnits(*below, columns);
    for (const ColumnMeaning& column : columns) {
        if (!column.unknownUnit.empty())
            continue; // a heading that means something else here
        const bool told = column.unit != MeasuredUnit::None;
        choice.columns.push_back({column.column, withoutBlanks(row->cells[column.column]),
                                  column.quantity,
                                  told ? column.unit : textOf(column.quantity).unit});
    }
    return choice;
}

std::vector<std::string> guessedHeadings(const ShotFile& file) {
    const CsvRow* row = headingRow(file);
    return row != nullptr ? row->cells : std::vector<std::string>();
}

std::span<const CsvRow> exampleRows(const ShotFile& file, std::size_t most) {
    const CsvRow* row = headingRow(file);
    const std::span rows(file.rows);
    const auto below = rows.subspan(
        row != nullptr ? static_cast<std::size_t>(row - file.rows.data()) + 1 : std::size_t{0});
    return below.first(std::min(below.size(), most));
}

} // namespace parabolt
