#pragma once

#include "fitting/comparison.h"

namespace parabolt {

/// The club of a shot as people read it: "(no club)" where none is told.
std::string shownClub(const std::string& club);

/// The shots in a line: where they come from, how many there are and how many count.
std::string sourceInWords(const MeasuredSession& session);

/// How far the model lies from the device, over all and for the clubs where it fits best and worst,
/// and what must be known to read normalised carries.
std::string comparisonInWords(const MeasuredSession& session, const Comparison& comparison);

} // namespace parabolt
