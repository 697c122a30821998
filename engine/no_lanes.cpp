#include "engine/lanes.h"

namespace parabolt {

// Stands in for lanes.cpp in a build without vectors.
const std::vector<LaneWay>& laneWays() {
    static const std::vector<LaneWay> none;
    return none;
}

} // namespace parabolt
