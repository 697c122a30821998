#include "exchange/csv_writer.h"

#include "exchange/csv_rules.h"

#include <array>
#include <charconv>

namespace parabolt {
namespace {

constexpr char kDelimiter = ',';

template <class Number>
void append(std::string& text, Number number) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

} // namespace

void CsvWriter::startField() {
    if (rowStarted_)
        text_ += kDelimiter;
    rowStarted_ = true;
}

CsvWriter& CsvWriter::field(std::string_view text) {
    startField();
    if (!needsCsvQuotes(text, kDelimiter)) {
        text_ += text;
        return *this;
    }
    text_ += kCsvQuote;
    for (const char c : text)
        text_.append(c == kCsvQuote ? 2 : 1, c);
    text_ += kCsvQuote;
    return *this;
}

CsvWriter& CsvWriter::field(double number) {
    startField();
    append(text_, number);
    return *this;
}

CsvWriter& CsvWriter::field(float number) {
    startField();
    append(text_, number);
    return *this;
}

void CsvWriter::endRow() {
    text_ += kCsvLineEnd;
    rowStarted_ = false;
}

} // namespace parabolt
