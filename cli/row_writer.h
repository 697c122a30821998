#pragma once

#include "cli/console.h"

#include <span>
#include <variant>
#include <vector>

namespace parabolt::cli {

/// A column of results.
struct Column {
    std::string_view key;     ///< its name in JSON: "ball_speed_mph"
    std::string_view heading; ///< its name in CSV and tables: "Ball speed [mph]"
    std::string_view pattern; ///< of `formatPattern`, for the digits that people see; of numbers
};

/// A value of a result, or none.
using Cell = std::variant<std::monostate, double, float, std::string_view>;

/// Writes rows of results as text. Numbers have all their digits in CSV and JSON, and those of
/// their pattern in tables. Knows nothing of a stream, so that rows can be written in any order and
/// put together.
class RowWriter {
public:
    RowWriter(Format format, std::span<const Column> columns);

    /// What stands before the first row.
    void begin(std::string& text) const;
    /// Appends a row; in JSON it begins with a comma, which `withoutComma` takes from the first.
    void row(std::string& text, std::span<const Cell> cells) const;
    /// The rows of which the first is the first of all.
    std::string_view withoutComma(std::string_view rows) const;
    void end(std::string& text) const;
    Format format() const { return format_; }

private:
    void csvCell(std::string& text, const Cell& cell) const;
    void tableCell(std::string& text, std::string_view cell, std::size_t column) const;

    Format format_;
    std::vector<Column> columns_;
};

/// A cell as people read it, in the digits of a pattern; nothing in it moves a terminal's cursor.
std::string shownCell(const Cell& cell, std::string_view pattern);
/// Appends a JSON text, in quotes; what is no UTF-8 becomes a replacement character.
void appendJsonText(std::string& text, std::string_view value);
/// Appends a cell as a JSON value, null for none and for what JSON has no number for.
void appendJsonCell(std::string& text, const Cell& cell);

/// The 64-bit number that is written in the same digits as the 32-bit one, the fewest that give it
/// back: for writers that know only the former.
double withFewestDigits(float value);

/// Rows that go straight to the standard output.
class RowStream {
public:
    RowStream(const Console& console, Format format, std::span<const Column> columns);
    void row(std::span<const Cell> cells);
    /// Rows that the writer has made elsewhere.
    void rows(std::string_view text);
    void end();
    const RowWriter& writer() const { return writer_; }

private:
    std::ostream& out_;
    RowWriter writer_;
    std::string line_;
    bool any_ = false;
};

} // namespace parabolt::cli
