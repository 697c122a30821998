#pragma once

#include "engine/shot_state.h"

#include <string_view>

namespace parabolt {

/// A quantity of a recorded shot, as the program shows it to people.
struct ShownFigure {
    float RunRecord::*field;  ///< the quantity
    std::string_view pattern; ///< of `formatPattern`
};

/// The quantities of a record and the digits in which all tables of results show them.
namespace shown {

/// A quantity with its digits.
/// @{
inline constexpr ShownFigure kCarryTime{&RunRecord::CarryTime, ".00"};
inline constexpr ShownFigure kCarryDist{&RunRecord::CarryDist, "0"};
inline constexpr ShownFigure kLaunchSpeed{&RunRecord::LaunchSpeed, ".0"};
inline constexpr ShownFigure kImpactSpeed{&RunRecord::ImpactSpeed, ".0"};
inline constexpr ShownFigure kLaunchAngle{&RunRecord::LaunchAngle, ".0"};
inline constexpr ShownFigure kSpin{&RunRecord::RPM, "0"};
inline constexpr ShownFigure kImpactSpin{&RunRecord::ImpactSpin, "0"};
inline constexpr ShownFigure kGreenRoll{&RunRecord::GreenRoll, ".0"};
inline constexpr ShownFigure kHeadSpeed{&RunRecord::HeadSpeed, ".0"};
inline constexpr ShownFigure kHeadWeight{&RunRecord::HeadWeight, ".0"};
inline constexpr ShownFigure kLoftAngle{&RunRecord::LoftAngle, ".0"};
inline constexpr ShownFigure kAttackAngle{&RunRecord::AttackAngle, "0.0"};
inline constexpr ShownFigure kBending{&RunRecord::Bending, "0.0"};
inline constexpr ShownFigure kCor{&RunRecord::COR, "0.00"};
inline constexpr ShownFigure kWindSpeed{&RunRecord::WindSpeed, "0"};
inline constexpr ShownFigure kPressure{&RunRecord::BaroPressure, ".0"};
inline constexpr ShownFigure kTemperature{&RunRecord::Temperature, "0"};
inline constexpr ShownFigure kHumidity{&RunRecord::RH, "0"};
/// @}

} // namespace shown

/// How the result table codes an operating mode: "LM"; empty for a number that is none.
std::string_view modeCode(std::int16_t mode);

} // namespace parabolt
