// Balls side by side in the vectors of the processor, with the bits of the scalar step. Everything
// but sine, cosine, arctangent, logarithm and exponential is exact in a vector as it is in a
// scalar: the same operations in the same order. Those five differ in their last bits from the
// scalar library's, but only the stores of a few quantities depend on them, and a store keeps 29
// bits less: where both ends of the error bound round to the same 32-bit number, that number is the
// scalar one. Where they don't, the lane is unsure.
//
// No scalar formula stands in here: gcc 12 has lost roundings of scalar code that it vectorised
// inside of a region for another target.
#include "engine/lanes.h"

#include "engine/flight_step.h"

#include <iterator>

// Vectors older than SSE4 win little. Those without a fixed length can't stand in a structure.
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)
// The file compiles itself once for each of them.
#define HWY_TARGET_INCLUDE "engine/lanes.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>
// After highway.h: it is made for the target at hand.
#include <hwy/contrib/math/math-inl.h>

HWY_BEFORE_NAMESPACE();
namespace parabolt::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

LaneWay laneWay() {
    return {};
}

#else

namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::ScalableTag<double> kDoubles;
constexpr hn::Rebind<float, hn::ScalableTag<double>> kFloats; ///< as many, half as wide
using Doubles = hn::Vec<hn::ScalableTag<double>>;
using Floats = hn::Vec<hn::Rebind<float, hn::ScalableTag<double>>>;
using FloatMask = hn::Mask<hn::Rebind<float, hn::ScalableTag<double>>>;

// Formulas wait for their operands most of the time: three vectors fill each other's pauses.
constexpr std::size_t kVectors = 3;
constexpr std::size_t kLanesOfVector = hn::MaxLanes(kDoubles);
static_assert(kVectors * kLanesOfVector <= kMostLanes);

// Bound of the relative error against the scalar result: 1024 units of the last place. The vector
// functions are off by 4 units at most and the scalar ones by 1. An argument that was off itself
// adds its absolute error: at most 104 x 5 units to the power below, as 104 is the logarithm of the
// least 32-bit number, and 160 x 3 to the sine of the drag, whose argument goes up to 160.
constexpr double kBound = 0x1p-42;
constexpr float kMostSpin = 1e+30F;
constexpr float kMostReynolds = 1e+7F;

// Above it the sum of a lane's quantities is infinite, or so large that the scalar check must
// decide.
constexpr float kMostSum = 1e+30F;

HWY_INLINE Doubles all(double value) {
    return hn::Set(kDoubles, value);
}

HWY_INLINE Floats all32(float value) {
    return hn::Set(kFloats, value);
}

HWY_INLINE Doubles widen(Floats values) {
    return hn::PromoteTo(kDoubles, values);
}

HWY_INLINE Doubles load(const float* lanes) {
    return widen(hn::Load(kFloats, lanes));
}

HWY_INLINE Floats store32(Doubles values) {
    return hn::DemoteTo(kFloats, values);
}

/// Rounds values of which only so much is known; lanes for which that isn't enough are unsure.
HWY_INLINE Floats store32(Doubles values, Doubles error, FloatMask& sure) {
    const Floats low = store32(values - error);
    const Floats high = store32(values + error);
    sure = hn::And(sure, hn::Eq(low, high));
    return low;
}

/// The quantities of one step of one vector that live beyond a formula; as in `advance`.
struct Step {
    Doubles density, speedSquared, spin, vx, vy, w;
    Doubles lift, drag, cosTheta, sinTheta;
    FloatMask sure; ///< lanes whose results are those of the scalar step
    FloatMask up;   ///< lanes that are above the ground and have a result
};

/// What the outcome needs of the path: the clock runs on, and the highest point so far is kept.
HWY_INLINE void keepTime(Lanes& lanes, const LaneBalls& from, std::size_t i) {
    const Floats t = hn::Load(kFloats, lanes.t.data() + i);
    hn::Store(t + all32(kTimeStep), kFloats, lanes.t.data() + i);

    const Floats x = store32(load(from.x.data() + i) * all(kYardsPerMetre));
    const Floats y = store32(load(from.y.data() + i) * all(kYardsPerMetre));
    const Floats topX = hn::Load(kFloats, lanes.topX.data() + i);
    const Floats topY = hn::Load(kFloats, lanes.topY.data() + i);
    const FloatMask higher = hn::Gt(y, topY);
    hn::Store(hn::IfThenElse(higher, x, topX), kFloats, lanes.topX.data() + i);
    hn::Store(hn::IfThenElse(higher, y, topY), kFloats, lanes.topY.data() + i);
}

