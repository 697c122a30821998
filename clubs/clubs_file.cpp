#include "clubs/clubs_file.h"

#include "files/code_page.h"

#include <array>
#include <limits>

namespace parabolt {
namespace {

constexpr std::size_t kLongestText = std::numeric_limits<std::uint16_t>::max();

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

} // namespace

Outcome<Bytes, TextTooLong> encodeClubs(const ClubTables& clubs) {
    ByteWriter writer;
    for (const std::string* text : textsInFileOrder(clubs)) {
        const std::string stored = toCodePage(*text);
        if (stored.size() > kLongestText)
            return because(TextTooLong{});
        writer.u16(static_cast<std::uint16_t>(stored.size()));
        writer.bytes(stored);
    }
    eachNumber(clubs, [&writer](float value) { writer.f32(value); });
    return writer.data();
}

Outcome<ClubTables, EndsTooEarly> decodeClubs(std::span<const std::uint8_t> bytes) {
    ByteReader reader(bytes);
    ClubTables clubs;
    for (std::string* text : textsInFileOrder(clubs)) {
        const std::size_t length = reader.u16();
        *text = fromCodePage(reader.bytes(length));
    }
    eachNumber(clubs, [&reader](float& value) { value = reader.f32(); });
    if (reader.failed())
        return because(EndsTooEarly{});
    return clubs;
}

} // namespace parabolt
