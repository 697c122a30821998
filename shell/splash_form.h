#pragma once

#include "controls/focus.h"
#include "controls/simple_controls.h"
#include "mainform/main_form.h"
#include "shell/build_values.h"

namespace parabolt {

/// The inventory of the splash `frmSplash`: its controls under their given names. It has no
/// behaviour; the handlers work on it.
struct SplashForm {
    ControlSet controls;
    Focus focus;

    Frame Frame1{controls, "Frame1", ""};
    Control Picture1{controls, "Picture1"}; ///< 250 x 139 pixels
    Control Picture2{controls, "Picture2"}; ///< 200 x 66 pixels
    Label lblProductName{controls, "lblProductName", kApplicationTitle};
    Label lblVersion{controls, "lblVersion", "Version " + std::string(kVersion)};
    Label lblWarning{controls, "lblWarning", kLegalLine};
    Label Label1{controls, "Label1", kWebAddress}; ///< opens the web page
    Timer Timer1{controls, "Timer1", 100};

    Event<> Unload; ///< comes once, when the form goes
};

} // namespace parabolt
