#pragma once

#include "engine/fault.h"
#include "engine/shot_state.h"

namespace parabolt {

/// Derives the air of a shot from the weather: sets `StationPressure`, `WindSpeedMs`,
/// `AirViscosity` and `AirDensity`, which stay the same along the whole flight. Must run before
/// each flight. Weather for which the formulas have no value (only a file can bring it) gives the
/// fault; the derived values are then not to be used.
Outcome<void, Fault> ComputeEnvironment(ShotState& shot);

/// Dynamic viscosity of air in Pa s at a temperature in degrees Fahrenheit.
/// Sutherland's law (W. Sutherland, Philosophical Magazine 36, 1893) in Rankine.
float ComputeAirViscosity(float temperature);

/// Density of moist air in kg/m3 at a relative humidity in percent, from the gas law with the
/// virtual temperature. Reads `Temperature` and `StationPressure` of the shot. The pressure goes in
/// steps of 100 Pa. One beyond 21 million hPa gives an infinity.
float ComputeAirDensity(const ShotState& shot, float relativeHumidity);

} // namespace parabolt
