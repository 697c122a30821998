#pragma once

#include "controls/focus.h"
#include "controls/simple_controls.h"

namespace parabolt {

/// The inventory of the form `frmProgress`: a bar that only shows that work goes on. The studies
/// work on it; it needs no handlers of its own.
struct ProgressForm {
    static constexpr std::string_view kCaption = "Calculating";
    std::function<void(bool shown)> onShow; ///< set by the view: shows the form or closes it

    ControlSet controls;
    Focus focus;

    ProgressBar ProgressBar1{controls, "ProgressBar1", 0, 10};
};

} // namespace parabolt
