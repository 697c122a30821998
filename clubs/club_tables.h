#pragma once

#include "engine/club_record.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace parabolt {

/// The player's set of clubs, with texts that describe it. The index of a record is the club's own
/// number; the indices 0 and the woods 6 and 8 belong to no club and stay at zero.
struct ClubTables {
    std::string ClubsDescription;
    std::string WoodsDescription;
    std::string IronsDescription;
    std::string Comment;
    std::array<ClubRecord, 15> Irons{};
    std::array<ClubRecord, 11> Woods{};
    friend bool operator==(const ClubTables&, const ClubTables&) = default;
};

/// The default set.
ClubTables InitClubTables();

/// Numbers of all clubs of the set, those of the editor's grids.
std::span<const std::int16_t> clubNumbers(bool iron);

/// Club numbers that can be played, as the list of the main form offers them.
std::span<const std::int16_t> playableClubs(bool iron);

/// The record of a club that can be played; null for any other number.
const ClubRecord* playableClub(const ClubTables& tables, bool iron, std::int16_t clubNo);

} // namespace parabolt
