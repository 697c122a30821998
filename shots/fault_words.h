#pragma once

#include "engine/fault.h"

#include <string_view>

namespace parabolt {

/// What the user reads of a fault.
std::string_view faultDescription(Fault fault);

} // namespace parabolt
