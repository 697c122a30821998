#pragma once

#include <algorithm>
#include <string_view>

namespace parabolt {

// What reader and writer of comma-separated values agree on (RFC 4180).

inline constexpr char kCsvQuote = '"'; ///< around a field; a doubled one inside stands for itself
inline constexpr std::string_view kCsvLineEnd = "\r\n";

/// True if a field must stand in quotes: it holds what would end it, or a quote.
constexpr bool needsCsvQuotes(std::string_view field, char delimiter) {
    return std::any_of(field.begin(), field.end(), [delimiter](char c) {
        return c == delimiter || c == kCsvQuote || c == '\r' || c == '\n';
    });
}

} // namespace parabolt
