#pragma once

#include "sessions/desk.h"

#include <cstddef>

namespace parabolt {

/// What of a desk its user would miss.
struct DeskWork {
    std::size_t dataSets = 0;
    std::size_t measuredShots = 0;

    bool isNone() const { return dataSets == 0 && measuredShots == 0; }
    /// True if a later desk has nothing left of one of them.
    bool isLostOn(const DeskWork& later) const {
        return (dataSets > 0 && later.dataSets == 0) ||
               (measuredShots > 0 && later.measuredShots == 0);
    }
};

DeskWork workOn(const Desk& desk);

} // namespace parabolt
