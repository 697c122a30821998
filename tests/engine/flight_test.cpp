#include "tests/support/shots.h"

#include <bit>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <sstream>

namespace parabolt::support {
namespace {

Shot with(Shot shot, double wind, float liftExponent) {
    shot.WindSpeed = wind;
    shot.CD1 = liftExponent;
    return shot;
}

TEST(Flight, GivesTheWorkedFigures) {
    constexpr double kAny = 1e9; // no figure known
    const struct {
        const char* name;
        Shot shot;
        std::size_t steps;
        double carry, carryTolerance; ///< yards
        double roll, rollTolerance;   ///< feet
        double speed, spin;           ///< at the landing; 0 where no figure is known
    } table[] = {
        {"worked", workedShot(), 691, 228.37, 0.005, 23.1, 0.05, 47.0, 2304},
        {"other dimples", with(workedShot(), 0, -0.1F), 788, 235.5, 0.05, 0, kAny, 0, 0},
        {"head wind", with(workedShot(), 10, 0), 711, 205.3, 0.05, 0, kAny, 0, 0},
        {"tail wind", with(workedShot(), -10, 0), 663, 247.5, 0.05, 0, kAny, 0, 0},
        {"no spin", mildShot(144, 9.5F, 0), 194, 103.2, 0.05, 66.5, 0.05, 86.4, 0},
        {"spins back", with(mildShot(30, 50, 22000), 35, 0), 0, 0, kAny, -16, 0.5, 0, 0},
        {"one step", mildShot(30, 0.1F, 0), 1, 0, kAny, 0, kAny, 0, 0},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        const auto& [fault, record] = flightOf(row.shot);
        ASSERT_FALSE(fault);
        const std::size_t steps = record.Path.size() - 1;
        EXPECT_EQ(steps, row.steps > 0 ? row.steps : steps);
        EXPECT_NEAR(record.CarryDist, row.carry, row.carryTolerance);
        EXPECT_NEAR(record.GreenRoll, row.roll, row.rollTolerance);
        EXPECT_NEAR(record.ImpactSpeed, row.speed, row.speed > 0 ? 0.05 : kAny);
        EXPECT_NEAR(record.ImpactSpin, row.spin, row.spin > 0 ? 0.5 : kAny);
        EXPECT_NEAR(record.CarryTime, static_cast<double>(steps) / 100, 1e-3);
        EXPECT_EQ(record.Path.front(), TrajectoryPoint{});
        EXPECT_EQ(record.Path.back().x, record.CarryDist);
        for (std::size_t i = 0; i <= steps; ++i)
            EXPECT_EQ(record.Path[i].y < 0, i == steps);
    }
    // The clock adds 32-bit steps and drifts from the decimal.
    EXPECT_NE(flightOf(workedShot()).record.CarryTime, 6.91F);
}

/// A ball in space, where no air pushes it and no wind either.
ShotState airless(float speedMs, float angle) {
    ShotState shot{mildShot(0, angle, 0)};
    shot.LaunchSpeedMs = speedMs;
    shot.AirViscosity = 1.8e-5F;
    shot.WindSpeedMs = 2;
    return shot;
}

// Without air the path is a parabola, and the integrator's error is known in closed form: advancing
// the position by the new velocity lowers it by g dt t / 2.
TEST(Flight, FollowsTheParabolaWithoutAir) {
    constexpr double kGravity = 9.807;  // m/s2
    constexpr double kTolerance = 4e-3; // metres: 1000 sums of 32 bits
    constexpr double kDegree = 3.14159265358979 / 180;
    for (const float angle : {5.0F, 30.0F, 45.0F, 80.0F}) {
        SCOPED_TRACE(angle);
        const double rise = 50 * std::sin(angle * kDegree);
        const double run = 50 * std::cos(angle * kDegree);
        const auto& [fault, record] = flightOf(airless(50, angle));
        ASSERT_FALSE(fault);
        for (std::size_t i = 0; i < record.Path.size(); ++i) {
            const double t = static_cast<double>(i) / 100;
            EXPECT_NEAR(record.Path[i].x * 0.9144, run * t, kTolerance);
            EXPECT_NEAR(record.Path[i].y * 0.9144,
                        rise * t - kGravity * t * t / 2 - kGravity * 0.01 * t / 2, kTolerance);
        }
        // The offset brings the ball down one step early.
        EXPECT_NEAR(record.CarryTime, 2 * rise / kGravity, 0.0101);
    }
    EXPECT_EQ(SimulateCarry(airless(1e10F, 45)), 0) << "it never comes down";
}

TEST(Flight, EndsWithTheFaultOfItsShot) {
    const struct {
        const char* name;
        float speedMs, angle, spin, wind, density, viscosity;
        Fault fault;
    } table[] = {
        {"top spin", 50, 10, -1, 0, 1.2F, 2e-5F, Fault::InvalidArgument},
        {"ball at rest", 0, 10, 3000, 0, 1.2F, 2e-5F, Fault::DivisionByZero},
        {"ball at rest without spin", 0, 10, 0, 0, 1.2F, 2e-5F, Fault::InvalidArgument},
        {"carried by the wind", 20, 0, 3000, -20, 1.2F, 2e-5F, Fault::DivisionByZero},
        {"faster than a float", 1e20F, 10, 0, 0, 1.2F, 2e-5F, Fault::Overflow},
        {"air without viscosity", 50, 10, 0, 0, 1.2F, 0, Fault::DivisionByZero},
        // So steep and slow that the horizontal speed is exactly 0.
        {"straight up", 1e-40F, 90, 0, 5, 0, 2e-5F, Fault::DivisionByZero},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        ShotState shot = airless(row.speedMs, row.angle);
        shot.RPM = row.spin;
        shot.WindSpeedMs = row.wind;
        shot.AirDensity = row.density;
        shot.AirViscosity = row.viscosity;
        RunRecord record;
        record.CarryDist = 77;
        EXPECT_EQ(whyNot(SimulateFlight(shot, {}, record)), row.fault);
        EXPECT_EQ(record.Path.size(), 1U);
        EXPECT_EQ(record.CarryDist, 77);
        EXPECT_EQ(SimulateCarry(shot), 0);
    }
    // Blown back, the ball gains speed without end until its spin overshoots to the other side.
    const auto& [fault, record] = flightOf(with(mildShot(190, 70, 17000), 51, 0));
    ASSERT_EQ(fault, Fault::InvalidArgument);
    EXPECT_GT(record.Path.size(), 1000U);
    EXPECT_TRUE(std::isfinite(record.Path.back().x + record.Path.back().y));
    EXPECT_EQ(record.CarryDist, 0);
}

// 327.67 seconds are the most that a record holds; the carry alone has no such limit.
TEST(Flight, StopsAtTheLastStepThatARecordCounts) {
    const auto& [fault, record] = flightOf(airless(1700, 89));
    EXPECT_EQ(fault, Fault::TooManySteps);
    EXPECT_EQ(record.Path.size(), 32768U);
    EXPECT_EQ(record.CarryTime, 0);
    EXPECT_GT(SimulateCarry(airless(1700, 89)), record.Path.back().x);
}

// With this exponent, which only a file can bring, the ball rises for ever and turns about in each
// step, and none of its states repeats another.
TEST(Flight, EndsForABallThatNeverComesDown) {
    const Shot shot = with(mildShot(227, 43, 7700), 28, -0.3F);
    EXPECT_EQ(SimulateCarry(*prepare(shot)), 0);
    EXPECT_EQ(flightOf(shot).fault, Fault::TooManySteps);
}

// Whatever a file puts into a shot: both kinds of flight end, and say the same to the last bit.
TEST(Flight, BothKindsEndAndAgree) {
    constexpr float kInf = std::numeric_limits<float>::infinity();
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    float ShotState::*const inputs[] = {
        &ShotState::LaunchAngle, &ShotState::RPM,        &ShotState::LaunchSpeedMs,
        &ShotState::WindSpeedMs, &ShotState::AirDensity, &ShotState::AirViscosity,
        &ShotState::CD1};
    const float values[] = {kNan, kInf, -kInf, 3e38F, -1e5F, 1e-40F, 3200.5, 33, 0.1F, 0, -1};
    const auto base = prepare(workedShot());
    ASSERT_TRUE(base);
    for (const auto first : inputs)
        for (const auto second : inputs)
            for (const float one : values)
                for (const float two : values) {
                    ShotState shot = *base;
                    shot.*first = one;
                    shot.*second = two;
                    const auto& [fault, record] = flightOf(shot);
                    const float carry = SimulateCarry(shot);
                    ASSERT_TRUE(std::isfinite(carry));
                    if (!fault) {
                        ASSERT_EQ(carry, record.CarryDist);
                    } else if (fault != Fault::TooManySteps && !(record.Path.back().y < 0)) {
                        ASSERT_EQ(carry, 0); // and not one whose landing alone overflowed
                    }
                }
}

// Flights down to the last bit, so that no rebuild, compiler or optimisation changes a shot unseen.
TEST(Flight, GoldenFlightsRepeatBitByBit) {
    std::ifstream file(PARABOLT_TEST_DATA "/golden_flights.txt");
    int flights = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        std::istringstream inputs(line);
        Shot shot;
        inputs >> shot.LaunchSpeed >> shot.LaunchAngle >> shot.RPM >> shot.WindSpeed >>
            shot.Temperature >> shot.BaroPressure >> shot.RH >> shot.h >> shot.CD1;
        ASSERT_TRUE(inputs) << line;
        const auto& [fault, record] = flightOf(shot);
        std::ostringstream outcome;
        std::uint64_t hash = 14695981039346656037U; // of Fowler, Noll and Vo, over all points
        for (const TrajectoryPoint& point : record.Path)
            for (const float value : {point.x, point.y})
                hash = (hash ^ std::bit_cast<std::uint32_t>(value)) * 1099511628211U;
        outcome << " | " << record.Path.size() - 1 << std::hex << std::setfill('0');
        for (const float value : {record.CarryDist, record.CarryTime, record.GreenRoll,
                                  record.ImpactSpin, record.ImpactSpeed})
            outcome << ' ' << std::setw(8) << std::bit_cast<std::uint32_t>(value);
        outcome << ' ' << std::setw(16) << hash;
        EXPECT_EQ(line.substr(line.find('|') - 1), fault ? " | fault" : outcome.str()) << line;
        ++flights;
    }
    EXPECT_GE(flights, 12);
}

} // namespace
} // namespace parabolt::support
