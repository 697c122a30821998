#include "sessions/desk_work.h"

#include "measured/measured_codec.h"

namespace parabolt {

DeskWork workOn(const Desk& desk) {
    const auto found = desk.windows.find(kMeasuredKey);
    const auto measured =
        found == desk.windows.end() ? std::nullopt : decodeMeasured(found->second.text());
    return {desk.runs.size(), measured ? measured->entries.size() : 0};
}

} // namespace parabolt
