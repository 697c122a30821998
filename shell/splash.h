#pragma once

#include "controls/services.h"
#include "shell/splash_form.h"

namespace parabolt {

/// What the splash does: it goes by itself after some five seconds, and at once on a key or a click
/// that isn't on the web address. The view calls the handlers, and closes when `Unload` comes.
class Splash {
public:
    Splash(SplashForm& form, Desktop& desktop);

    void Form_KeyPress();
    void Frame1_Click();
    void Picture1_Click();
    void Label1_Click();
    /// Takes the form away, as its view does when it is closed by other means. Only the first call
    /// counts.
    void unload();

private:
    void Timer1_Timer();

    SplashForm& form_;
    Desktop& desktop_;
    int ticks_ = 0;
    bool unloaded_ = false;
};

} // namespace parabolt
