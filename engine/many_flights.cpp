#include "engine/many_flights.h"

#include "engine/flight_step.h"
#include "engine/landing.h"
#include "engine/lanes.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace parabolt {
namespace {

TrajectoryPoint inYards(float x, float y) {
    return {store32(double{x} * kYardsPerMetre), store32(double{y} * kYardsPerMetre)};
}

FlightOutcome without(Fault fault) {
    FlightOutcome outcome;
    outcome.fault = fault;
    return outcome;
}

/// The shots that wait for their flight. All threads take from here, so that none waits for
/// another.
class Queue {
public:
    Queue(std::span<const ShotState> shots, std::span<FlightOutcome> outcomes, std::stop_token stop)
        : shots_(shots),
          outcomes_(outcomes),
          stop_(std::move(stop)) {}

    /// The number of the next shot; none after the last one and after a stop.
    std::optional<std::size_t> take() {
        if (stopped())
            return std::nullopt;
        const std::size_t number = next_.fetch_add(1, std::memory_order_relaxed);
        return number < shots_.size() ? std::optional(number) : std::nullopt;
    }

    bool stopped() const { return stop_.stop_requested(); }
    const ShotState& shot(std::size_t number) const { return shots_[number]; }
    FlightOutcome& outcome(std::size_t number) { return outcomes_[number]; }

private:
    std::span<const ShotState> shots_;
    std::span<FlightOutcome> outcomes_;
    std::stop_token stop_;
    std::atomic<std::size_t> next_ = 0;
};

/// One thread's flights, one after the other.
class SingleFlights {
public:
    explicit SingleFlights(Queue& queue) : queue_(queue) {}

    void flyAll() {
        while (const auto number = queue_.take())
            fly(*number);
    }

    void fly(std::size_t number) {
        const auto flown = SimulateFlight(queue_.shot(number), {}, record_);
        queue_.outcome(number) = flown ? outcomeOf(record_) : without(flown.why());
    }

private:
    Queue& queue_;
    RunRecord record_; // one for all: its path keeps its memory
};

/// One thread's flights beside each other. A lane whose ball has landed takes the next shot at
/// once, so that a long flight holds up nobody.
class LaneFlights {
public:
    LaneFlights(Queue& queue, const LaneWay& way) : queue_(queue), single_(queue), way_(way) {}

    void flyAll() {
        bool full = true;
        for (std::size_t lane = 0; full && lane < way_.lanes; ++lane)
            full = launchNext(lane);
        while (full)
            full = flyOn();
        // Too few to fill the lanes: what is still up is flown again alone.
        for (const auto& flight : flights_)
            if (flight.number && !queue_.stopped())
                single_.fly(*flight.number);
    }

private:
    struct Flight {
        std::optional<std::size_t> number; ///< of the shot
        int steps = 0;
    };

    /// Takes all lanes on until one of them needs a look; false if one stays empty after it.
    bool flyOn() {
        int most = kMostSteps;
        for (std::size_t lane = 0; lane < way_.lanes; ++lane)
            most = std::min(most, kMostSteps - flights_[lane].steps);
        const int steps = way_.flyOn(lanes_, most);
        for (std::size_t lane = 0; lane < way_.lanes; ++lane) {
            flights_[lane].steps += steps;
            if ((lanes_.unsure >> lane & 1U) != 0)
                redo(lane);
            if (ended(lane) && !launchNext(lane))
                return false;
        }
        return true;
    }

    /// Puts the next shot into the lane; false if there is none. Shots outside the ranges for which
    /// the lanes know how exact they are fly alone at once.
    bool launchNext(std::size_t lane) {
        while ((flights_[lane] = {queue_.take()}).number) {
            const ShotState& shot = queue_.shot(*flights_[lane].number);
            const FlightState ball = launchState(shot);
            const FlightAir air = flightAir(shot);
            if (air.liftExponent > 0 && air.liftExponent <= kMostLaneExponent &&
                std::abs(ball.theta) <= kMostLaneAngle) {
                put(lane, ball);
                lanes_.density[lane] = air.density;
                lanes_.viscosity[lane] = air.viscosity;
                lanes_.headWind[lane] = air.headWind;
                lanes_.liftExponent[lane] = air.liftExponent;
                lanes_.t[lane] = 0;
                lanes_.topX[lane] = 0;
                lanes_.topY[lane] = 0;
                return true;
            }
            single_.fly(*flights_[lane].number);
        }
        return false;
    }

