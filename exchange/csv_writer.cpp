#include "exchange/csv_writer.h"

#include "exchange/csv_rules.h"

namespace parabolt {

void appendCsvField(std::string& text, std::string_view field) {
    constexpr std::array kSpecial = {kCsvDelimiter, kCsvQuote, '\r', '\n'};
    if (field.find_first_of(std::string_view(kSpecial.data(), kSpecial.size())) ==
        std::string_view::npos) {
        text += field;
        return;
    }
    text += kCsvQuote;
    for (const char c : field)
        text.append(c == kCsvQuote ? 2 : 1, c);
    text += kCsvQuote;
}

void CsvWriter::startField() {
    if (rowStarted_)
        text_ += kCsvDelimiter;
    rowStarted_ = true;
}

CsvWriter& CsvWriter::field(std::string_view text) {
    startField();
    appendCsvField(text_, text);
    return *this;
}

CsvWriter& CsvWriter::field(double number) {
    startField();
    appendNumber(text_, number);
    return *this;
}

CsvWriter& CsvWriter::field(float number) {
    startField();
    appendNumber(text_, number);
    return *this;
}

void CsvWriter::endRow() {
    text_ += kCsvLineEnd;
    rowStarted_ = false;
}

} // namespace parabolt
