#pragma once

#include "measured/measured_flights.h"

namespace parabolt {

/// Figures of several shots in short.
struct Spread {
    std::size_t number = 0;
    double mean = 0;
    std::optional<double> deviation; ///< of a sample; nothing for a single figure
    double least = 0;
    double greatest = 0;
    friend bool operator==(const Spread&, const Spread&) = default;
};
/// Nothing if there is no figure.
std::optional<Spread> spreadOf(std::span<const double> figures);

/// A shot in the list of the user.
struct MeasuredEntry {
    MeasuredShot shot;
    bool struck = false;  ///< struck through: counts in no statistics
    bool checked = false; ///< chosen for the data sets
    friend bool operator==(const MeasuredEntry&, const MeasuredEntry&) = default;
};

/// The shots with a club, in short. Struck ones don't count.
struct ClubStatistics {
    std::string club;       ///< as printed
    std::size_t number = 0; ///< shots
    // Of the device, as far as it tells them, yards.
    std::optional<Spread> deviceCarry;
    std::optional<Spread> deviceTotal;
    // Of the model, yards.
    std::optional<Spread> modelCarry;
    std::optional<Spread> modelTotal;
    /// Model less device over the shots that have both: how far the model can be trusted here.
    std::optional<Spread> carryError;
    /// Over the carries in calm air, where they were given.
    std::optional<Spread> normalisedCarry;
};

/// By club, in the order in which the clubs first come, be it with a struck shot. `flown` holds a
/// flight for each entry; `normalised` a carry for each, or is empty.
std::vector<ClubStatistics> clubStatistics(std::span<const MeasuredEntry> entries,
                                           std::span<const ModelFlight> flown,
                                           std::span<const std::optional<double>> normalised = {});

/// A shot for a data set, and the name of that: "7i, line 12".
struct NamedShot {
    std::string name;
    Shot shot;
};
/// The checked shots that aren't struck, with the values that the fields of the main form hold.
std::vector<NamedShot> checkedShots(std::span<const MeasuredEntry> entries, const Shot& conditions,
                                    bool ownAir);
/// The same of the mean launch of each club, "7i, mean of 5", in the order of `clubStatistics`.
/// With its own air, it flies in that of the club's first shot.
std::vector<NamedShot> meanShots(std::span<const MeasuredEntry> entries, const Shot& conditions,
                                 bool ownAir);

} // namespace parabolt
