#pragma once

#include "sessions/desk.h"

#include <deque>
#include <optional>

namespace parabolt {

/// The way back: the last desks from before something wiped or overwrote them. Going back lays the
/// newest one and keeps the desk that it took the place of behind the oldest, so that going on
/// back leads round to it again.
class WayBack {
public:
    static constexpr std::size_t kMost = 10; ///< desks from before wipes; as many of small changes

    /// What is about to happen to a desk: something wipes or overwrites it, or a small change.
    /// Small changes of one kind that follow each other, with nothing else between, count as one.
    enum class Change { Wipe, Choice, Edit };

    /// Keeps the desk from before a change. What one action of the user changes counts once.
    void keep(Session before, Change change);
    /// The action of the user has ended, and the desk is like this now.
    void actionEnded(const Desk& desk);

    /// The desk to which going back leads; null if there is none.
    const Session* next() const { return desks_.empty() ? nullptr : &desks_.back().session; }
    /// Takes that desk out, and the present one in.
    Session goBack(Session present);

private:
    struct Kept {
        Session session;
        bool beforeWipe = false;
        unsigned long number = 0; ///< rises with the time of keeping
    };
    struct Small {
        Change change;
        Desk after;
    };

    /// Drops the oldest of what there is too much of.
    void thinOut(bool beforeWipe);

    std::deque<Kept> desks_; ///< the next one is the last
    unsigned long number_ = 0;
    std::optional<Change> inAction_; ///< what the action in hand has changed
    std::optional<Small> lastSmall_; ///< if nothing else was kept since
};

} // namespace parabolt
