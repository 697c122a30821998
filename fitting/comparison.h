#pragma once

#include "fitting/fitting.h"

#include <memory>

namespace parabolt {

/// The weather and the ball of a shot, and nothing else of it: all that measured shots and the bag
/// take from the main form.
Shot conditionsOf(const Shot& shot);

/// What the model makes of the measured shots: computed off the form's thread, from values alone.
struct ComparisonRequest {
    std::shared_ptr<const std::vector<MeasuredShot>> shots;
    Shot conditions; ///< of the main form
    bool ownAir = false;
    std::optional<CalmAir> air; ///< in which carries are normalised, if they are
    /// The flights, where they are known from before: the air for normalising changes none.
    std::shared_ptr<const std::vector<ModelFlight>> flown;
    friend bool operator==(const ComparisonRequest&, const ComparisonRequest&) = default;
};
struct ComparisonResult {
    std::shared_ptr<const std::vector<ModelFlight>> flights;
    std::vector<std::optional<double>> normalised; ///< yards; empty if nobody asked
};
/// Nothing once a stop is requested.
std::optional<ComparisonResult> computeComparison(const ComparisonRequest& request,
                                                  const std::stop_token& stop = {});

/// The measured shots beside the model, as they are known so far.
class Comparison {
public:
    explicit Comparison(const Fitting& fitting) : fitting_(fitting) {}

    /// Looks at the session and at the shot that the main form stands for. True if what is to be
    /// computed is something else than before.
    bool follow(const Shot& conditions);
    const ComparisonRequest& request() const { return request_; }
    /// Rises with each new request.
    std::uint64_t generation() const { return generation_; }
    /// Takes a result; one of an older generation is left alone (false).
    bool accept(ComparisonResult result, std::uint64_t generation);
    /// True if what is known is what was asked for last, of the shots that are there now.
    bool isCurrent() const { return accepted_ == generation_ && isOfTheseShots(); }

    /// A flight for each entry of the session; none while the first are being computed.
    std::span<const ModelFlight> flights() const;
    /// A carry for each entry, yards, or none at all.
    std::span<const std::optional<double>> normalised() const;
    /// By club, of the shots that aren't struck through; none without flights.
    std::vector<ClubStatistics> clubs() const;
    /// How far the model's figure lies from the device's, over all shots that count and have both.
    std::optional<Spread> error(const ComparedFigure& figure) const;

private:
    bool isOfTheseShots() const { return shotsNumber_ == fitting_.shotsNumber(); }

    const Fitting& fitting_;
    ComparisonRequest request_;
    std::uint64_t shotsNumber_ = 0; ///< of the request
    std::uint64_t generation_ = 0;
    std::uint64_t accepted_ = 0;
    ComparisonResult result_;
};

} // namespace parabolt
