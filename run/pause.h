#pragma once

#include "controls/services.h"
#include "mainform/main_form.h"

#include <functional>
#include <vector>

namespace parabolt {

/// The one pause of the system: lets the user interface live until the timer of the form has ticked
/// ten times. Studies and batch show their steps by it.
class Pause {
public:
    /// `rest` is where the focus waits during a study or batch.
    Pause(FormCore& form, Timer& timer, Control& rest, EventLoop& events);

    /// Waits ten ticks. False if the user has asked to stop meanwhile, or before.
    bool wait();
    /// Ends the pause at once, and with it the study or batch after the shot in hand.
    void stop() { stopped_ = true; }

    /// Set by the view: told when a study or batch begins and when it has ended.
    std::function<void(bool)> onRunning;

private:
    friend class LongRun;

    FormCore& form_;
    Timer& timer_;
    Control& rest_;
    EventLoop& events_;
    int TimerTicks_ = 0;
    bool stopped_ = false;
};

/// The time of a study or a batch. The controls that are to be held back meanwhile are so from its
/// begin to its end, however it ends, while the focus waits elsewhere; then it goes back to where
/// it was, unless the user has moved it.
class LongRun {
public:
    explicit LongRun(Pause& pause);
    ~LongRun();
    LongRun(const LongRun&) = delete;
    LongRun& operator=(const LongRun&) = delete;

private:
    Pause& pause_;
    Control* focused_;
    std::vector<Control*> held_;
};

} // namespace parabolt
