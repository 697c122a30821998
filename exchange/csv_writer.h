#pragma once

#include <string>
#include <string_view>

namespace parabolt {

/// Writes a table as comma-separated values (RFC 4180): UTF-8, lines that end in CR LF, and quotes
/// around a field where it needs them. Numbers have a point, whatever the locale, and as many
/// digits as give back the same value.
class CsvWriter {
public:
    CsvWriter& field(std::string_view text);
    CsvWriter& field(double number);
    /// The fewest digits that give back the same 32-bit value.
    CsvWriter& field(float number);
    CsvWriter& empty() { return field(std::string_view()); }
    void endRow();

    const std::string& text() const { return text_; }

private:
    void startField();

    std::string text_;
    bool rowStarted_ = false;
};

} // namespace parabolt
