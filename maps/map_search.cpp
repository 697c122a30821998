#include "maps/map_search.h"

#include "shots/fly.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

/// A climb over whole grains of both inputs: as long as one of the eight neighbours at the present
/// distance is better it goes there, else the distance is halved, down to one grain.
class Uphill {
public:
    Uphill(MapKind kind, const Shot& base, MapOutcome outcome, const MapRanges& ranges)
        : kind_(kind),
          base_(base),
          outcome_(outcome),
          ranges_(ranges) {}

    void climb(MapBest& best, const std::stop_token& stop) const {
        const MapInput& across = acrossInput(kind_);
        const MapInput& up = upInput(kind_);
        const auto grains = [](double range, double grain) { return std::max(range / grain, 1.0); };
        double right = grains(ranges_.across.step, across.grain);
        double above = grains(ranges_.up.step, up.grain);
        while (!stop.stop_requested()) {
            if (improve(best, std::round(right) * across.grain, std::round(above) * up.grain, stop))
                continue;
            if (right == 1 && above == 1)
                break;
            right = std::max(right / 2, 1.0);
            above = std::max(above / 2, 1.0);
        }
        const auto edge = [](const MapAxis& axis, double value, double grain) {
            return value < axis.first + grain || value > axis.end() - grain;
        };
        best.atEdge = edge(ranges_.across, best.point.across, across.grain) ||
                      edge(ranges_.up, best.point.up, up.grain);
    }

private:
    bool improve(MapBest& best, double right, double above, const std::stop_token& stop) const {
        std::vector<MapPoint> points;
        std::vector<Shot> shots;
        for (const double x : {-right, 0.0, right})
            for (const double y : {-above, 0.0, above}) {
                const MapPoint point{acrossInput(kind_).settled(best.point.across + x),
                                     upInput(kind_).settled(best.point.up + y)};
                if (!ranges_.across.holds(point.across) || !ranges_.up.holds(point.up))
                    continue;
                points.push_back(point);
                shots.push_back(shotAt(kind_, base_, point));
            }
        const auto cells = flyAll(shots, stop);
        bool better = false;
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (cells[i] &&
                smoothFigure(*cells[i], outcome_) > smoothFigure(best.flight, outcome_)) {
                best.point = points[i];
                best.flight = *cells[i];
                better = true;
            }
        return better;
    }

    MapKind kind_;
    const Shot& base_;
    MapOutcome outcome_;
    const MapRanges& ranges_;
};

std::vector<ReachNode> flyLofts(const Shot& swing, double first, double last, double step,
                                const std::stop_token& stop) {
    std::vector<ReachNode> nodes;
    std::vector<Shot> shots;
    const auto steps = static_cast<int>(std::lround((last - first) / step));
    for (int i = 0; i <= steps; ++i) {
        Shot shot = swing;
        loftInput().set(shot, loftInput().settled(first + i * step));
        shots.push_back(shot);
    }
    const auto cells = flyAll(shots, stop);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (const auto launch = prepare(shots[i]))
            static_cast<ShotInputs&>(shots[i]) = static_cast<const ShotInputs&>(*launch);
        nodes.push_back({loftInput().of(shots[i]), shots[i], cells[i]});
    }
    return nodes;
}

const ReachNode* bestNode(const std::vector<ReachNode>& nodes, MapOutcome outcome) {
    const ReachNode* best = nullptr;
    for (const ReachNode& node : nodes)
        if (node.cell && (best == nullptr ||
                          smoothFigure(*node.cell, outcome) > smoothFigure(*best->cell, outcome)))
            best = &node;
    return best;
}

constexpr double kLoftStep = 0.5; ///< degrees, of the nodes of a reach

