#pragma once

#include "measured/bag.h"

namespace parabolt {

/// Where a desk keeps the session of measured shots and of the bag, among the windows.
inline constexpr auto kMeasuredKey = "measured";

/// All that the windows of measured shots and of the bag stand for, as a value.
struct MeasuredSession {
    std::string source; ///< name of the file, for people
    std::string device;
    bool computesCarry = true;
    std::vector<MeasuredEntry> entries;

    bool ownAir = false; ///< fly in the air of the file where it brings some
    bool normalise = false;
    CalmAir air; ///< in which carries are normalised

    // What stands on the printed page.
    std::string player;
    std::string fitter;
    std::string date;
    std::string note;

    ClubAnswers answers;
    BagChoice bag = usualBag();

    friend bool operator==(const MeasuredSession&, const MeasuredSession&) = default;
};

} // namespace parabolt
