#include "maps/map_words.h"

#include "numbers/text_number.h"
#include "shots/fault_words.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

constexpr std::string_view kDegree = "\u00b0";

/// A number with so many decimals, and a comma between its thousands.
std::string grouped(double value, int decimals) {
    std::string text = formatPattern(
        value, decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0'));
    const auto digits = static_cast<std::ptrdiff_t>(std::min(text.find('.'), text.size()));
    const std::ptrdiff_t sign = text.front() == '-' ? 1 : 0;
    for (std::ptrdiff_t at = digits - 3; at > sign; at -= 3)
        text.insert(text.begin() + at, ',');
    return text;
}

std::string withUnit(std::string number, std::string_view unit) {
    if (!unit.empty() && unit != kDegree)
        number += ' ';
    return number.append(unit);
}

/// Decimals that show a grain.
int decimalsOf(double grain) {
    return grain >= 1 ? 0 : static_cast<int>(std::lround(-std::log10(grain)));
}

std::string headed(std::string_view name, std::string_view unit) {
    return std::string(name) + (unit.empty() ? "" : ", ") + std::string(unit);
}

std::string pointWords(MapKind kind, MapPoint point) {
    return words(upInput(kind), point.up) +
           (kind == MapKind::Launch ? " and " : " of loft and an attack of ") +
           words(acrossInput(kind), point.across);
}

std::string loftWords(double loft) {
    const std::string text = grouped(loft, 1);
    return text.ends_with(".0") ? text.substr(0, text.size() - 2) : text;
}

std::string bestWords(const MapResult& result, MapOutcome shown) {
    const std::optional<MapBest>& best = result.best(shown);
    if (!best)
        return "Nothing on this map can be flown.";
    const MapOutcome by = shown == MapOutcome::Total ? MapOutcome::Total : MapOutcome::Carry;
    const std::string what =
        result.request.kind == MapKind::Launch
            ? "Best for a ball of " + grouped(result.base->LaunchSpeed, 1) + " mph: "
            : "Best on this map: ";
    return what + words(by, figureOf(best->flight.figures, by)) +
           (by == MapOutcome::Total ? " in all" : " of carry") + " at " +
           pointWords(result.request.kind, best->point) +
           (best->atEdge ? ", at the edge: a wider range may hold a better one." : ".");
}

std::string reachWords(const MapResult& result) {
    const Reach& reach = result.reach;
    if (!reach.carry || !reach.total)
        return {};
    const auto figure = [](const LoftBest& best, MapOutcome outcome) {
        return words(outcome, figureOf(best.flight.figures, outcome));
    };
    std::string text =
        " The swing of " + grouped(result.base->HeadSpeed, 1) + " mph carries at most " +
        figure(*reach.carry, MapOutcome::Carry) + ", with " + loftWords(reach.carry->loft) +
        " degrees of loft and a ball of " + grouped(reach.carry->ballSpeed, 1) + " mph";
    if (reach.lowestGood < reach.highestGood)
        text += "; " + loftWords(reach.lowestGood) + " to " + loftWords(reach.highestGood) +
                " degrees lose less than 1 yard";
    return text + ". For the total, " + loftWords(reach.total->loft) + " degrees bring " +
           figure(*reach.total, MapOutcome::Total) + ".";
}

std::string presentWords(const MapResult& result, MapOutcome shown) {
    // A launch that was typed in is none of the map of swings.
    const bool typed = result.request.shot.Mode == OperatingMode::Launch;
    if (typed && result.request.kind == MapKind::Swing)
        return {};
    if (!*result.present)
        return " The present setting has no value. " +
               std::string(faultDescription(result.present->why()));
    const MapFlight& present = **result.present;
    const MapOutcome by = shown == MapOutcome::Total ? MapOutcome::Total : MapOutcome::Carry;
    const auto behind = [&](const MapFlight& best) {
        const double yards = smoothFigure(best, by) - smoothFigure(present, by);
        return words(by, std::abs(yards)) + (yards < 0 ? " more than" : " less than");
    };
    const MapPoint point = pointOf(result.request.kind, *result.base);
    const MapRanges& ranges = result.grid.ranges();
    const bool onMap = ranges.across.holds(point.across) && ranges.up.holds(point.up);
    std::string text = by == MapOutcome::Total ? " The present setting comes to "
                                               : " The present setting carries ";
    text += words(by, figureOf(present.figures, by));
    if (const auto& best = result.best(shown))
        text += ": " + behind(best->flight) + (onMap ? " the best" : " the best on this map");
    const auto& reached = by == MapOutcome::Total ? result.reach.total : result.reach.carry;
    if (reached && !typed) // which needs not be one of this swing
        text += ", " + behind(reached->flight) + " with the best loft";
    return text + ".";
}

} // namespace

std::string words(const MapInput& input, double value) {
    return withUnit(grouped(value, decimalsOf(input.grain)), input.unit);
}

std::string wordsOfStep(const MapInput& input) {
    const int decimals = input.step == std::floor(input.step) ? 0 : decimalsOf(input.grain);
    return "\u00b1" + withUnit(grouped(input.step, decimals), input.unit);
}

std::string words(MapOutcome outcome, double value) {
    return withUnit(grouped(value, outcome == MapOutcome::Time ? 2 : 1), textOf(outcome).unit);
}

std::string wordsOfGain(const std::optional<double>& yards) {
    if (!yards)
        return "\u2013";
    const std::string text = grouped(*yards, 1);
    if (text == "-0.0")
        return "0.0";
    return (*yards > 0 && text != "0.0" ? "+" : "") + text;
}

std::string heading(const MapInput& input) {
    return headed(input.name, input.unit);
}

std::string heading(MapOutcome outcome) {
    return headed(textOf(outcome).name, textOf(outcome).unit);
}

std::string readoutOf(MapKind kind, MapPoint point, const MapCell& cell) {
    std::string text = pointWords(kind, point) + ": ";
    if (!cell)
        return text + "no value. " + std::string(faultDescription(cell.why()));
    const Figures& figures = cell->figures;
    return text + "carry " + words(MapOutcome::Carry, figures.carry) + ", total " +
           words(MapOutcome::Total, figures.total) + ", height " +
           words(MapOutcome::Height, figures.height) + ", landing " +
           words(MapOutcome::LandingAngle, figures.landingAngle) + ", " +
           words(MapOutcome::Time, figures.time);
}

std::string summaryOf(const MapResult& result, MapOutcome shown) {
    if (!result.base)
        return "There is nothing to map. " + std::string(faultDescription(result.base.why()));
    if (!result.present) // only the first coarse picture is there
        return {};
    return bestWords(result, shown) + reachWords(result) + presentWords(result, shown);
}

} // namespace parabolt
