#include "run/studies.h"

#include "engine/flight.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

namespace parabolt {

/// In what the studies differ.
struct Studies::Sweep {
    TextBox MainForm::*field;
    float ShotState::*variable;
    int first;
    int last;
    int step;
    int tickMs; ///< interval of the timer that paces the study
};

Studies::Studies(MainForm& form, RunDriver& driver, Pause& pause, ProgressForm& progress)
    : form_(form),
      driver_(driver),
      pause_(pause),
      progress_(progress) {
    form_.mnuStyLaunch.Click.connect([this] { mnuStyLaunch_Click(); });
    form_.mnuStySpin.Click.connect([this] { mnuStySpin_Click(); });
}

void Studies::mnuStyLaunch_Click() {
    study({&MainForm::txtLaunchAngle, &ShotState::LaunchAngle, 2, 55, 1, 20});
}

void Studies::mnuStySpin_Click() {
    study({&MainForm::txtBallSpin, &ShotState::RPM, 0, 22000, 100, 10});
}

void Studies::set(const Sweep& sweep, double value) {
    (form_.*sweep.field).setText(shortestText(value));
    form_.shot.*sweep.variable = store32(leadingNumber((form_.*sweep.field).text()));
}

void Studies::study(const Sweep& sweep) {
    bool found = false;
    {
        const LongRun busy(form_, pause_);
        form_.optLaunch.select();
        form_.txtMode.setText("0");
        form_.Timer1.setInterval(sweep.tickMs);
        progress_.ProgressBar1.setValue(progress_.ProgressBar1.least());
        if (progress_.onShow)
            progress_.onShow(true);
        found = !driver_.reportFault(driver_.PrepareLaunch()) && climb(sweep);
        if (found)
            set(sweep, leadingNumber((form_.*sweep.field).text()) - sweep.step);
        if (progress_.onShow)
            progress_.onShow(false);
    }
    if (found)
        driver_.Command1_Click();
}

/// Climbs until the carry drops or the values end. False if the user stopped it or a shot has no
/// environment or launch: then nothing was found.
bool Studies::climb(const Sweep& sweep) {
    ProgressBar& bar = progress_.ProgressBar1;
    float previous = 0;
    for (int value = sweep.first; value <= sweep.last; value += sweep.step) {
        bar.setValue(bar.greatest() > bar.value() ? bar.value() + 1 : 0);
        set(sweep, value);
        if (driver_.reportFault(driver_.ComputeEnvironment()) ||
            driver_.reportFault(driver_.PrepareLaunch()))
            return false;
        const float carry = SimulateCarry(form_.shot);
        if (previous > carry)
            return true;
        previous = carry;
        if (!pause_.wait())
            return false;
    }
    return true;
}

} // namespace parabolt
