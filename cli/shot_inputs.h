#pragma once

#include "measured/club_names.h"
#include "numbers/outcome.h"
#include "shots/input_limits.h"
#include "shots/shot.h"

#include <array>
#include <bitset>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace parabolt::cli {

/// An input of a shot, as options and columns name it.
struct ShotInput : InputLimits {
    enum class Of { Launch, Swing, Air } of;
    std::string_view key;     ///< "ball_speed_mph": in JSON, and as option --ball-speed-mph
    std::string_view heading; ///< of a column: "Ball speed [mph]"
    std::string_view pattern; ///< of `formatPattern`: the digits that the form shows
    std::variant<float ShotInputs::*, double ShotInputs::*> member;
    std::string_view meaning;

    double valueIn(const ShotInputs& shot) const;
};

inline constexpr std::size_t kShotInputs = 14;

/// All inputs that are numbers, in the order of the form.
std::span<const ShotInput, kShotInputs> shotInputs();
/// "ball_speed", of "ball_speed_mph".
std::string_view keyWithoutUnit(const ShotInput& input);
/// The place of the input that a column names by its heading, or by its key with or without the
/// unit, in any letters.
std::optional<std::size_t> shotInputNamed(std::string_view name);

/// What has been said of a shot, on its way to a shot. Values that nobody gives are those with
/// which the form starts, or those of the club.
///
/// A launch (ball speed, spin) is flown as given. Otherwise the impact model computes it from the
/// swing: with a club of the set, and no other value of a club, as in the mode Default; with a
/// launch angle beside the swing as in the mode Actual; else as in the mode Manual.
class ShotRequest {
public:
    /// `clubs` must outlive the request.
    explicit ShotRequest(const ClubTables& clubs) : clubs_(&clubs) {}

    /// Takes a value for an input, `shotInputs()[input]`; the reason if it refuses it, in the words
    /// of the form.
    Outcome<void, std::string> set(std::size_t input, std::string_view text);
    Outcome<void, std::string> setClub(std::string_view text); ///< "W1", "Driver", "7i"
    Outcome<void, std::string> setBall(std::string_view text); ///< "4", "Larger MOI"

    /// The shot; the reason where what was said doesn't fit together, or the values of the club
    /// leave the limits.
    Outcome<Shot, std::string> shot() const;
    /// Whether a ball speed or a spin was given.
    bool givesLaunch() const;
    /// Whether a swing was given: a club, or a value of one.
    bool asksForSwing() const;

private:
    Outcome<void, std::string> takeClub(Shot& shot) const;

    const ClubTables* clubs_;
    std::array<double, kShotInputs> values_{};
    std::bitset<kShotInputs> given_;
    std::optional<ClubId> club_;
    std::size_t ball_ = 3; ///< element of `kBallKinds`
};

} // namespace parabolt::cli
