#include "shots/figures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace parabolt {

Figures figuresOf(const RunRecord& record) {
    if (record.Path.size() < 2 || record.CarryTime == 0)
        return {};
    constexpr double kFeetPerYard = 3;
    Figures figures;
    figures.carry = record.CarryDist;
    figures.roll = record.GreenRoll / kFeetPerYard;
    figures.total = figures.carry + figures.roll;
    const auto top =
        std::max_element(record.Path.begin(), record.Path.end(),
                         [](const auto& one, const auto& other) { return one.y < other.y; });
    figures.height = top->y;
    figures.heightAt = top->x;
    const TrajectoryPoint& landing = record.Path.back();
    const TrajectoryPoint& before = record.Path[record.Path.size() - 2];
    figures.landingAngle = std::atan2(double{before.y} - landing.y, double{landing.x} - before.x) *
                           (180 / std::numbers::pi);
    figures.time = record.CarryTime;
    return figures;
}

} // namespace parabolt
