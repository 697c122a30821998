#include "cli/shot_inputs.h"

#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "shots/ball_kinds.h"
#include "shots/shot_words.h"
#include "shots/shown_figures.h"

#include <algorithm>
#include <tuple>

namespace parabolt::cli {
namespace {

using Of = ShotInput::Of;

enum Place : std::size_t { BallSpeed, LaunchAngle, Spin };

constexpr std::array<ShotInput, kShotInputs> kInputs = {{
    {limits::kLaunchSpeed, Of::Launch, "ball_speed_mph", "Ball speed [mph]",
     shown::kLaunchSpeed.pattern, &ShotInputs::LaunchSpeed, "Speed of the ball"},
    {limits::kLaunchAngle, Of::Launch, "launch_angle_deg", "Launch angle [deg]",
     shown::kLaunchAngle.pattern, &ShotInputs::LaunchAngle,
     "Launch angle; beside a swing, as measured: the attack angle follows from it"},
    {limits::kSpin, Of::Launch, "spin_rpm", "Spin [rpm]", shown::kSpin.pattern, &ShotInputs::RPM,
     "Back spin"},
    {limits::kHeadSpeed, Of::Swing, "head_speed_mph", "Head speed [mph]", shown::kHeadSpeed.pattern,
     &ShotInputs::HeadSpeed, "Speed of the club head at impact"},
    {limits::kCor, Of::Swing, "cor", "COR", shown::kCor.pattern, &ShotInputs::COR,
     "Coefficient of restitution"},
    {limits::kHeadWeight, Of::Swing, "head_weight_g", "Head weight [g]", shown::kHeadWeight.pattern,
     &ShotInputs::HeadWeight, "Mass of the club head"},
    {limits::kLoftAngle, Of::Swing, "loft_deg", "Loft [deg]", shown::kLoftAngle.pattern,
     &ShotInputs::LoftAngle, "Loft"},
    {limits::kBending, Of::Swing, "bend_deg", "Bend [deg]", shown::kBending.pattern,
     &ShotInputs::Bending, "Bend of the shaft at impact; adds to the loft"},
    {limits::kAttackAngle, Of::Swing, "attack_angle_deg", "Attack angle [deg]",
     shown::kAttackAngle.pattern, &ShotInputs::AttackAngle, "Attack angle, positive upward"},
    {limits::kAltitude, Of::Air, "altitude_ft", "Altitude [ft]", "0", &ShotInputs::h,
     "Altitude of the course"},
    {limits::kWind, Of::Air, "wind_mph", "Wind [mph]", shown::kWindSpeed.pattern,
     &ShotInputs::WindSpeed, "Wind along the line, above 0 against the ball"},
    {limits::kPressure, Of::Air, "pressure_inhg", "Pressure [inHg]", shown::kPressure.pattern,
     &ShotInputs::BaroPressure, "Air pressure as read at sea level"},
    {limits::kTemperature, Of::Air, "temperature_deg_f", "Temperature [deg F]",
     shown::kTemperature.pattern, &ShotInputs::Temperature, "Temperature"},
    {limits::kHumidity, Of::Air, "humidity_percent", "Humidity [%]", shown::kHumidity.pattern,
     &ShotInputs::RH, "Relative humidity"},
}};

void store(ShotInputs& shot, const ShotInput& input, double value) {
    if (const auto* narrow = std::get_if<float ShotInputs::*>(&input.member))
        shot.*(*narrow) = store32(value);
    else
        shot.*std::get<double ShotInputs::*>(input.member) = value;
}

} // namespace

double ShotInput::valueIn(const ShotInputs& shot) const {
    return std::visit([&](auto value) { return static_cast<double>(shot.*value); }, member);
}

std::span<const ShotInput, kShotInputs> shotInputs() {
    return kInputs;
}

std::string_view keyWithoutUnit(const ShotInput& input) {
    if (input.heading.find(" [") == std::string_view::npos)
        return input.key;
    constexpr std::string_view kInTwoWords = "_deg_f";
    return input.key.substr(0, input.key.ends_with(kInTwoWords)
                                   ? input.key.size() - kInTwoWords.size()
                                   : input.key.rfind('_'));
}

std::optional<std::size_t> shotInputNamed(std::string_view name) {
    const std::string lower = lowerCase(name);
    for (std::size_t i = 0; i < kInputs.size(); ++i)
        if (lower == kInputs[i].key || lower == keyWithoutUnit(kInputs[i]) ||
            lower == lowerCase(kInputs[i].heading))
            return i;
    return std::nullopt;
}

Outcome<void, std::string> ShotRequest::set(std::size_t input, std::string_view text) {
    const ShotInput& rule = kInputs.at(input);
    const auto value = parseNumber(text);
    if (!value)
        return because(std::string(rule.noNumber()));
    if (!rule.hold(*value))
        return because(std::string(rule.rangeMessage));
    values_.at(input) = *value;
    given_.set(input);
    return {};
}

Outcome<void, std::string> ShotRequest::setClub(std::string_view text) {
    club_ = clubNamed(text, *clubs_);
    if (!club_)
        return because("There is no club \"" + std::string(text) +
                       "\". Give one such as W1 or Driver, I7 or 7i, PW.");
    return {};
}

Outcome<void, std::string> ShotRequest::setBall(std::string_view text) {
    const auto number = parseNumber(text);
    for (std::size_t i = 0; i < kBallKinds.size(); ++i)
        if (number == kBallKinds.at(i).BallType ||
            lowerCase(text) == lowerCase(ballName(kBallKinds.at(i).BallType))) {
            ball_ = i;
            return {};
        }
    return because(std::string("Give a ball from 1 to 4: 1 soft ball, 2 different dimple, 3 larger "
                               "MOI, 4 default."));
}

bool ShotRequest::givesLaunch() const {
    return given_.test(BallSpeed) || given_.test(Spin);
}

bool ShotRequest::asksForSwing() const {
    for (std::size_t i = 0; i < kInputs.size(); ++i)
        if (given_.test(i) && kInputs.at(i).of == Of::Swing)
            return true;
    return club_.has_value();
}

Outcome<Shot, std::string> ShotRequest::shot() const {
    Shot shot;
    shot.IsWood = true;
    kBallKinds.at(ball_).applyTo(shot);
    if (asksForSwing()) {
        if (givesLaunch())
            return because(std::string("Give either a launch (ball speed, spin) or a swing (club, "
                                       "head speed and the like), not both."));
        if (auto taken = takeClub(shot); !taken)
            return because(taken.why());
    }
    for (std::size_t i = 0; i < kInputs.size(); ++i)
        if (given_.test(i))
            store(shot, kInputs.at(i), values_.at(i));
    if (shot.Mode != OperatingMode::Launch && given_.test(LaunchAngle)) {
        shot.Mode = OperatingMode::Actual;
        shot.sources = {.club = std::nullopt,
                        .wholeRecord = false,
                        .measuredLaunchAngle = values_.at(LaunchAngle)};
    }
    return shot;
}

/// Lays the values of the club into the shot, as choosing it does on the form: by way of the texts
/// of its fields.
Outcome<void, std::string> ShotRequest::takeClub(Shot& shot) const {
    shot.Mode = OperatingMode::Manual;
    if (!club_)
        return {};
    const ClubRecord& club = recordOf(*clubs_, *club_);
    shot.IsWood = !club_->iron;
    shot.ClubNo = club_->number;
    const auto fields =
        std::to_array<std::tuple<const InputLimits&, float ShotInputs::*, std::string>>({
            {limits::kHeadSpeed, &ShotInputs::HeadSpeed, shortestText(club.HeadSpeed)},
            {limits::kCor, &ShotInputs::COR, formatPattern(club.COR, "0.00")},
            {limits::kHeadWeight, &ShotInputs::HeadWeight, shortestText(club.HeadWeight)},
            {limits::kLoftAngle, &ShotInputs::LoftAngle, shortestText(club.LoftAngle)},
            {limits::kBending, &ShotInputs::Bending, shortestText(club.Bending)},
            {limits::kAttackAngle, &ShotInputs::AttackAngle, shortestText(club.AttackAngle)},
        });
    for (const auto& [limits, member, text] : fields) {
        const auto value = parseNumber(text);
        if (!value || !limits.hold(*value))
            return because(usualName(*club_) + ": " + std::string(limits.rangeMessage));
        shot.*member = store32(*value);
    }
    const auto ofClub = [this](std::size_t i) {
        return given_.test(i) && kInputs.at(i).of == Of::Swing &&
               kInputs.at(i).key != "head_speed_mph";
    };
    bool changed = false;
    for (std::size_t i = 0; i < kInputs.size(); ++i)
        changed = changed || ofClub(i);
    if (!changed) {
        shot.Mode = OperatingMode::Default;
        shot.sources.club = club;
    }
    return {};
}

} // namespace parabolt::cli
