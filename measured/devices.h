#pragma once

#include "measured/quantities.h"
#include "measured/shot_file.h"

#include <optional>
#include <string>

namespace parabolt {

/// A column that means something to us.
struct DeviceColumn {
    std::string_view heading; ///< without its unit
    Quantity quantity;
    MeasuredUnit unit; ///< where the file tells none
};

/// A kind of file. Where several columns mean the same, the first that isn't empty in a row counts.
struct Device {
    std::string_view name; ///< "SkyTrak"
    bool computesCarry;    ///< the device computes its carry, at least in part: it isn't measured
    /// Headings that its row of headings must have, in any order and letters.
    std::span<const std::string_view> marks;
    std::span<const DeviceColumn> columns;
    bool plainNumbers =
        false; ///< as the program writes them: a point never stands between thousands
};
/// All that are known; the first whose marks stand in a row recognises it.
std::span<const Device> devices();

/// A column as the user has chosen it.
struct ChosenColumn {
    std::size_t column = 0; ///< from 0
    std::string heading;    ///< as it stands in the file, without its unit; empty for none
    Quantity quantity{};
    MeasuredUnit unit = MeasuredUnit::None;
    friend bool operator==(const ChosenColumn&, const ChosenColumn&) = default;
};

/// What the columns of a file that no device knows mean, by the user's choice. It recognises other
/// files with the same headings in the same columns.
struct ColumnChoice {
    std::string name; ///< the device, as the user calls it
    bool computesCarry = true;
    std::vector<ChosenColumn> columns;
    friend bool operator==(const ColumnChoice&, const ColumnChoice&) = default;
};

/// A choice as one line of text, for preferences, and back; nothing for any other text.
std::string choiceText(const ColumnChoice& choice);
std::optional<ColumnChoice> choiceOf(std::string_view text);

/// Rows at the beginning of a file among which its headings must stand.
inline constexpr std::size_t kHeadingRows = 60;

/// The device whose headings a file has; null if none is known.
const Device* recognise(const ShotFile& file);
/// True if a file has the headings of a choice, where the choice has some.
bool recognises(const ColumnChoice& choice, const ShotFile& file);

/// A choice to begin with, for a file that nobody knows: the row with the most texts in it is taken
/// for that of the headings, and the columns whose headings or units tell something are chosen.
ColumnChoice guessedChoice(const ShotFile& file);
/// The cells of the row of headings, as they stand there; empty if the file has no row of texts.
std::vector<std::string> guessedHeadings(const ShotFile& file);
/// The rows below it, or the first ones of a file without it, to choose by: so many at the most.
std::span<const CsvRow> exampleRows(const ShotFile& file, std::size_t most);

} // namespace parabolt
