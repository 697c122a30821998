#pragma once

#include "clubs/club_tables.h"
#include "files/byte_cursor.h"
#include "numbers/outcome.h"

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

struct TextTooLong {};  ///< a text doesn't fit its length field
struct EndsTooEarly {}; ///< the bytes end inside the club set

/// The bytes of a club set.
Outcome<Bytes, TextTooLong> encodeClubs(const ClubTables& clubs);

/// The club set that the bytes begin with. The values may be anything. Clubs without a place in the
/// editor are read like the others.
Outcome<ClubTables, EndsTooEarly> decodeClubs(std::span<const std::uint8_t> bytes);

} // namespace parabolt
