#include "fitting/comparison.h"

#include <utility>

namespace parabolt {

Shot conditionsOf(const Shot& shot) {
    Shot conditions;
    conditions.WindSpeed = shot.WindSpeed;
    conditions.Temperature = shot.Temperature;
    conditions.BaroPressure = shot.BaroPressure;
    conditions.RH = shot.RH;
    conditions.h = shot.h;
    conditions.Slope1 = shot.Slope1;
    conditions.CD1 = shot.CD1;
    conditions.BallType = shot.BallType;
    return conditions;
}

std::optional<ComparisonResult> computeComparison(const ComparisonRequest& request,
                                                  const std::stop_token& stop) {
    ComparisonResult result;
    result.flights = request.flown;
    if (result.flights == nullptr)
        result.flights = std::make_shared<const std::vector<ModelFlight>>(
            flyMeasured(*request.shots, request.conditions, request.ownAir, stop));
    if (request.air && !stop.stop_requested())
        result.normalised = normalisedCarries(*request.shots, *result.flights, request.conditions,
                                              *request.air, stop);
    if (stop.stop_requested())
        return std::nullopt;
    return result;
}

bool Comparison::follow(const Shot& conditions) {
    const MeasuredSession& session = fitting_.session();
    ComparisonRequest request = request_;
    if (request.shots == nullptr || !isOfTheseShots()) {
        std::vector<MeasuredShot> shots;
        shots.reserve(session.entries.size());
        for (const MeasuredEntry& entry : session.entries)
            shots.push_back(entry.shot);
        request.shots = std::make_shared<const std::vector<MeasuredShot>>(std::move(shots));
        shotsNumber_ = fitting_.shotsNumber();
        result_ = {};
    }
    request.conditions = conditionsOf(conditions);
    request.ownAir = session.ownAir;
    request.air = request_.air;
    const bool fliesAnew = request != request_;
    request.air = session.normalise ? std::optional(session.air) : std::nullopt;
    if (request == request_)
        return false;
    if (fliesAnew)
        request.flown = nullptr;
    else if (isCurrent())
        request.flown = result_.flights;
    request_ = std::move(request);
    ++generation_;
    return true;
}

bool Comparison::accept(ComparisonResult result, std::uint64_t generation) {
    if (generation != generation_)
        return false;
    result_ = std::move(result);
    accepted_ = generation;
    return true;
}

std::span<const ModelFlight> Comparison::flights() const {
    if (result_.flights == nullptr || !isOfTheseShots())
        return {};
    return *result_.flights;
}

std::span<const std::optional<double>> Comparison::normalised() const {
    if (!isOfTheseShots())
        return {};
    return result_.normalised;
}

std::vector<ClubStatistics> Comparison::clubs() const {
    const auto& entries = fitting_.session().entries;
    if (flights().size() != entries.size())
        return {};
    return clubStatistics(entries, flights(), normalised());
}

std::optional<Spread> Comparison::error(const ComparedFigure& figure) const {
    const auto& entries = fitting_.session().entries;
    if (flights().size() != entries.size())
        return std::nullopt;
    std::vector<double> differences;
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (const auto difference = figure.difference(entries[i].shot, flights()[i]);
            difference && !entries[i].struck)
            differences.push_back(*difference);
    return spreadOf(differences);
}

} // namespace parabolt
