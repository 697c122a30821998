#pragma once

#include "clubs/club_tables.h"

#include <compare>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

/// A club of the set.
struct ClubId {
    bool iron = false;
    std::int16_t number = 1; ///< the club's own
    // clang-tidy judges what this expands to.
    // NOLINTNEXTLINE(modernize-use-nullptr,readability-implicit-bool-conversion)
    friend auto operator<=>(const ClubId&, const ClubId&) = default;
};

/// All clubs of the set, woods first, by number: those of the editor.
std::vector<ClubId> clubsOfSet();
const ClubRecord& recordOf(const ClubTables& tables, ClubId club);

/// How players call a club: "Driver", "3W", "7i", "PW".
std::string usualName(ClubId club);

/// The club that a device means by a text, in any letters: "7i", "7 Iron", "IRON7 | Medium", "Dr",
/// "3-Wood", "Pitching Wedge", "PW". Wedges by their loft ("52", "56 deg") are those whose loft in
/// the set is nearest. Nothing for a text that tells none: whoever shows it asks.
std::optional<ClubId> clubNamed(std::string_view text, const ClubTables& tables);

/// What the user has said of texts that tell no club.
using ClubAnswers = std::map<std::string, ClubId>;
/// By the user's answer, or by itself.
std::optional<ClubId> clubNamed(const std::string& text, const ClubTables& tables,
                                const ClubAnswers& answers);

} // namespace parabolt
