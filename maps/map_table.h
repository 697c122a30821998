#pragma once

#include "maps/map_result.h"

#include <string>

namespace parabolt {

/// A map as a table of comma-separated values: a heading with units, then a row for each node that
/// has been flown, both inputs and every outcome at full precision. Where a flight failed, the
/// outcomes are empty and the last column has the reason.
std::string composeMapTable(const MapResult& result);

} // namespace parabolt
