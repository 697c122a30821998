#pragma once

#include "measured/club_names.h"
#include "measured/club_statistics.h"
#include "shots/input_limits.h"

namespace parabolt {

/// A club as the user has it in the bag, or hasn't.
struct BagClub {
    ClubId club;
    std::string name;
    bool owned = true;
    friend bool operator==(const BagClub&, const BagClub&) = default;
};

/// Where the head speeds come from.
enum class HeadSpeeds {
    OfSet,   ///< from the record of each club
    Falling, ///< the first wood and the first iron have the speed given, each next club less
};

/// What the user has chosen of the bag.
struct BagChoice {
    std::vector<BagClub> clubs; ///< all of the set
    HeadSpeeds speeds = HeadSpeeds::OfSet;
    float firstSpeed = 100; ///< mph, for falling speeds
    float fall = 1;         ///< mph from club to club
    double narrowest = 8;   ///< yards: a gap below is too narrow
    double widest = 18;     ///< yards: a gap above is too wide
    friend bool operator==(const BagChoice&, const BagChoice&) = default;
};

namespace limits {

/// The limits of what the user chooses of the bag, beside those of the head speed.
/// @{
inline constexpr InputLimits kBagFall{
    0, 5, "Enter a value between 0 and 5 mph for the fall of the head speed.", {}};
inline constexpr InputLimits kBagGap{
    0, 100, "Enter a value between 0 and 100 yards for a good gap.", {}};
/// @}

} // namespace limits

/// The usual names, and fourteen clubs owned: as many as the rules allow.
BagChoice usualBag();

/// A club's flight.
struct BagFlight {
    std::size_t at = 0;       ///< the club in the choice
    float headSpeed = 0;      ///< mph
    std::string_view problem; ///< for the user: why there is no flight; empty if there is one
    Figures figures;          ///< zero without a flight
    /// The carry by which gaps are told: the model's.
    double carry() const { return figures.carry; }
};

/// Flies the clubs owned, by the impact model, in the weather and with the ball of the conditions;
/// in the order of the choice. The whole record of each club counts, but for a falling head speed.
/// A head speed outside the limits of the main form's field is not flown.
std::vector<BagFlight> flyBag(const BagChoice& choice, const ClubTables& tables,
                              const Shot& conditions);

/// What was measured with a club of the bag, in short, by the device's figures.
struct BagMeasured {
    std::optional<Spread> carry; ///< yards
    std::optional<Spread> total; ///< yards
};
struct MeasuredBag {
    std::vector<BagMeasured> clubs;     ///< for each club of the choice
    std::vector<std::string> strangers; ///< clubs as measured that are none of those owned
};
/// The measured shots that count, by the clubs of the bag, owned or not: all shots with the name of
/// a club, or with a text that means it, count together.
MeasuredBag measuredBag(const BagChoice& choice, std::span<const MeasuredEntry> entries,
                        const ClubTables& tables, const ClubAnswers& answers);

/// The distance between two neighbours in carry.
struct BagGap {
    enum class Kind { Good, TooNarrow, TooWide };
    std::size_t shorter = 0; ///< element of the flights
    std::size_t longer = 0;
    double yards = 0; ///< from 0
    Kind kind = Kind::Good;
    friend bool operator==(const BagGap&, const BagGap&) = default;
};
/// The gaps between neighbours, from the longest carry down; flights that failed are left out.
std::vector<BagGap> gapsOf(std::span<const BagFlight> flights, double narrowest, double widest);
/// The same between carries that come from elsewhere, such as the means of measured clubs.
std::vector<BagGap> gapsBetween(std::span<const double> carries, double narrowest, double widest);

} // namespace parabolt
