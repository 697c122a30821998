#pragma once

#include "measured/quantities.h"

#include <optional>
#include <string>
#include <string_view>

namespace parabolt {

/// The text without blanks around it, those that don't break a line among them.
std::string withoutBlanks(std::string_view text);
/// True for an empty cell and for what devices write in its place: "-", "--", "N/A".
bool isMissing(std::string_view cell);

/// What a cell holds.
struct CellNumber {
    double value = 0;
    std::optional<MeasuredUnit> unit; ///< if one stands behind the number
};
/// The number of a cell; nothing if it holds none. "5.4 L" and "L 5.4" are -5.4, "4.5 R" is 4.5.
///
/// `decimalComma` says that "5,4" is 5.4 in this file whatever follows; otherwise a comma before
/// three last digits stands between thousands. `whole` says that the quantity has no decimals worth
/// the name: then a point or comma before three last digits always does, as in "2.345" rpm. Before
/// a mark between thousands stand one to three digits that are no 0: "6500.125" has decimals.
std::optional<CellNumber> cellNumber(std::string_view cell, bool decimalComma, bool whole);

} // namespace parabolt
