#pragma once

#include "exchange/csv_reader.h"

#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

inline constexpr std::size_t kLongestShotFile = 10'000'000; ///< bytes
inline constexpr std::size_t kMostShotRows = 10'000; ///< rows with a figure: headings don't count

inline constexpr std::size_t kMostShotColumns = 200; ///< columns with content

/// Why a file isn't taken.
struct ImportFault {
    std::size_t line;    ///< of the file, from 1; 0 if it is about the file as a whole
    std::string message; ///< for the user, with the line's number
};

/// The cells of a file, before anybody asks what they mean. Rows without content are gone.
struct ShotFile {
    char delimiter = ',';
    std::vector<CsvRow> rows;
};

/// Reads a file's bytes: UTF-8 or UTF-16 with or without byte order mark, Windows-1252 where it is
/// no UTF-8; comma, semicolon or tab between the cells, a line `sep=` before them.
Outcome<ShotFile, ImportFault> readShotFile(std::string_view bytes);

} // namespace parabolt
