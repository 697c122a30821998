#pragma once

#include "shots/run_book.h"

#include <string>

namespace parabolt {

/// The paths of all data sets as comma-separated values, a row for each point: number and name of
/// the data set, seconds since the launch, yards downrange and above the ground. Numbers in full.
std::string composePaths(const RunBook& book);

} // namespace parabolt
