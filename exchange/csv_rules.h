#pragma once

#include <array>
#include <charconv>
#include <string>
#include <string_view>

namespace parabolt {

// What all readers and writers of comma-separated values agree on (RFC 4180).

inline constexpr char kCsvDelimiter = ','; ///< of what is written
inline constexpr char kCsvQuote = '"'; ///< around a field; a doubled one inside stands for itself
inline constexpr std::string_view kNamesDelimiter = "sep="; ///< before a table, on a line alone
inline constexpr std::string_view kCsvLineEnd = "\r\n";

/// Appends a field, in quotes if it holds what would end it, or a quote.
void appendCsvField(std::string& text, std::string_view field);

/// Appends a number, 32 or 64 bits wide, in the fewest digits that give it back.
template <class Number>
void appendNumber(std::string& text, Number number) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

} // namespace parabolt
