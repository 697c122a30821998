#pragma once

#include "measured/measured_shot.h"
#include "shots/figures.h"

#include <span>
#include <stop_token>
#include <string_view>
#include <vector>

namespace parabolt {

/// A measured shot, flown by the model.
struct ModelFlight {
    std::optional<Fault> fault; ///< if set, the figures are zero
    Figures figures;
};

/// What is compared of a flight: the device beside the model.
struct ComparedFigure {
    std::string_view name; ///< "Landing angle"
    std::string_view unit; ///< "deg"
    std::optional<double> DeviceFigures::*device;
    double Figures::*model;

    /// Model less device; nothing where either has none.
    std::optional<double> difference(const MeasuredShot& shot, const ModelFlight& flight) const;
};
/// Carry, total, height, landing angle and time, in this order.
std::span<const ComparedFigure> comparedFigures();

/// The shot as the program flies it: mode Launch, in the weather and with the ball of the
/// conditions. With its own air, all of the weather that the file tells takes the place of that of
/// the conditions. A pressure at the place then flies at no altitude, or, where it lies below what
/// the main form's field accepts, at the altitude to which it belongs. Where the file tells no
/// pressure, the density of the air gives it, if that is one that the field accepts or a lower one.
Shot shotOf(const MeasuredShot& shot, const Shot& conditions, bool ownAir);

/// Flies all shots; flights in their order, each equal to the last bit to that of `fly` for
/// `shotOf`. Once a stop is requested it returns soon, with none.
std::vector<ModelFlight> flyMeasured(std::span<const MeasuredShot> shots, const Shot& conditions,
                                     bool ownAir, const std::stop_token& stop = {});

/// Calm air at a place, for the carries of all shots to be compared in.
struct CalmAir {
    float altitude = 0;      ///< feet
    float temperature = 70;  ///< degrees Fahrenheit
    float pressure = 29.92F; ///< inches of mercury, as read at sea level
    float humidity = 50;     ///< percent
    friend bool operator==(const CalmAir&, const CalmAir&) = default;
};

/// The carries that the shots would have in calm air, yards: the device's carry times the model's
/// ratio, its carry in the calm air to its carry in the shot's own conditions. `flown` are the
/// latter, as `flyMeasured` gives them. Nothing for a shot without a carry of the device, or
/// without a flight. Empty once a stop is requested.
std::vector<std::optional<double>> normalisedCarries(std::span<const MeasuredShot> shots,
                                                     std::span<const ModelFlight> flown,
                                                     const Shot& conditions, const CalmAir& air,
                                                     const std::stop_token& stop = {});

/// What must stand beside normalised carries.
inline constexpr std::string_view kNormalisedNote =
    "Normalised: the device's carry times the model's ratio. In this model wind and altitude count "
    "about double of what they do in nature: take such a correction for half of what it says.";

} // namespace parabolt
