#pragma once

#include "numbers/outcome.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

/// A row of a table. An empty line is a row with one empty cell.
struct CsvRow {
    std::size_t line = 0; ///< of the text, from 1, on which the row begins
    std::vector<std::string> cells;
    friend bool operator==(const CsvRow&, const CsvRow&) = default;
};

/// Why a text is no table.
struct CsvFault {
    enum class Kind { QuoteNotClosed, RowTooLong } kind;
    std::size_t line; ///< on which the row begins
};
/// The fault for people, without its line: "a quote is opened and never closed".
std::string_view textOf(CsvFault::Kind kind);

/// Reads what `CsvWriter` writes, and its kin, row by row from a text that comes in pieces: fields
/// between commas or another delimiter, quotes by RFC 4180, lines that end in CR LF, LF or CR. A
/// quote inside a field that doesn't begin with one is a character like any other.
///
///     while (readPiece(piece)) {
///         reader.feed(piece);
///         while (next row) use it;
///     }
///     reader.finish(), and the same once more: the last line may have no end.
class CsvReader {
public:
    static constexpr std::size_t kLongestRow = std::size_t{1} << 20; ///< bytes

    explicit CsvReader(char delimiter = ',') : delimiter_(delimiter) {}

    /// Appends a piece of the text; it may end anywhere.
    void feed(std::string_view piece);
    /// The text has ended.
    void finish() { finished_ = true; }
    /// True if there was a complete row, now in `row`, whose memory is used again; false if it
    /// takes more text. A fault stays.
    Outcome<bool, CsvFault> next(CsvRow& row);

private:
    Outcome<bool, CsvFault> incomplete(std::size_t length) const;

    char delimiter_;
    std::string text_;      ///< fed and not yet thrown away
    std::size_t start_ = 0; ///< of the next row
    std::size_t line_ = 1;  ///< of the next row
    bool finished_ = false;
};

/// True if no cell of a row has content, blanks aside.
bool isEmpty(const CsvRow& row);

/// The text without a byte order mark of UTF-8.
std::string_view withoutByteOrderMark(std::string_view text);

/// The delimiter of a table by its first lines: what a line `sep=;` before it says; otherwise that
/// of comma, semicolon and tab that stands most often outside quotes, the comma if none does. One
/// between two digits doesn't count: it may be a decimal comma.
char delimiterOf(std::string_view text);

/// A cell whose number has a decimal comma, with a point in its place; any other cell as it is.
/// Between commas there are no decimal commas.
std::string withDecimalPoint(std::string_view cell, char delimiter);

/// True for the line before a table that names its delimiter, `sep=;`: it is no row of it.
bool namesDelimiter(const CsvRow& row);

} // namespace parabolt
