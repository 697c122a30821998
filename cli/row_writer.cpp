#include "cli/row_writer.h"

#include "exchange/csv_rules.h"
#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

namespace parabolt::cli {
namespace {

constexpr std::size_t kNarrowest = 7; ///< characters of a column of numbers in a table

/// A heading in two parts: "Ball speed", "[mph]".
std::pair<std::string_view, std::string_view> headingLines(std::string_view heading) {
    const std::size_t unit = heading.find(" [");
    if (unit == std::string_view::npos)
        return {heading, {}};
    return {heading.substr(0, unit), heading.substr(unit + 1)};
}

std::size_t widthOf(const Column& column) {
    const auto [name, unit] = headingLines(column.heading);
    return std::max({characterCount(name), characterCount(unit), kNarrowest});
}

/// What stands before the cell of a column.
std::string& appendDelimiter(std::string& text, std::size_t column) {
    return text.append(column > 0 ? 1 : 0, kCsvDelimiter);
}

} // namespace

RowWriter::RowWriter(Format format, std::span<const Column> columns)
    : format_(format),
      columns_(columns.begin(), columns.end()) {}

void RowWriter::begin(std::string& text) const {
    if (format_ == Format::Json) {
        text += '[';
        return;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (format_ == Format::Csv)
            csvCell(appendDelimiter(text, i), columns_[i].heading);
        else
            tableCell(text, headingLines(columns_[i].heading).first, i);
    text += format_ == Format::Csv ? kCsvLineEnd : "\n";
    if (format_ == Format::Csv)
        return;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        tableCell(text, headingLines(columns_[i].heading).second, i);
    text += '\n';
}

void RowWriter::row(std::string& text, std::span<const Cell> cells) const {
    if (format_ == Format::Json)
        text += ",\n{";
    for (std::size_t i = 0; i < cells.size(); ++i)
        switch (format_) {
        case Format::Csv:
            csvCell(appendDelimiter(text, i), cells[i]);
            break;
        case Format::Json:
            text.append(i > 0 ? "," : "").append("\"").append(columns_[i].key).append("\":");
            appendJsonCell(text, cells[i]);
            break;
        case Format::Table:
            tableCell(text, shownCell(cells[i], columns_[i].pattern), i);
            break;
        }
    text += format_ == Format::Csv ? kCsvLineEnd : format_ == Format::Json ? "}" : "\n";
}

std::string_view RowWriter::withoutComma(std::string_view rows) const {
    return rows.substr(format_ == Format::Json && !rows.empty() ? 1 : 0);
}

void RowWriter::end(std::string& text) const {
    if (format_ == Format::Json)
        text += "\n]\n";
}

void RowWriter::csvCell(std::string& text, const Cell& cell) const {
    if (const auto* wide = std::get_if<double>(&cell))
        appendNumber(text, *wide);
    else if (const auto* narrow = std::get_if<float>(&cell))
        appendNumber(text, *narrow);
    else if (const auto* words = std::get_if<std::string_view>(&cell))
        appendCsvField(text, *words);
}

/// Numbers end where their heading ends; the last column has no blanks behind it.
void RowWriter::tableCell(std::string& text, std::string_view cell, std::size_t column) const {
    const std::size_t width = widthOf(columns_[column]);
    const std::size_t missing = width - std::min(width, characterCount(cell));
    if (column > 0)
        text += ' ';
    if (columns_[column].pattern.empty()) {
        text.append(cell);
        if (column + 1 < columns_.size())
            text.append(missing, ' ');
    } else {
        text.append(missing, ' ').append(cell);
    }
}

std::string shownCell(const Cell& cell, std::string_view pattern) {
    if (const auto* wide = std::get_if<double>(&cell))
        return formatPattern(*wide, pattern);
    if (const auto* narrow = std::get_if<float>(&cell))
        return formatPattern(*narrow, pattern);
    const auto* words = std::get_if<std::string_view>(&cell);
    std::string shown(words != nullptr ? *words : std::string_view());
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return shown;
}

void appendJsonText(std::string& text, std::string_view value) {
    using nlohmann::json;
    text += json(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

void appendJsonCell(std::string& text, const Cell& cell) {
    if (const auto* wide = std::get_if<double>(&cell); wide != nullptr && std::isfinite(*wide))
        appendNumber(text, *wide);
    else if (const auto* narrow = std::get_if<float>(&cell);
             narrow != nullptr && std::isfinite(*narrow))
        appendNumber(text, *narrow);
    else if (const auto* words = std::get_if<std::string_view>(&cell))
        appendJsonText(text, *words);
    else
        text += "null";
}

double withFewestDigits(float value) {
    std::string digits;
    appendNumber(digits, value);
    return parseNumber(digits).value_or(value);
}

RowStream::RowStream(const Console& console, Format format, std::span<const Column> columns)
    : out_(console.out),
      writer_(format, columns) {
    writer_.begin(line_);
    out_ << line_;
}

void RowStream::row(std::span<const Cell> cells) {
    line_.clear();
    writer_.row(line_, cells);
    rows(line_);
}

void RowStream::rows(std::string_view text) {
    out_ << (any_ ? text : writer_.withoutComma(text));
    any_ = any_ || !text.empty();
}

void RowStream::end() {
    line_.clear();
    writer_.end(line_);
    out_ << line_;
}

} // namespace parabolt::cli
