#pragma once

#include "controls/services.h"
#include "controls/simple_controls.h"
#include "mainform/main_form.h"
#include "shell/build_values.h"

namespace parabolt {

/// The splash `frmSplash`, which is also the About box: one object for each time that it is shown.
/// It goes by itself after some five seconds, and at once on a key or a click that isn't on the web
/// address. The view calls the handlers, and closes when `Unload` comes.
class SplashForm {
public:
    explicit SplashForm(Desktop& desktop);

    ControlSet controls;
    Frame Frame1{controls, "Frame1", ""};
    Control Picture1{controls, "Picture1"}; ///< 250 x 139 pixels
    Control Picture2{controls, "Picture2"}; ///< 200 x 66 pixels
    Label lblProductName{controls, "lblProductName", kApplicationTitle};
    Label lblVersion{controls, "lblVersion", "Version " + std::string(kVersion)};
    Label lblWarning{controls, "lblWarning", kLegalLine};
    Label Label1{controls, "Label1", kWebAddress}; ///< opens the web page
    Timer Timer1{controls, "Timer1", 100};

    void Form_KeyPress();
    void Frame1_Click();
    void Picture1_Click();
    void Label1_Click();
    /// Takes the form away, as its view does when it is closed by other means. Only the first call
    /// counts.
    void unload();

    /// Comes once, when the form goes.
    Event<> Unload;

private:
    void Timer1_Timer();

    Desktop& desktop_;
    int ticks_ = 0;
    bool unloaded_ = false;
};

} // namespace parabolt
