#pragma once

#include "clubs/club_form.h"
#include "files/byte_cursor.h"

#include <optional>

namespace parabolt {

// A clubs file is the members of `ClubTables` in their order, without gaps, little-endian:
//
//   2 + n1 bytes   ClubsDescription     a text: 16-bit length in bytes, then the bytes
//   2 + n2         WoodsDescription
//   2 + n3         IronsDescription
//   2 + n4         Comment
//   15 x 24        Irons 0 to 14        a club: six 32-bit floats in the order of ClubRecord
//   11 x 24        Woods 0 to 10

/// Bytes of the longest clubs file; what stands behind them in a file means nothing.
inline constexpr std::size_t kLongestClubsFile = 4 * (2 + 0xFFFF) + (15 + 11) * 24;

/// The bytes of a club set; nothing if a text is too long for its length field.
std::optional<Bytes> encodeClubs(const ClubTables& clubs);

/// The club set that the bytes begin with; nothing if they end too early. The values may be
/// anything. Clubs without a place in the editor are read like the others.
std::optional<ClubTables> decodeClubs(std::span<const std::uint8_t> bytes);

/// The content of a text file that shows the club set for reading, in the code page of text files:
/// the texts, and the cells as the grids show them.
std::string composeClubsText(const ClubForm& form, const ClubTables& clubs);

} // namespace parabolt
