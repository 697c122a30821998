#pragma once

#include "maps/map_choices.h"
#include "maps/map_picture.h"

#include <string>

namespace parabolt {

/// The state behind the window of the carry map: what is asked for, what has been computed of it,
/// and where the cross hair stands. It shows nothing and computes no map itself: a view hands its
/// request to a worker whenever the generation has grown, and gives back what the worker delivers.
class CarryMap {
public:
    /// Takes over what the main form stands for, and its data sets. True if anything has changed.
    bool follow(const Shot& shot, std::span<const RunRecord> runs);

    /// What of the map is chosen, for a later map to take over.
    const MapChoices& choices() const { return choices_; }
    void choose(const MapChoices& choices);

    MapKind kind() const { return choices_.kind; }
    void setKind(MapKind kind);
    MapOutcome shown() const { return choices_.shown; }
    void show(MapOutcome outcome) { choices_.shown = outcome; }

    const MapRanges& ranges() const { return request_.ranges; }
    /// Ranges of the user's choice for this kind of map, brought into the limits of the inputs.
    void setRanges(const MapRanges& ranges);
    /// Back to those that suit the shot; they widen where a later shot lies outside.
    void setUsualRanges();

    const MapRequest& request() const { return request_; }
    /// Grows with each change of the request.
    std::uint64_t generation() const { return generation_; }

    /// Takes what has been computed; false, and nothing changes, if it is of an earlier request.
    bool accept(std::shared_ptr<const MapResult> result);
    /// The newest that was accepted, perhaps of an earlier request; null before the first.
    const MapResult* result() const { return result_.get(); }
    /// True if the newest result is of the present request.
    bool isCurrent() const { return result_ && result_->generation == generation_; }
    const std::vector<DataMark>& marks() const { return marks_; }

    /// The cross hair, in whole grains of the inputs; nothing before it was first placed.
    std::optional<MapPoint> cross() const { return cross_; }
    /// Places the cross hair at the nearest point in whole grains on the map.
    void setCross(MapPoint point);
    /// Moves it by so many steps of the axes, from the present setting if it isn't there yet.
    void moveCross(int right, int up);
    /// The shot with the values of the cross hair; nothing where it has none.
    std::optional<Shot> shotAtCross() const;

    /// Flies the shot under the cross hair and tells its figures; how to get some before.
    std::string readout() const;
    std::string summary() const;

private:
    void request(const MapRequest& request);
    MapRanges rangesFor(MapKind kind, const Shot& shot) const;

    MapRequest request_{{}, MapKind::Launch, usualRanges(MapKind::Launch, {})};
    MapChoices choices_;
    std::uint64_t generation_ = 1;
    std::shared_ptr<const MapResult> result_;
    std::vector<DataMark> marks_;
    std::optional<MapPoint> cross_;
};

} // namespace parabolt
