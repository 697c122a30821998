#include "run/pause.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr int kTicksPerPause = 10;

/// Menu commands that leave a study or batch alone.
constexpr std::array<std::string_view, 6> kHarmlessCommands = {"mnuFile", "mnuStudies", "Help",
                                                               "mnuExit", "mnuHelp",    "mnuSkype"};

/// Input controls and commands; the plot, the table and what only shows something stay in use.
bool disturbs(const Control& control) {
    if (dynamic_cast<const MenuItem*>(&control) != nullptr)
        return std::find(kHarmlessCommands.begin(), kHarmlessCommands.end(), control.name()) ==
               kHarmlessCommands.end();
    return control.takesFocus() && dynamic_cast<const PictureBox*>(&control) == nullptr &&
           dynamic_cast<const RichTextBox*>(&control) == nullptr;
}

} // namespace

Pause::Pause(MainForm& form, EventLoop& events) : form_(form), events_(events) {
    form_.Timer1.Tick.connect(
        [this] { TimerTicks_ = TimerTicks_ < kTicksPerPause ? TimerTicks_ + 1 : 0; });
}

bool Pause::wait() {
    TimerTicks_ = 0;
    form_.Timer1.setEnabled(true);
    while (TimerTicks_ != kTicksPerPause && !stopped_)
        events_.yield();
    form_.Timer1.setEnabled(false);
    TimerTicks_ = 0;
    return !stopped_;
}

LongRun::LongRun(MainForm& form, Pause& pause)
    : form_(form),
      pause_(pause),
      focused_(form.focus.active()) {
    pause_.stopped_ = false;
    if (pause_.onRunning)
        pause_.onRunning(true);
    for (Control* control : form_.controls.all())
        if (disturbs(*control))
            held_.push_back(control);
    form_.focus.give(form_.Picture1);
    for (Control* control : held_)
        control->setHeld(true);
}

LongRun::~LongRun() {
    if (pause_.onRunning)
        pause_.onRunning(false);
    for (Control* control : held_)
        control->setHeld(false);
    if (focused_ != nullptr && form_.focus.active() == &form_.Picture1)
        form_.focus.give(*focused_);
}

} // namespace parabolt
