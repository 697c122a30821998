#include "clubs/club_tables.h"

#include <algorithm>

namespace parabolt {
namespace {

// Those that can be played come first.
constexpr std::array<std::int16_t, 14> kIrons = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
constexpr std::array<std::int16_t, 8> kWoods = {1, 2, 3, 4, 5, 7, 9, 10};
constexpr std::size_t kPlayableIrons = 12;
constexpr std::size_t kPlayableWoods = 7;

} // namespace

ClubTables InitClubTables() {
    ClubTables tables;
    tables.ClubsDescription = "Default Clubs Parameter";
    tables.WoodsDescription = "Default Woods Parameter";
    tables.IronsDescription = "Default Irons Parameter";
    // Loft (degrees), head weight (grams), head speed (mph), restitution, attack, bending
    // (degrees).
    tables.Irons = {{
        {},
        {16, 225, 100, 0.76F, 0, 0},
        {18, 232, 99, 0.76F, 0, 0},
        {21, 239, 98, 0.76F, 0, 0},
        {24, 246, 97, 0.76F, 0, 0},
        {27, 253, 96, 0.76F, 0, 0},
        {31, 260, 95, 0.76F, 0, 0},
        {35, 267, 94, 0.76F, 0, 0},
        {39, 274, 93, 0.76F, 0, 0},
        {43, 281, 92, 0.76F, 0, 0},
        {47, 284, 91, 0.76F, 0, 0},
        {52, 291, 90, 0.76F, 0, 0},
        {56, 298, 89, 0.76F, 0, 0},
        {60, 298, 88, 0.76F, 0, 0},
        {64, 298, 87, 0.76F, 0, 0},
    }};
    tables.Woods = {{
        {},
        {10, 198, 100, 0.83F, 0, 0},
        {12, 203, 99, 0.83F, 0, 0},
        {14, 208, 98, 0.83F, 0, 0},
        {16, 213, 97, 0.83F, 0, 0},
        {18, 218, 96, 0.83F, 0, 0},
        {},
        {21, 228, 94, 0.80F, 0, 0},
        {},
        {24, 233, 92, 0.80F, 0, 0},
        {24, 233, 91, 0.80F, 0, 0},
    }};
    return tables;
}

std::span<const std::int16_t> clubNumbers(bool iron) {
    if (iron)
        return kIrons;
    return kWoods;
}

std::span<const std::int16_t> playableClubs(bool iron) {
    return clubNumbers(iron).first(iron ? kPlayableIrons : kPlayableWoods);
}

const ClubRecord* playableClub(const ClubTables& tables, bool iron, std::int16_t clubNo) {
    const auto numbers = playableClubs(iron);
    if (std::find(numbers.begin(), numbers.end(), clubNo) == numbers.end())
        return nullptr;
    const auto index = static_cast<std::size_t>(clubNo);
    return iron ? &tables.Irons.at(index) : &tables.Woods.at(index);
}

} // namespace parabolt