HWY_INLINE void meetAir(Step& step, const Lanes& lanes, const LaneBalls& from, std::size_t i) {
    step.density = load(lanes.density.data() + i);
    step.vx = load(from.vx.data() + i);
    step.vy = load(from.vy.data() + i);
    step.w = load(from.w.data() + i);
    const Doubles along = step.vx + load(lanes.headWind.data() + i);
    step.speedSquared = widen(store32(step.vy * step.vy + along * along));
    const Doubles speed = hn::Sqrt(step.speedSquared);
    const Floats reynolds =
        store32(((step.density * all(kBallDiameter)) * speed) / load(lanes.viscosity.data() + i));
    const Floats spin = store32(((step.w * all(kBallDiameter)) * all(0.5)) / speed);
    step.spin = widen(spin);

    step.sure = hn::And(hn::And(hn::Ge(spin, all32(0)), hn::Le(spin, all32(kMostSpin))),
                        hn::Le(hn::Abs(reynolds), all32(kMostReynolds)));
    // The sine's argument may be off by a few units: here a product does for the quotient.
    step.drag = (widen(reynolds) - all(kDragMiddle)) * all(kFlightPi / kDragHalfWave);
}

HWY_INLINE void computeLift(Step& step) {
    const Doubles power = hn::Exp(kDoubles, step.lift);
    const Doubles lift = hn::IfThenElseZero(hn::Ne(step.spin, all(0)), power) * all(kLiftFactor);
    step.lift = widen(store32(lift, lift * all(kBound), step.sure));
}

HWY_INLINE void computeDrag(Step& step) {
    const Doubles ofSpin = step.spin * all(kDragPerSpin) + all(kDragAtRest);
    step.drag = widen(store32(ofSpin + all(kDragSwing) * hn::Sin(kDoubles, step.drag),
                              (ofSpin + all(kDragSwing)) * all(kBound), step.sure));
}

/// The speed behind a step, from that before it and the three parts of the acceleration. The parts
/// may cancel each other, so that the bound goes by their sizes. What counts is that the speed is
/// sure: the acceleration, far smaller, mostly leaves no trace of its last digits there.
HWY_INLINE Floats speedUp(Doubles speed, Doubles ofWeight, Doubles ofOne, Doubles ofOther,
                          FloatMask& sure) {
    const Doubles acceleration = (ofOne + ofWeight) + ofOther;
    const Doubles error = (hn::Abs(ofOne) + hn::Abs(ofOther) + hn::Abs(ofWeight)) * all(kBound);
    const Doubles dt = all(kTimeStep);
    const Floats low = store32(widen(store32(acceleration - error)) * dt + speed);
    const Floats high = store32(widen(store32(acceleration + error)) * dt + speed);
    sure = hn::And(sure, hn::Eq(low, high));
    return low;
}

HWY_INLINE void move(Step& step, const LaneBalls& from, LaneBalls& to, std::size_t i) {
    constexpr double kDiameter = kBallDiameter;
    constexpr double kDiameterSquared = kDiameter * kDiameter;
    constexpr double kDiameterCubed = kDiameterSquared * kDiameter;
    // Of the divisors, the powers of two are exact as factors too.
    const Doubles decay = widen(store32(step.spin * all(kDecayPerSpin)));
    const auto force = [&](Doubles coefficient, double diameters, double part) HWY_ATTR {
        return widen(
            store32(((((coefficient * step.density) * step.speedSquared) * all(kFlightPi)) *
                     all(diameters)) *
                    all(part)));
    };
    const Doubles dragForce = force(step.drag, kDiameterSquared, 1.0 / 8);
    const Doubles liftForce = force(step.lift, kDiameterSquared, 1.0 / 8);
    const Doubles moment = force(decay, kDiameterCubed, 1.0 / 16);

    // Again products do for the quotients, but not for the spin's, which must be exact.
    const Doubles perMass = all(1 / double{kBallMass});
    const Floats vx = speedUp(step.vx, all(0), hn::Neg(dragForce) * step.cosTheta * perMass,
                              hn::Neg(liftForce) * step.sinTheta * perMass, step.sure);
    const Floats vy =
        speedUp(step.vy, all(kBallWeight / double{kBallMass}), liftForce * step.cosTheta * perMass,
                hn::Neg(dragForce) * step.sinTheta * perMass, step.sure);
    const Floats aw = store32(hn::Neg(moment) / all(kBallInertia));

    const Doubles dt = all(kTimeStep);
    const Floats w = store32(widen(aw) * dt + step.w);
    step.vx = widen(vx);
    step.vy = widen(vy);
    const Floats x = store32(step.vx * dt + load(from.x.data() + i));
    const Floats y = store32(step.vy * dt + load(from.y.data() + i));
    hn::Store(vx, kFloats, to.vx.data() + i);
    hn::Store(vy, kFloats, to.vy.data() + i);
    hn::Store(w, kFloats, to.w.data() + i);
    hn::Store(x, kFloats, to.x.data() + i);
    hn::Store(y, kFloats, to.y.data() + i);

    const Floats sum = hn::Abs(((x + y) + (vx + vy)) + w);
    step.up =
        hn::And(hn::And(hn::Lt(sum, all32(kMostSum)), hn::Ne(vx, all32(0))), hn::Ge(y, all32(0)));
}

