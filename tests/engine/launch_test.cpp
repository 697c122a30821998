#include "engine/air.h"
#include "engine/impact.h"
#include "tests/support/shots.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace parabolt::support {
namespace {

constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

TEST(Air, GivesTheWorkedFigures) {
    const struct {
        float temperature, pressure, humidity, altitude;
        double stationPressure, density;
        double viscosity;          ///< in 1e-5 Pa s; 0 if no figure is known
        double tolerance = 0.5e-5; ///< of the last two
    } table[] = {
        {70, 29.92F, 50, 0, 29.92, 1.20004, 1.81959},
        {70, 29.92F, 50, 5000, 24.8923, 0.99864, 1.81959},
        {100, 29.92F, 100, 0, 29.92, 1.13546, 1.89810},
        {70, 29.92F, 0, 0, 29.92, 1.20010, 1.81959},
        // The international standard atmosphere at 0 and 1500 m, within the model's rounding.
        {59, 29.92F, 0, 0, 29.92, 1.225, 1.7894, 2e-3},
        {41.45F, 29.92F, 0, 4921.26F, 24.97, 1.0581, 1.7419, 3e-3},
        {40, 29.92F, 0, 0, 29.92, 1.27219, 0},
        {40, 29.926F, 0, 0, 29.926, 1.27219, 0}, // pressure moves in whole hectopascals
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.temperature + row.humidity + row.altitude);
        ShotState shot;
        shot.Temperature = row.temperature;
        shot.BaroPressure = row.pressure;
        shot.RH = row.humidity;
        shot.h = row.altitude;
        shot.WindSpeed = -10;
        ASSERT_TRUE(ComputeEnvironment(shot));
        EXPECT_NEAR(shot.StationPressure, row.stationPressure, row.tolerance * 10);
        EXPECT_NEAR(shot.AirDensity, row.density, row.tolerance);
        EXPECT_NEAR(shot.AirViscosity * 1e5, row.viscosity, row.viscosity > 0 ? row.tolerance : 9);
        EXPECT_FLOAT_EQ(shot.WindSpeedMs, -4.4704F);
    }
}

/// A driver swing.
ShotState swing() {
    ShotState shot{workedShot()};
    shot.HeadSpeed = 100;
    shot.LoftAngle = 10;
    shot.HeadWeight = 198;
    shot.COR = 0.83F;
    return shot;
}

// What only a file can bring: no value may come through that a flight would go on with.
TEST(Launch, ReportsAShotWithoutAResult) {
    for (const auto input :
         {&ShotState::Temperature, &ShotState::BaroPressure, &ShotState::RH, &ShotState::h,
          &ShotState::HeadSpeed, &ShotState::HeadWeight, &ShotState::LoftAngle, &ShotState::Bending,
          &ShotState::AttackAngle, &ShotState::COR, &ShotState::Slope1})
        for (const float value : {kNan, kInf, -kInf, 3e38F, -3e38F, 1e9F, -1e9F, 1e-40F, 0.0F}) {
            ShotState shot = swing();
            shot.*input = value;
            EXPECT_TRUE(!ComputeEnvironment(shot) ||
                        std::isfinite(shot.AirDensity + shot.AirViscosity + shot.StationPressure));
            EXPECT_TRUE(!GetLoftAngle(shot, {}) ||
                        std::isfinite(shot.RPM + shot.LaunchAngle + shot.LaunchSpeed));
        }
    ShotState shot = swing();
    shot.h = 200000; // colder than nothing
    EXPECT_EQ(whyNot(ComputeEnvironment(shot)), Fault::InvalidArgument);
    shot.HeadWeight = 0;
    EXPECT_EQ(whyNot(GetLoftAngle(shot, {})), Fault::DivisionByZero);
    shot.HeadWeight = 200;
    shot.HeadSpeed = 3e38F;
    EXPECT_EQ(whyNot(GetLoftAngle(shot, {})), Fault::Overflow);
}

TEST(Impact, GivesTheWorkedFigures) {
    const struct {
        float loft, headSpeed, bending, slope, attack, rpm;
        double angle, speed;
    } table[] = {
        {10, 100, 0, 0, 0, 2600, 8.7744, 148.356},
        {10, 100, 2, 0.5F, 0, 3720, 10.3725, 147.673},
        {10, 100, 2, 0.5F, 3, 3720, 13.3725,
         147.673},                   // the attack turns the launch and nothing else
        {0.5F, 5, 0, 0, 0, 6, 0, 0}, // 6.5 rpm and 19.5 rpm, rounded half to even
        {0.5F, 15, 0, 0, 0, 20, 0, 0},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.attack);
        ShotState shot = swing();
        shot.Bending = row.bending;
        shot.Slope1 = row.slope;
        shot.AttackAngle = row.attack;
        shot.LoftAngle = row.loft;
        shot.HeadSpeed = row.headSpeed;
        ASSERT_TRUE(GetLoftAngle(shot, {}));
        EXPECT_EQ(shot.RPM, row.rpm);
        EXPECT_NEAR(shot.LaunchAngle, row.angle, row.angle > 0 ? 0.5e-4 : 1);
        EXPECT_NEAR(shot.LaunchSpeed, row.speed, row.angle > 0 ? 0.5e-3 : 99);
    }
}

TEST(Impact, AMeasuredAngleGivesTheAttackBack) {
    const std::pair<double, float> table[] = {{12.3, 3.5F}, {8.8, 0.0F}, {8.5, -0.3F}, {8, -0.8F}};
    for (const auto& [measured, attack] : table) {
        ShotState shot = swing();
        shot.AttackAngle = 7;
        ASSERT_TRUE(GetLoftAngle(shot, {std::nullopt, false, measured}));
        EXPECT_EQ(shot.AttackAngle, attack);
        EXPECT_EQ(shot.LaunchAngle, static_cast<float>(measured));
        EXPECT_EQ(shot.RPM, 2600);
    }
}

} // namespace
} // namespace parabolt::support
