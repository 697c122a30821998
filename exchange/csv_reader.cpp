#include "exchange/csv_reader.h"

#include "exchange/csv_rules.h"
#include "numbers/characters.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

/// Line ends of any kind in a text.
std::size_t lineEnds(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
        if (text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n"))
            ++count;
    return count;
}

/// The next cell of the row, empty; it keeps the memory that it had.
std::string& freshCell(CsvRow& row, std::size_t number) {
    if (number == row.cells.size())
        row.cells.emplace_back();
    row.cells[number].clear();
    return row.cells[number];
}

/// Takes the text between quotes from behind the first one on. Where it goes on behind the last; no
/// place if that isn't there.
std::size_t takeQuoted(std::string_view text, std::size_t at, std::string& cell) {
    for (;;) {
        const std::size_t quote = text.find(kCsvQuote, at);
        if (quote == std::string_view::npos)
            return std::string_view::npos;
        cell.append(text, at, quote - at);
        at = quote + 1;
        if (at == text.size() || text[at] != kCsvQuote)
            return at;
        cell += kCsvQuote;
        ++at;
    }
}

} // namespace

void CsvReader::feed(std::string_view piece) {
    text_.erase(0, start_);
    start_ = 0;
    text_ += piece;
}

Outcome<bool, CsvFault> CsvReader::next(CsvRow& row) {
    const auto text = std::string_view(text_).substr(start_);
    if (text.empty())
        return false;
    std::size_t at = 0;
    std::size_t cells = 0;
    for (bool goesOn = true; goesOn;) {
        std::string& cell = freshCell(row, cells++);
        if (at < text.size() && text[at] == kCsvQuote) {
            at = takeQuoted(text, at + 1, cell);
            if (at == std::string_view::npos)
                return incomplete(text.size());
        }
        const std::size_t start = at;
        while (at < text.size() && text[at] != delimiter_ && text[at] != '\n' && text[at] != '\r')
            ++at;
        cell.append(text, start, at - start);
        // A CR, or a quote, that ends a piece may have its fellow in the next one.
        if (!finished_ && (at == text.size() || (text[at] == '\r' && at + 1 == text.size())))
            return incomplete(text.size());
        goesOn = at < text.size() && text[at] == delimiter_;
        at += goesOn ? 1U : 0U;
    }
    if (at < text.size())
        at += text.substr(at, 2) == kCsvLineEnd ? 2U : 1U;
    if (at > kLongestRow)
        return because(CsvFault{CsvFault::Kind::RowTooLong, line_});
    row.cells.resize(cells);
    row.line = line_;
    line_ += lineEnds(text.substr(0, at));
    start_ += at;
    return true;
}

/// What there is when the rest of the text ends inside a row.
Outcome<bool, CsvFault> CsvReader::incomplete(std::size_t length) const {
    if (length > kLongestRow)
        return because(CsvFault{CsvFault::Kind::RowTooLong, line_});
    if (finished_)
        return because(CsvFault{CsvFault::Kind::QuoteNotClosed, line_});
    return false;
}

std::string_view textOf(CsvFault::Kind kind) {
    return kind == CsvFault::Kind::QuoteNotClosed ? "a quote is opened and never closed"
                                                  : "the row is longer than 1 MB";
}

bool isEmpty(const CsvRow& row) {
    return std::all_of(row.cells.begin(), row.cells.end(),
                       [](const std::string& cell) { return trimmed(cell).empty(); });
}

std::string_view withoutByteOrderMark(std::string_view text) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

char delimiterOf(std::string_view text) {
    constexpr std::size_t kFirst = std::size_t{1} << 16;
    text = withoutByteOrderMark(text).substr(0, kFirst);
    if (text.starts_with(kNamesDelimiter) && text.size() > kNamesDelimiter.size())
        return text[kNamesDelimiter.size()];
    struct Candidate {
        char delimiter;
        int count;
    };
    std::array<Candidate, 3> candidates = {{{',', 0}, {';', 0}, {'\t', 0}}};
    bool quoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == kCsvQuote)
            quoted = !quoted;
        const bool inNumber =
            at > 0 && at + 1 < text.size() && isDigit(text[at - 1]) && isDigit(text[at + 1]);
        for (Candidate& candidate : candidates)
            if (text[at] == candidate.delimiter && !quoted && !inNumber)
                ++candidate.count;
    }
    return std::max_element(
               candidates.begin(), candidates.end(),
               [](const Candidate& a, const Candidate& b) { return a.count < b.count; })
        ->delimiter;
}

std::string withDecimalPoint(std::string_view cell, char delimiter) {
    std::string text(cell);
    const std::size_t comma = text.find_first_of(".,");
    const bool only = comma != std::string::npos && text.find_last_of(".,") == comma;
    if (delimiter != ',' && only && text[comma] == ',')
        text[comma] = '.';
    return text;
}

bool namesDelimiter(const CsvRow& row) {
    return row.line == 1 && row.cells.front().starts_with(kNamesDelimiter);
}

} // namespace parabolt
