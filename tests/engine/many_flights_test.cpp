#include "engine/lanes.h"
#include "engine/many_flights.h"
#include "numbers/rounding.h"
#include "tests/support/shots.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace parabolt::support {
namespace {

/// Shots drawn at random within the limits of the form's fields.
std::vector<ShotState> drawShots(std::size_t count, std::mt19937& random) {
    const auto draw = [&](double from, double to) {
        return store32(std::uniform_real_distribution(from, to)(random));
    };
    std::vector<ShotState> shots;
    while (shots.size() < count) {
        Shot shot = mildShot(draw(30, 250), draw(0, 55), random() % 8 == 0 ? 0 : draw(0, 22000));
        shot.WindSpeed = draw(-35, 35);
        shot.Temperature = draw(20, 120);
        shot.BaroPressure = draw(25, 34);
        shot.RH = draw(0, 100);
        shot.h = draw(0, 15000);
        shot.CD1 = random() % 2 == 0 ? 0 : -0.1F;
        shots.push_back(*prepare(shot));
    }
    return shots;
}

/// What must agree to the last bit, read off the record of a flight.
std::string figures(const std::optional<Fault>& fault, const RunRecord& record) {
    if (fault)
        return "fault " + std::to_string(static_cast<int>(*fault));
    TrajectoryPoint top;
    for (const TrajectoryPoint& point : record.Path)
        if (point.y > top.y)
            top = point;
    std::string text;
    const auto& path = record.Path;
    for (const float value :
         {record.CarryDist, record.GreenRoll, record.CarryTime, top.x, top.y,
          path[path.size() - 2].x, path[path.size() - 2].y, path.back().x, path.back().y})
        text += std::to_string(std::bit_cast<std::uint32_t>(value)) + ' ';
    return text;
}

std::string figures(const FlightOutcome& flight) {
    RunRecord record;
    record.CarryDist = flight.carry;
    record.GreenRoll = flight.roll;
    record.CarryTime = flight.time;
    record.Path = {flight.top, flight.beforeLanding, flight.landing};
    return figures(flight.fault, record);
}

/// Flies the shots in all lanes of this machine and compares each with its recorded flight.
void expectEqual(const std::vector<ShotState>& shots, std::vector<FlightMeans> means = {}) {
    std::vector<std::string> expected;
    for (const ShotState& shot : shots) {
        const auto& [fault, record] = flightOf(shot);
        expected.push_back(figures(fault, record));
    }
    for (const LaneWay& way : laneWays())
        means.push_back({&way, 2});
    for (const FlightMeans& by : means) {
        SCOPED_TRACE(by.lanes ? by.lanes->name : "one by one");
        const auto flights = SimulateFlights(shots, {}, by);
        ASSERT_EQ(flights.size(), shots.size());
        for (std::size_t i = 0; i < shots.size(); ++i)
            ASSERT_EQ(figures(flights[i]), expected[i]) << "shot " << i;
    }
}

// PARABOLT_ROUNDS=1000 in the environment makes a million of them.
TEST(ManyFlights, EqualTheRecordedFlightBitByBit) {
    const char* setting = std::getenv("PARABOLT_ROUNDS");
    const int rounds = setting ? std::atoi(setting) : 20;
    std::mt19937 random(20261123);
    for (int round = 0; round < rounds && !HasFatalFailure(); ++round)
        expectEqual(drawShots(1000, random));
}

// What a file can bring fails in its own lane; flights of many minutes and of one step lie between.
TEST(ManyFlights, ABrokenShotLeavesTheOthersAlone) {
    constexpr float kInf = std::numeric_limits<float>::infinity();
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    float ShotState::*const inputs[] = {
        &ShotState::LaunchAngle, &ShotState::RPM,        &ShotState::LaunchSpeedMs,
        &ShotState::WindSpeedMs, &ShotState::AirDensity, &ShotState::AirViscosity,
        &ShotState::CD1};
    std::mt19937 random(1);
    std::vector<ShotState> shots;
    for (const auto input : inputs)
        for (const float value : {kNan, kInf, -kInf, 3e38F, -1e5F, 1e20F, 1e-40F, 0.0F, -1.0F}) {
            const auto sound = drawShots(5, random);
            shots.insert(shots.end(), sound.begin(), sound.end());
            shots.back().*input = value;
        }
    expectEqual(shots, {{nullptr, 1}, {nullptr, 3}, bestFlightMeans()});
}

TEST(ManyFlights, FewerThanTheLanesAndNoneAtAll) {
    std::mt19937 random(2);
    for (const std::size_t shots : {0U, 1U, 7U, 30U})
        expectEqual(drawShots(shots, random), {{nullptr, 2}});
}

TEST(ManyFlights, AStopLeavesNothing) {
    std::mt19937 random(3);
    const auto shots = drawShots(100, random);
    std::stop_source source;
    source.request_stop();
    EXPECT_TRUE(SimulateFlights(shots, source.get_token()).empty());
}

} // namespace
} // namespace parabolt::support
