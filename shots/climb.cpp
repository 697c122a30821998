#include "shots/climb.h"

namespace parabolt {

Climb::Climb(const Shot& shot, const ClimbRange& range)
    : shot_(shot),
      range_(range),
      next_(range.first) {}

Outcome<void, Fault> Climb::advance() {
    shot_.*range_.input = static_cast<float>(next_);
    next_ += range_.step;
    const auto state = prepare(shot_);
    if (!state)
        return because(state.why());
    const float carry = SimulateCarry(*state);
    dropped_ = previous_ > carry;
    previous_ = carry;
    return {};
}

} // namespace parabolt
