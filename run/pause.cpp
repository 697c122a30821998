#include "run/pause.h"

namespace parabolt {
namespace {

constexpr int kTicksPerPause = 10;

} // namespace

Pause::Pause(FormCore& form, Timer& timer, Control& rest, EventLoop& events)
    : form_(form),
      timer_(timer),
      rest_(rest),
      events_(events) {
    timer_.Tick.connect(
        [this] { TimerTicks_ = TimerTicks_ < kTicksPerPause ? TimerTicks_ + 1 : 0; });
}

bool Pause::wait() {
    TimerTicks_ = 0;
    timer_.setEnabled(true);
    while (TimerTicks_ != kTicksPerPause && !stopped_)
        events_.yield();
    timer_.setEnabled(false);
    TimerTicks_ = 0;
    return !stopped_;
}

LongRun::LongRun(Pause& pause) : pause_(pause), focused_(pause.form_.focus.active()) {
    pause_.stopped_ = false;
    if (pause_.onRunning)
        pause_.onRunning(true);
    for (Control* control : pause_.form_.controls.all())
        if (control->whileBusy() == WhileBusy::Held)
            held_.push_back(control);
    pause_.form_.focus.give(pause_.rest_);
    for (Control* control : held_)
        control->setHeld(true);
}

LongRun::~LongRun() {
    if (pause_.onRunning)
        pause_.onRunning(false);
    for (Control* control : held_)
        control->setHeld(false);
    if (focused_ != nullptr && pause_.form_.focus.active() == &pause_.rest_)
        pause_.form_.focus.give(*focused_);
}

} // namespace parabolt
