#pragma once

#include "shots/run_book.h"
#include "shots/shot.h"

#include <string>
#include <string_view>

namespace parabolt {

/// A club by type and number: "W-1", "I-7".
std::string clubName(const RunRecord& run);

/// A data set by number and, if it has one, name: "3 Low spin".
std::string dataSetName(const RunBook& book, int number);

/// What stands in the place of a landing where a flight failed.
inline constexpr std::string_view kNoLanding = "no landing";

/// What came of a data set, in short: "3 Low spin: carry 241.2 yd, total 251.0 yd, height 28.1 yd,
/// landing angle 38.4 degrees, altitude 0 ft"; of a flight that failed, "3: no landing, altitude
/// 0 ft".
std::string wordsOf(const RunBook& book, int number);

/// The shot behind a data set, as it was flown.
Shot shotOf(const RunBook& book, int number);

} // namespace parabolt