std::optional<LoftBest> bestLoft(const Shot& swing, const std::vector<ReachNode>& nodes,
                                 MapOutcome outcome, const std::stop_token& stop) {
    const ReachNode* coarse = bestNode(nodes, outcome);
    if (coarse == nullptr)
        return std::nullopt;
    const auto fine =
        flyLofts(swing, std::max(coarse->loft - kLoftStep, loftInput().lowest),
                 std::min(coarse->loft + kLoftStep, loftInput().highest), loftInput().grain, stop);
    const ReachNode* best = bestNode(fine, outcome);
    if (best == nullptr)
        return std::nullopt;
    return LoftBest{best->loft, best->shot.LaunchSpeed, *best->cell};
}

} // namespace

std::optional<MapBest> findBest(const MapGrid& grid, MapKind kind, const Shot& base,
                                MapOutcome outcome, const std::stop_token& stop) {
    std::optional<MapBest> best;
    for (int row = 0; row < grid.rows(); ++row)
        for (int column = 0; column < grid.columns(); ++column) {
            const MapGrid::Node& node = grid.at(column, row);
            if (node && *node &&
                (!best || smoothFigure(**node, outcome) > smoothFigure(best->flight, outcome)))
                best = MapBest{grid.point(column, row), **node};
        }
    if (best)
        Uphill(kind, base, outcome, grid.ranges()).climb(*best, stop);
    return best;
}

Reach reachOf(const Shot& swing, const std::stop_token& stop) {
    Reach reach;
    reach.nodes = flyLofts(swing, loftInput().lowest, loftInput().highest, kLoftStep, stop);
    reach.carry = bestLoft(swing, reach.nodes, MapOutcome::Carry, stop);
    reach.total = bestLoft(swing, reach.nodes, MapOutcome::Total, stop);
    if (!reach.carry)
        return reach;
    reach.lowestGood = reach.highestGood = reach.carry->loft;
    const double least = smoothFigure(reach.carry->flight, MapOutcome::Carry) - kTopLoss;
    const auto isGood = [least](const ReachNode& node) {
        return node.cell && smoothFigure(*node.cell, MapOutcome::Carry) > least;
    };
    const auto middle =
        std::find_if(reach.nodes.begin(), reach.nodes.end(),
                     [&](const ReachNode& node) { return node.loft >= reach.carry->loft; });
    for (auto node = middle; node != reach.nodes.end() && isGood(*node); ++node)
        reach.highestGood = node->loft;
    for (auto node = middle; node != reach.nodes.begin() && isGood(*(node - 1)); --node)
        reach.lowestGood = (node - 1)->loft;
    return reach;
}

double StepEffect::greatest() const {
    return std::max(std::abs(less.value_or(0)), std::abs(more.value_or(0)));
}

std::vector<StepEffect> stepEffects(MapKind kind, const Shot& base, const std::stop_token& stop) {
    std::vector<StepEffect> effects;
    std::vector<Shot> shots{base};
    for (const MapInput& input : mapInputs()) {
        if (input.only && *input.only != kind)
            continue;
        effects.push_back({&input, input.of(base), std::nullopt, std::nullopt});
        for (const double step : {-input.step, input.step}) {
            Shot& shot = shots.emplace_back(base);
            input.set(shot, input.of(base) + step);
        }
    }
    const auto cells = flyAll(shots, stop);
    if (cells.empty() || !cells.front())
        return {};
    const double now = smoothFigure(*cells.front(), MapOutcome::Carry);
    const auto gain = [&](const StepEffect& effect, double step,
                          const MapCell& cell) -> std::optional<double> {
        const double value = effect.value + step;
        const double slack = effect.input->grain / 2; // 0.71 - 0.01 in 32 bits is just below 0.7
        if (!cell || value < effect.input->lowest - slack || value > effect.input->highest + slack)
            return std::nullopt;
        return smoothFigure(*cell, MapOutcome::Carry) - now;
    };
    for (std::size_t i = 0; i < effects.size(); ++i) {
        StepEffect& effect = effects[i];
        effect.less = gain(effect, -effect.input->step, cells[2 * i + 1]);
        effect.more = gain(effect, effect.input->step, cells[2 * i + 2]);
    }
    std::stable_sort(effects.begin(), effects.end(), [](const auto& one, const auto& other) {
        return one.greatest() > other.greatest();
    });
    return effects;
}

} // namespace parabolt
