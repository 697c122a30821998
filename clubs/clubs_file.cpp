#include "clubs/clubs_file.h"

#include "files/code_page.h"

#include <array>
#include <limits>

namespace parabolt {
namespace {

constexpr std::size_t kLongestText = std::numeric_limits<std::uint16_t>::max();
constexpr std::string_view kLineEnd = "\r\n";

template <class Tables>
auto textsInFileOrder(Tables& clubs) {
    return std::array{&clubs.ClubsDescription, &clubs.WoodsDescription, &clubs.IronsDescription,
                      &clubs.Comment};
}

/// Calls `use` with each number of the set in its order in the file.
template <class Tables, class Use>
void eachNumber(Tables& clubs, Use use) {
    const auto eachField = [&use](auto& club) {
        use(club.LoftAngle);
        use(club.HeadWeight);
        use(club.HeadSpeed);
        use(club.COR);
        use(club.AttackAngle);
        use(club.Bending);
    };
    for (auto& iron : clubs.Irons)
        eachField(iron);
    for (auto& wood : clubs.Woods)
        eachField(wood);
}

std::string gridLines(const Grid& grid, int firstCol) {
    std::string lines;
    for (int row = 0; row < grid.rows(); ++row) {
        for (int col = firstCol; col < grid.cols(); ++col)
            lines.append(grid.text(row, col)).append("\t");
        lines += kLineEnd;
    }
    return lines;
}

} // namespace

std::optional<Bytes> encodeClubs(const ClubTables& clubs) {
    ByteWriter writer;
    for (const std::string* text : textsInFileOrder(clubs)) {
        const std::string stored = toCodePage(*text);
        if (stored.size() > kLongestText)
            return std::nullopt;
        writer.u16(static_cast<std::uint16_t>(stored.size()));
        writer.bytes(stored);
    }
    eachNumber(clubs, [&writer](float value) { writer.f32(value); });
    return writer.data();
}

std::optional<ClubTables> decodeClubs(std::span<const std::uint8_t> bytes) {
    ByteReader reader(bytes);
    ClubTables clubs;
    for (std::string* text : textsInFileOrder(clubs)) {
        const std::size_t length = reader.u16();
        *text = fromCodePage(reader.bytes(length));
    }
    eachNumber(clubs, [&reader](float& value) { value = reader.f32(); });
    if (reader.failed())
        return std::nullopt;
    return clubs;
}

std::string composeClubsText(const ClubForm& form, const ClubTables& clubs) {
    std::string text;
    const auto line = [&text](std::string_view start, std::string_view end = {}) {
        text.append(start).append(end).append(kLineEnd);
    };
    line("Clubs Description: ", clubs.ClubsDescription);
    line("Clubs Irons");
    line("Irons Clubs Description: ", clubs.IronsDescription);
    text += gridLines(form.GridIrons, 0); // with the labels, unlike the woods
    line("");
    line("");
    line("Clubs Woods");
    line("Woods Clubs Description: ", clubs.WoodsDescription);
    text += gridLines(form.GridWoods, Grid::kFixed);
    line("");
    line("Comment");
    line(clubs.Comment);
    return toCodePage(text);
}

} // namespace parabolt
