#include "maps/carry_map.h"

#include "maps/map_words.h"
#include "shots/fault_words.h"

#include <algorithm>
#include <utility>

namespace parabolt {
namespace {

std::size_t indexOf(MapKind kind) {
    return kind == MapKind::Launch ? 0 : 1;
}

} // namespace

bool CarryMap::follow(const Shot& shot, std::span<const RunRecord> runs) {
    const auto generation = generation_;
    if (shot != request_.shot)
        request({shot, kind(), rangesFor(kind(), shot)});
    auto marks = dataMarks(kind(), runs);
    const bool marked = marks != marks_;
    marks_ = std::move(marks);
    return marked || generation_ != generation;
}

void CarryMap::setKind(MapKind kind) {
    MapChoices choices = choices_;
    choices.kind = kind;
    choose(choices);
}

void CarryMap::choose(const MapChoices& choices) {
    if (choices.kind != kind()) {
        cross_.reset();
        marks_.clear(); // until the next look at the form
    }
    choices_ = choices;
    request({request_.shot, kind(), rangesFor(kind(), request_.shot)});
}

void CarryMap::setRanges(const MapRanges& ranges) {
    const MapRanges within{ranges.across.within(acrossInput(kind())),
                           ranges.up.within(upInput(kind()))};
    choices_.ranges[indexOf(kind())] = within;
    request({request_.shot, kind(), within});
    if (cross_)
        setCross(*cross_);
}

void CarryMap::setUsualRanges() {
    choices_.ranges[indexOf(kind())].reset();
    const auto base = baseOf(request_.shot, kind());
    request({request_.shot, kind(), usualRanges(kind(), base ? *base : request_.shot)});
}

void CarryMap::request(const MapRequest& request) {
    if (request == request_)
        return;
    request_ = request;
    ++generation_;
}

MapRanges CarryMap::rangesFor(MapKind kind, const Shot& shot) const {
    if (const auto& chosen = choices_.ranges[indexOf(kind)])
        return *chosen;
    const auto base = baseOf(shot, kind);
    const ShotInputs& inputs = base ? *base : shot;
    const MapPoint point = pointOf(kind, inputs);
    if (kind == request_.kind && ranges().across.holds(point.across) && ranges().up.holds(point.up))
        return ranges(); // a map doesn't jump away under the pointer
    return usualRanges(kind, inputs);
}

bool CarryMap::accept(std::shared_ptr<const MapResult> result) {
    if (result->generation != generation_)
        return false;
    result_ = std::move(result);
    return true;
}

void CarryMap::setCross(MapPoint point) {
    const auto settle = [](const MapInput& input, const MapAxis& axis, double value) {
        const double settled = input.settled(std::clamp(value, axis.first, axis.end()));
        // The nearest whole grain may lie just off the map.
        if (settled < axis.first)
            return input.settled(settled + input.grain);
        return settled > axis.end() ? input.settled(settled - input.grain) : settled;
    };
    cross_ = MapPoint{settle(acrossInput(kind()), ranges().across, point.across),
                      settle(upInput(kind()), ranges().up, point.up)};
}

void CarryMap::moveCross(int right, int up) {
    MapPoint from = cross_.value_or(MapPoint{});
    if (!cross_) {
        const auto base = baseOf(request_.shot, kind());
        from = pointOf(kind(), base ? *base : request_.shot);
    }
    setCross({from.across + right * ranges().across.step, from.up + up * ranges().up.step});
}

std::optional<Shot> CarryMap::shotAtCross() const {
    const auto base = baseOf(request_.shot, kind());
    if (!cross_ || !base)
        return std::nullopt;
    return shotAt(kind(), *base, *cross_);
}

std::string CarryMap::readout() const {
    if (const auto base = baseOf(request_.shot, kind()); !base)
        return "There is nothing to map. " + std::string(faultDescription(base.why()));
    const auto shot = shotAtCross();
    if (!shot)
        return "Move the pointer or the arrow keys over the map to read it. "
               "A click or Enter takes the values into the form; a double click also runs the "
               "shot.";
    return readoutOf(kind(), *cross_, flyAll(std::span(&*shot, 1), {}).front());
}

std::string CarryMap::summary() const {
    return result_ ? summaryOf(*result_, shown()) : std::string();
}

} // namespace parabolt
