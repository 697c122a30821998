#pragma once

#include "measured/measured_session.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

/// A session as JSON in UTF-8; numbers read back to the same bits.
std::string encodeMeasured(const MeasuredSession& session);

/// The shots of a session as parts of that text, for whoever writes it again and again: they take
/// most of the time, and seldom change.
std::vector<std::string> encodeShots(const MeasuredSession& session);
/// The same text, with those of its shots.
std::string encodeMeasured(const MeasuredSession& session, std::span<const std::string> shots);

/// The session of a text; nothing for a text that is none, or that holds what no session may: a
/// club that is none of the set, a shot that can't be flown. Members that the reader doesn't know,
/// a later writer's, are skipped.
std::optional<MeasuredSession> decodeMeasured(std::string_view text);

} // namespace parabolt
