#include "sessions/way_back.h"

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
    if (inAction_ && (inAction_ == Change::Wipe || change != Change::Wipe))
        return;
    inAction_ = change;
    const bool goesOn = change != Change::Wipe && lastSmall_ && lastSmall_->change == change &&
                        alike(lastSmall_->after, before.desk);
    if (goesOn || (next() != nullptr && alike(next()->desk, before.desk)))
        return;
    const bool beforeWipe = change == Change::Wipe;
    desks_.push_back({std::move(before), beforeWipe, ++number_});
    thinOut(beforeWipe);
}

void WayBack::actionEnded(const Desk& desk) {
    if (inAction_ && inAction_ != Change::Wipe)
        lastSmall_ = Small{*inAction_, desk};
    else if (inAction_)
        lastSmall_.reset();
    inAction_.reset();
}

Session WayBack::goBack(Session present) {
    Kept back = std::move(desks_.back());
    desks_.pop_back();
    desks_.push_front({std::move(present), back.beforeWipe, ++number_});
    lastSmall_.reset();
    return std::move(back.session);
}

void WayBack::thinOut(bool beforeWipe) {
    std::size_t count = 0;
    auto oldest = desks_.end();
    for (auto kept = desks_.begin(); kept != desks_.end(); ++kept)
        if (kept->beforeWipe == beforeWipe) {
            ++count;
            if (oldest == desks_.end() || kept->number < oldest->number)
                oldest = kept;
        }
    if (count > kMost)
        desks_.erase(oldest);
}

} // namespace parabolt
