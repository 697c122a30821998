#include "clubs/club_cells.h"

#include "numbers/text_number.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace parabolt {
namespace {

// The order of the rows is not the order of the fields in a record.
struct ClubRow {
    std::string_view label;
    float ClubRecord::*field;
    ClubBounds irons;
    ClubBounds woods;
};

constexpr ClubBounds kHeadWeight{180, 320, "Then head weight must between 180 and 320 grams."};
constexpr ClubBounds kLoftAngle{0, 65, "Then loft angle must between 0 and 65 degrees."};
constexpr ClubBounds kIronCor{0.7, 0.86, "Then COR must between 0.7 and 0.86 degrees."};
constexpr ClubBounds kWoodCor{0.7, 0.9, "Then COR must between 0.7 and 0.9 degrees."};
constexpr ClubBounds kAttackAngle{-5, 20, "Then Attack angle must between -5 and 20 degrees."};
constexpr ClubBounds kHeadSpeed{30, 250, "Then Head Speed must between 30 and 250 degrees."};
constexpr ClubBounds kBending{-10, 10, "Then bend angle must between -10 and 10 degrees."};

constexpr std::array<ClubRow, kClubRows> kRows = {{
    {"Club No.", nullptr, {}, {}},
    {"Head Weight", &ClubRecord::HeadWeight, kHeadWeight, kHeadWeight},
    {"Loft Angle", &ClubRecord::LoftAngle, kLoftAngle, kLoftAngle},
    {"COR      :", &ClubRecord::COR, kIronCor, kWoodCor},
    {"Attack Angle", &ClubRecord::AttackAngle, kAttackAngle, kAttackAngle},
    {"Head Speed", &ClubRecord::HeadSpeed, kHeadSpeed, kHeadSpeed},
    {"Bend Angle", &ClubRecord::Bending, kBending, kBending},
}};

const ClubRow& rowAt(int row) {
    return kRows.at(static_cast<std::size_t>(row));
}

template <class Tables>
auto& fieldOf(Tables& tables, ClubKind kind, int row, int col) {
    const bool iron = kind == ClubKind::Irons;
    const auto number =
        static_cast<std::size_t>(clubNumbers(iron)[static_cast<std::size_t>(col) - 1]);
    auto& club = iron ? tables.Irons.at(number) : tables.Woods.at(number);
    return club.*rowAt(row).field;
}

} // namespace

std::string_view clubGridFormat(ClubKind kind) {
    return kind == ClubKind::Irons
               ? "                      |^No. 1|^No. 2|^No. 3|^No. 4|^No. 5|^No. 6|^No. 7|^No. 8"
                 "|^No. 9|^No. 10|^No. 11|^No. 12|^No. 13|^No. 14"
               : "                      |^No. 1|^No. 2|^No. 3|^No. 4|^No. 5|^No. 7|^No. 9|^No. 10";
}

std::string_view clubRowLabel(int row) {
    return rowAt(row).label;
}

float& clubField(ClubTables& tables, ClubKind kind, int row, int col) {
    return fieldOf(tables, kind, row, col);
}

float clubField(const ClubTables& tables, ClubKind kind, int row, int col) {
    return fieldOf(tables, kind, row, col);
}

std::string clubCellText(float value) {
    // The largest number stands for what isn't finite, so that the bounds of its cell refuse it.
    constexpr float kMost = std::numeric_limits<float>::max();
    return shortestText(std::isnan(value) ? kMost : std::clamp(value, -kMost, kMost));
}

const ClubBounds& clubBounds(ClubKind kind, int row) {
    return kind == ClubKind::Irons ? rowAt(row).irons : rowAt(row).woods;
}

} // namespace parabolt
