#include "shots/figures.h"
#include "tests/support/shots.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace parabolt::support {
namespace {

// Against the vacuum's closed form, where landing and launch mirror each other.
TEST(Figures, FollowFromThePath) {
    ShotState state{mildShot(0, 30, 0)};
    state.LaunchSpeedMs = 50;
    state.AirViscosity = 1.8e-5F;
    state.WindSpeedMs = 2; // without any air it pushes nothing
    const Figures figures = figuresOf(flightOf(state).record);
    constexpr double kYard = 0.9144;
    EXPECT_NEAR(figures.carry * kYard, 2500 * std::sin(std::numbers::pi / 3) / 9.807, 0.9);
    EXPECT_NEAR(figures.height * kYard, 625 / (2 * 9.807), 0.2);
    EXPECT_NEAR(figures.heightAt, figures.carry / 2, 0.5);
    EXPECT_NEAR(figures.landingAngle, 30, 0.2);
    EXPECT_NEAR(figures.time, 50 / 9.807, 0.011);
    const Figures worked = figuresOf(flightOf(workedShot()).record);
    EXPECT_NEAR(worked.total, 228.37 + 23.1 / 3, 0.03);
    EXPECT_NEAR(worked.landingAngle, std::atan2(38.8, 47.0) * 180 / std::numbers::pi, 0.1);
    Shot failing = workedShot();
    failing.RPM = -100;
    EXPECT_EQ(figuresOf(flightOf(failing).record).height, 0);
}

TEST(Fly, SaysWhyNotAndHowFarItCame) {
    Shot shot;
    shot.h = 200000;
    EXPECT_FALSE(fly(shot).why().flight) << "no air";
    shot.h = 0;
    shot.Mode = OperatingMode::Manual;
    shot.HeadWeight = 0;
    EXPECT_EQ(fly(shot).why().fault, Fault::DivisionByZero);
    EXPECT_FALSE(fly(shot).why().flight) << "no launch";
    shot.HeadWeight = 198;
    const auto flown = fly(shot);
    ASSERT_TRUE(flown);
    EXPECT_EQ(flown->shot.RPM, 2600) << "the launch that was computed";
    EXPECT_EQ(flown->record.Mode, OperatingMode::Manual);
    shot.Mode = OperatingMode::Launch;
    shot.RPM = -100;
    EXPECT_EQ(fly(shot).why().flight->record.Path.size(), 1U);
}

} // namespace
} // namespace parabolt::support
