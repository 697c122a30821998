#pragma once

#include "measured/devices.h"

namespace parabolt {

/// A heading as files write it, in its parts.
struct HeadingParts {
    std::string name; ///< in small letters, without its unit
    std::string unit; ///< between brackets behind the name; empty if there is none
};
HeadingParts headingParts(std::string_view cell);

/// What a column of one file means.
struct ColumnMeaning {
    std::size_t column;
    Quantity quantity;
    MeasuredUnit unit;            ///< None if nobody tells it
    std::string unknownUnit = {}; ///< what the file tells instead of a unit that we know
};

/// True if a row holds all marks of a device.
bool hasMarks(const CsvRow& row, const Device& device);
/// What the columns below a row of headings mean; in the order of the device's own list, so that
/// the first of several with one meaning counts.
std::vector<ColumnMeaning> columnsBelow(const CsvRow& headings, const Device& device);
/// Takes the units of a row, if it is one of units; false if it isn't.
bool takeUnits(const CsvRow& row, std::vector<ColumnMeaning>& columns);

/// True if the headings of a choice stand in a row, where they belong; false if it has none.
bool hasHeadings(const CsvRow& row, const ColumnChoice& choice);

/// The rows among which the headings must stand.
std::span<const CsvRow> firstRows(const ShotFile& file);
/// The cell of a column; empty where the row ends before it.
std::string_view cellOf(const CsvRow& row, std::size_t column);

} // namespace parabolt
