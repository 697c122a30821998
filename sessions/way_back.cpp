#include "sessions/way_back.h"

#include <algorithm>
#include <utility>

namespace parabolt {
namespace {

/// Whether two desks differ in no more than the place of the caret.
bool alike(const Desk& one, Desk other) {
    other.caret = one.caret;
    other.typingColour = one.typingColour;
    return one == other;
}

} // namespace

void WayBack::keep(Session before, Change change) {
    if (inAction_)
        return;
    inAction_ = change;
    const bool goesOn = change == Change::Small && afterSmall_ && alike(*afterSmall_, before.desk);
    if (goesOn || (next() != nullptr && alike(next()->desk, before.desk)))
        return;
    desks_.push_back({std::move(before), ++number_});
    if (desks_.size() > kMost)
        desks_.erase(
            std::min_element(desks_.begin(), desks_.end(), [](const Kept& one, const Kept& other) {
                return one.number < other.number;
            }));
}

void WayBack::actionEnded(const Desk& desk) {
    if (inAction_ == Change::Small)
        afterSmall_ = desk;
    else if (inAction_)
        afterSmall_.reset();
    inAction_.reset();
}

Session WayBack::goBack(Session present) {
    Session back = std::move(desks_.back().session);
    desks_.pop_back();
    desks_.push_front({std::move(present), ++number_});
    inAction_ = Change::Wipe;
    return back;
}

} // namespace parabolt