HWY_INLINE void turn(Step& step, LaneBalls& to, std::size_t i) {
    const Doubles theta = hn::Atan(kDoubles, step.vy / step.vx);
    hn::Store(store32(theta, hn::Abs(theta) * all(kBound), step.sure), kFloats,
              to.theta.data() + i);
}

/// One step of all lanes; false if one of them needs a look.
HWY_INLINE bool advanceAll(Lanes& lanes) {
    lanes.turn = 1 - lanes.turn;
    const LaneBalls& from = lanes.before();
    LaneBalls& to = lanes.now();
    std::array<Step, kVectors> steps;
    const auto each = [&](auto formulas) HWY_ATTR {
        formulas(steps[0], 0);
        formulas(steps[1], kLanesOfVector);
        formulas(steps[2], 2 * kLanesOfVector);
    };
    each([&](Step&, std::size_t i) HWY_ATTR { keepTime(lanes, from, i); });
    each([&](Step& step, std::size_t i) HWY_ATTR { meetAir(step, lanes, from, i); });
    each([&](Step& step, std::size_t i) HWY_ATTR {
        step.lift =
            hn::Load(kDoubles, lanes.liftExponent.data() + i) * hn::Log(kDoubles, step.spin);
    });
    each([&](Step& step, std::size_t) HWY_ATTR { computeLift(step); });
    each([&](Step& step, std::size_t) HWY_ATTR { computeDrag(step); });
    each([&](Step& step, std::size_t i)
             HWY_ATTR { step.cosTheta = hn::Cos(kDoubles, load(from.theta.data() + i)); });
    each([&](Step& step, std::size_t i)
             HWY_ATTR { step.sinTheta = hn::Sin(kDoubles, load(from.theta.data() + i)); });
    each([&](Step& step, std::size_t i) HWY_ATTR { move(step, from, to, i); });
    each([&](Step& step, std::size_t i) HWY_ATTR { turn(step, to, i); });

    auto fine = hn::And(steps[0].up, steps[0].sure);
    for (std::size_t k = 1; k < kVectors; ++k)
        fine = hn::And(fine, hn::And(steps[k].up, steps[k].sure));
    if (HWY_LIKELY(hn::AllTrue(kFloats, fine)))
        return true;
    for (std::size_t k = 0; k < kVectors; ++k) {
        std::uint8_t unsure[8] = {}; // as many as the library asks for
        hn::StoreMaskBits(kFloats, hn::Not(steps[k].sure), unsure);
        lanes.unsure |= std::uint32_t{unsure[0]} << (k * kLanesOfVector);
    }
    return false;
}

int flyOn(Lanes& lanes, int most) {
    lanes.unsure = 0;
    int steps = 0;
    bool fine = true;
    while (fine && steps < most) {
        fine = advanceAll(lanes);
        ++steps;
    }
    return steps;
}

LaneWay laneWay() {
    return {hwy::TargetName(HWY_TARGET), kVectors * kLanesOfVector, flyOn};
}

#endif

} // namespace parabolt::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace parabolt {

HWY_EXPORT(laneWay);

const std::vector<LaneWay>& laneWays() {
    static const std::vector<LaneWay> ways = [] {
        std::vector<LaneWay> found;
        for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
            hwy::ChosenTarget chosen;
            chosen.Update(target);
            const auto& table = HWY_DISPATCH_TABLE(laneWay);
            const LaneWay way = table[std::size(table) > 1 ? chosen.GetIndex() : 0]();
            if (way.lanes > 0)
                found.push_back(way);
        }
        return found;
    }();
    return ways;
}

} // namespace parabolt
#endif
