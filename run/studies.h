#pragma once

#include "run/pause.h"
#include "run/run_driver.h"

namespace parabolt {

/// The form `frmProgress`: a bar that only shows that work goes on.
struct ProgressForm {
    static constexpr std::string_view kCaption = "Calculating";
    ControlSet controls;
    ProgressBar ProgressBar1{controls, "ProgressBar1", 0, 10};
    std::function<void(bool shown)> onShow; ///< set by the view: shows the form or closes it
};

/// Climbs to the launch angle, or to the spin, that carries furthest: up through the values with
/// the flight that records nothing, to the first that carries less than the one before, one step
/// back, and one normal run with what was found. Equal carries don't stop the climb. Leaves the
/// mode Launch.
class Studies {
public:
    Studies(MainForm& form, RunDriver& driver, Pause& pause, ProgressForm& progress);

    void mnuStyLaunch_Click();
    void mnuStySpin_Click();

private:
    struct Sweep;
    void study(const Sweep& sweep);
    bool climb(const Sweep& sweep);
    void set(const Sweep& sweep, double value);

    MainForm& form_;
    RunDriver& driver_;
    Pause& pause_;
    ProgressForm& progress_;
};

} // namespace parabolt
