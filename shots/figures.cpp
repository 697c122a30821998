#include "shots/figures.h"

#include <cmath>
#include <numbers>

namespace parabolt {

Figures figuresOf(const FlightOutcome& flight) {
    if (flight.fault)
        return {};
    constexpr double kFeet = 3; // of a yard
    Figures figures;
    figures.carry = flight.carry;
    figures.roll = flight.roll / kFeet;
    figures.total = figures.carry + figures.roll;
    figures.height = flight.top.y;
    figures.heightAt = flight.top.x;
    figures.landingAngle = std::atan2(double{flight.beforeLanding.y} - flight.landing.y,
                                      double{flight.landing.x} - flight.beforeLanding.x) *
                           (180 / std::numbers::pi);
    figures.time = flight.time;
    return figures;
}

Figures figuresOf(const RunRecord& record) {
    return record.CarryTime > 0 ? figuresOf(outcomeOf(record)) : Figures();
}

} // namespace parabolt
