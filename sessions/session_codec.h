#pragma once

#include "numbers/outcome.h"
#include "sessions/desk.h"

#include <string>
#include <string_view>

namespace parabolt {

// A session file is one JSON object in UTF-8. Its members carry the names of what they hold; those
// that the reader doesn't know, a later writer's, are skipped. Numbers read back to the same bits;
// one that JSON can't write, such as an infinity, is the text of its bits in hexadecimal digits.

/// Bytes of the longest session file.
inline constexpr std::size_t kLongestSessionFile = std::size_t{64} << 20;

/// Why a text is no session.
enum class NoSession {
    Broken, ///< no JSON, another format, or a member that is missing or senseless
    Newer,  ///< a version of the format that this program doesn't know yet
};

/// The text of a session.
std::string encodeSession(const Session& session);

/// The session of a text, whatever the text is.
Outcome<Session, NoSession> decodeSession(std::string_view text);

} // namespace parabolt
