#pragma once

#include "measured/measured_session.h"

namespace parabolt {

/// A session as JSON in UTF-8; numbers read back to the same bits.
std::string encodeMeasured(const MeasuredSession& session);

/// The session of a text; nothing for a text that is none, or that holds what no session may: a
/// club that is none of the set, a shot that can't be flown. Members that the reader doesn't know,
/// a later writer's, are skipped.
std::optional<MeasuredSession> decodeMeasured(std::string_view text);

} // namespace parabolt
