#include "tables/table_text.h"

#include "exchange/csv_writer.h"
#include "numbers/text_number.h"

#include <algorithm>

namespace parabolt {
namespace {

std::string asHtml(std::string_view text) {
    std::string html;
    for (const char c : text) {
        if (c == '&')
            html += "&amp;";
        else if (c == '<')
            html += "&lt;";
        else if (c == '>')
            html += "&gt;";
        else
            html += c;
    }
    return html;
}

/// The text of a cell, a lone box as 1 or 0.
std::string asRead(const TableCell& cell) {
    if (cell.ticked && cell.text.empty())
        return *cell.ticked ? "1" : "0";
    return cell.text;
}

/// The same, but a number with all its digits.
std::string inFull(const TableCell& cell) {
    if (const auto* narrow = std::get_if<float>(&cell.number)) {
        CsvWriter digits;
        return digits.field(*narrow).text();
    }
    const auto* wide = std::get_if<double>(&cell.number);
    return wide != nullptr ? shortestText(*wide) : asRead(cell);
}

} // namespace

std::string tableAsCsv(const TableSource& table, const TableExtract& extract) {
    CsvWriter csv;
    for (const std::size_t column : extract.columns)
        csv.field(table.columns()[column].heading);
    csv.endRow();
    for (const std::size_t row : extract.rows) {
        for (const std::size_t column : extract.columns)
            csv.field(inFull(table.cell(row, column)));
        csv.endRow();
    }
    return csv.text();
}

std::string tableAsTabs(const TableSource& table, const TableExtract& extract) {
    std::string text;
    for (const auto& row : tableAsCells(table, extract)) {
        const char* gap = "";
        for (std::string cell : row) {
            std::replace_if(
                cell.begin(), cell.end(), [](char c) { return c == '\t' || c == '\n'; }, ' ');
            text += gap + cell;
            gap = "\t";
        }
        text += '\n';
    }
    return text;
}

std::string tableAsHtml(const TableSource& table, const TableExtract& extract) {
    std::string html = "<table>\n<tr>";
    for (const std::size_t column : extract.columns)
        html += "<th>" + asHtml(table.columns()[column].heading) + "</th>";
    html += "</tr>\n";
    for (const std::size_t row : extract.rows) {
        html += "<tr>";
        for (const std::size_t column : extract.columns)
            html += "<td>" + asHtml(inFull(table.cell(row, column))) + "</td>";
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

std::vector<std::vector<std::string>> tableAsCells(const TableSource& table,
                                                   const TableExtract& extract) {
    std::vector<std::vector<std::string>> rows(1);
    for (const std::size_t column : extract.columns)
        rows.front().push_back(table.columns()[column].heading);
    for (const std::size_t row : extract.rows) {
        rows.emplace_back();
        for (const std::size_t column : extract.columns)
            rows.back().push_back(asRead(table.cell(row, column)));
    }
    return rows;
}

} // namespace parabolt
