#pragma once

#include "maps/map_result.h"

#include <string>

namespace parabolt {

/// A value with its unit, in the grain of its input: "2,200 rpm", "16.3°".
std::string words(const MapInput& input, double value);
/// A figure with its unit: "241.2 yd", "38.4°".
std::string words(MapOutcome outcome, double value);
/// The step of an input: "±200 rpm".
std::string wordsOfStep(const MapInput& input);
/// A change of the carry: "+1.2", "-0.4", "0.0"; a dash where there is none.
std::string wordsOfGain(const std::optional<double>& yards);
/// Name and unit: "Launch angle, °".
std::string heading(const MapInput& input);
std::string heading(MapOutcome outcome);

/// What stands at a point: its inputs with all figures, or with the reason why there are none.
std::string readoutOf(MapKind kind, MapPoint point, const MapCell& cell);

/// What is best on the map, what the swing reaches and with which loft, and what the present
/// setting loses. While the map isn't complete, what is known by then.
std::string summaryOf(const MapResult& result, MapOutcome shown);

} // namespace parabolt
