#include "maps/map_result.h"

#include "shots/fly.h"

namespace parabolt {
namespace {

/// Flies the nodes of a pass that no pass before has flown; false if it was stopped.
bool flyPass(MapResult& result, int stride, const std::stop_token& stop) {
    MapGrid& grid = result.grid;
    std::vector<std::pair<int, int>> places;
    std::vector<Shot> shots;
    for (const int row : visited(grid.rows(), stride))
        for (const int column : visited(grid.columns(), stride)) {
            if (grid.at(column, row))
                continue;
            places.emplace_back(column, row);
            shots.push_back(shotAt(result.request.kind, *result.base, grid.point(column, row)));
        }
    const auto cells = flyAll(shots, stop);
    if (cells.size() != shots.size())
        return false;
    for (std::size_t i = 0; i < cells.size(); ++i)
        grid.put(places[i].first, places[i].second, cells[i]);
    result.stride = stride;
    return true;
}

void findBests(MapResult& result, const std::stop_token& stop) {
    const auto find = [&](MapOutcome outcome) {
        return findBest(result.grid, result.request.kind, *result.base, outcome, stop);
    };
    result.bestCarry = find(MapOutcome::Carry);
    result.bestTotal = find(MapOutcome::Total);
}

/// What is computed beside the map, for the sentence and the steps.
void lookAround(MapResult& result, const std::stop_token& stop) {
    const MapKind kind = result.request.kind;
    const auto present = flyAll(std::span(&*result.base, 1), stop);
    if (!present.empty())
        result.present = present.front();
    if (const auto swing = baseOf(result.request.shot, MapKind::Swing))
        result.reach = reachOf(*swing, stop);
    result.steps = stepEffects(kind, *result.base, stop);
    findBests(result, stop);
}

} // namespace

Outcome<Shot, Fault> baseOf(const Shot& shot, MapKind kind) {
    const auto state = prepare(shot);
    if (!state)
        return because(state.why());
    Shot base = shot;
    static_cast<ShotInputs&>(base) = static_cast<const ShotInputs&>(*state);
    base.sources = {};
    base.Mode = kind == MapKind::Launch ? OperatingMode::Launch : OperatingMode::Manual;
    return base;
}

MapResult completeMap(const MapRequest& request) {
    MapResult complete;
    computeMap(request, 0, {}, [&](const auto& result) { complete = *result; });
    return complete;
}

void computeMap(const MapRequest& request, std::uint64_t generation, const std::stop_token& stop,
                const DeliverMap& deliver) {
    MapResult result;
    result.request = request;
    result.generation = generation;
    result.base = baseOf(request.shot, request.kind);
    result.grid = MapGrid(request.ranges);
    const auto hand = [&] {
        if (!stop.stop_requested())
            deliver(std::make_shared<const MapResult>(result));
    };
    if (!result.base) {
        result.complete = true;
        hand();
        return;
    }
    for (int stride = MapGrid::kCoarsest; stride >= 1; stride /= 2) {
        if (!flyPass(result, stride, stop))
            return;
        if (stride == 1) {
            findBests(result, stop);
            result.complete = true;
        }
        hand();
        if (stride == MapGrid::kCoarsest) {
            lookAround(result, stop);
            hand();
        }
    }
}

} // namespace parabolt
