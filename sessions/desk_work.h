#pragma once

#include "sessions/desk.h"

#include <cstddef>

namespace parabolt {

/// What of a desk its user would miss.
struct DeskWork {
    std::size_t dataSets = 0;
    std::size_t measuredShots = 0;

    bool isNone() const { return dataSets == 0 && measuredShots == 0; }
    /// True if a later desk has fewer of one of them.
    bool isLostOn(const DeskWork& later) const {
        return later.dataSets < dataSets || later.measuredShots < measuredShots;
    }
};

DeskWork workOn(const Desk& desk);

} // namespace parabolt