    /// Takes a flight out of its lane if it has come to its end.
    bool ended(std::size_t lane) {
        const FlightState ball = get(lanes_.now(), lane);
        const std::size_t number = *flights_[lane].number;
        if (!hasResult(ball)) {
            single_.fly(number); // it names the fault
            return true;
        }
        if (!(ball.y < 0)) {
            if (flights_[lane].steps < kMostSteps)
                return false;
            queue_.outcome(number) = without(Fault::TooManySteps);
            return true;
        }
        const auto figures = landingFigures(ball);
        if (!figures) {
            queue_.outcome(number) = without(figures.why());
            return true;
        }
        queue_.outcome(number) = {
            .fault = std::nullopt,
            .carry = figures->carry,
            .roll = figures->roll,
            .time = lanes_.t[lane],
            .top = {lanes_.topX[lane], lanes_.topY[lane]},
            .beforeLanding = inYards(lanes_.before().x[lane], lanes_.before().y[lane]),
            .landing = inYards(ball.x, ball.y),
        };
        return true;
    }

    void redo(std::size_t lane) {
        FlightState ball = get(lanes_.before(), lane);
        advance(ball, {lanes_.density[lane], lanes_.viscosity[lane], lanes_.headWind[lane],
                       lanes_.liftExponent[lane]});
        put(lane, ball);
    }

    static FlightState get(const LaneBalls& balls, std::size_t lane) {
        return {.x = balls.x[lane],
                .y = balls.y[lane],
                .vx = balls.vx[lane],
                .vy = balls.vy[lane],
                .w = balls.w[lane],
                .theta = balls.theta[lane]};
    }

    void put(std::size_t lane, const FlightState& ball) {
        lanes_.now().x[lane] = ball.x;
        lanes_.now().y[lane] = ball.y;
        lanes_.now().vx[lane] = ball.vx;
        lanes_.now().vy[lane] = ball.vy;
        lanes_.now().w[lane] = ball.w;
        lanes_.now().theta[lane] = ball.theta;
    }

    Queue& queue_;
    SingleFlights single_;
    const LaneWay& way_;
    Lanes lanes_{};
    PerLane<Flight> flights_;
};

void flyShare(Queue& queue, const LaneWay* lanes) {
    if (lanes != nullptr)
        LaneFlights(queue, *lanes).flyAll();
    else
        SingleFlights(queue).flyAll();
}

} // namespace

FlightOutcome outcomeOf(const RunRecord& record) {
    const auto& path = record.Path;
    const auto lower = [](const TrajectoryPoint& a, const TrajectoryPoint& b) { return a.y < b.y; };
    return {
        .fault = std::nullopt,
        .carry = record.CarryDist,
        .roll = record.GreenRoll,
        .time = record.CarryTime,
        .top = *std::max_element(path.begin(), path.end(), lower),
        .beforeLanding = path[path.size() - 2],
        .landing = path.back(),
    };
}

FlightMeans bestFlightMeans() {
    const auto& ways = laneWays();
    return {ways.empty() ? nullptr : &ways.front(),
            std::max(1U, std::thread::hardware_concurrency())};
}

std::vector<FlightOutcome> SimulateFlights(std::span<const ShotState> shots, std::stop_token stop,
                                           const FlightMeans& means) {
    constexpr std::size_t kShotsOfThread = 64; // fewer don't pay for the start of a thread
    const std::size_t threads =
        std::min<std::size_t>(means.threads, shots.size() / kShotsOfThread + 1);
    std::vector<FlightOutcome> outcomes(shots.size());
    Queue queue(shots, outcomes, std::move(stop));
    {
        std::vector<std::jthread> others;
        while (others.size() + 1 < threads)
            others.emplace_back(flyShare, std::ref(queue), means.lanes);
        flyShare(queue, means.lanes);
    }
    if (queue.stopped())
        outcomes.clear();
    return outcomes;
}

} // namespace parabolt
