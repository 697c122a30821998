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
    Pause(MainForm& form, EventLoop& events);

    /// Waits ten ticks. False if the user has asked to stop meanwhile, or before.
    bool wait();
    /// Ends the pause at once, and with it the study or batch after the shot in hand.
    void stop() { stopped_ = true; }

    /// Set by the view: told when a study or batch begins and when it has ended.
    std::function<void(bool)> onRunning;

private:
    friend class LongRun;

    MainForm& form_;
    EventLoop& events_;
    int TimerTicks_ = 0;
    bool stopped_ = false;
};

/// The time of a study or a batch. Every control that would disturb it is held back from its begin
/// to its end, however it ends; then the focus goes back to where it was, unless the user has moved
/// it to the table meanwhile.
class LongRun {
public:
    LongRun(MainForm& form, Pause& pause);
    ~LongRun();
    LongRun(const LongRun&) = delete;
    LongRun& operator=(const LongRun&) = delete;

private:
    MainForm& form_;
    Pause& pause_;
    Control* focused_;
    std::vector<Control*> held_;
};

} // namespace parabolt
