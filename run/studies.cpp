#include "run/studies.h"

#include "shots/climb.h"

namespace parabolt {

/// In what the studies differ.
struct Studies::Study {
    TextBox ShotControls::*field;
    ClimbRange range;
    int tickMs; ///< interval of the timer that paces the study
};

Studies::Studies(ShotControls& form, Timer& timer, ShotRun& run, RunDriver& driver, Pause& pause,
                 ProgressForm& progress)
    : form_(form),
      timer_(timer),
      run_(run),
      driver_(driver),
      pause_(pause),
      progress_(progress) {}

void Studies::mnuStyLaunch_Click() {
    study({&ShotControls::txtLaunchAngle, kLaunchClimb, 20});
}

void Studies::mnuStySpin_Click() {
    study({&ShotControls::txtBallSpin, kSpinClimb, 10});
}

void Studies::set(const Study& study, int value) {
    (form_.*study.field).setText(std::to_string(value));
    form_.shot.*study.range.input = static_cast<float>(value);
}

void Studies::study(const Study& study) {
    bool found = false;
    form_.Wiping();
    {
        const LongRun busy(pause_);
        form_.optLaunch.select();
        form_.txtMode.setText("0");
        timer_.setInterval(study.tickMs);
        progress_.ProgressBar1.setValue(progress_.ProgressBar1.least());
        if (progress_.onShow)
            progress_.onShow(true);
        found = climb(study);
        if (progress_.onShow)
            progress_.onShow(false);
    }
    if (found)
        driver_.Command1_Click();
}

/// Climbs, and shows what was found. False if the user stopped it or the shot has no air: then
/// nothing was found.
bool Studies::climb(const Study& study) {
    ProgressBar& bar = progress_.ProgressBar1;
    Climb climb(run_.take(), study.range);
    while (climb.goesOn()) {
        bar.setValue(bar.greatest() > bar.value() ? bar.value() + 1 : 0);
        set(study, climb.next());
        if (const auto flown = climb.advance(); !flown) {
            run_.report(flown.why());
            return false;
        }
        if (!climb.dropped() && !pause_.wait())
            return false;
    }
    set(study, climb.found());
    return true;
}

} // namespace parabolt
