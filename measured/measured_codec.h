#pragma once

#include "measured/measured_session.h"

namespace parabolt {

/// A session as JSON in UTF-8; numbers read back to the same bits.
std::string encodeMeasured(const MeasuredSession& session);

/// The session of a text; nothing for a text that is none, or that holds what no session may.
std::optional<MeasuredSession> decodeMeasured(std::string_view text);

} // namespace parabolt
