#include "shell/splash.h"

namespace parabolt {
namespace {

/// Ticks that the form survives; it goes on the next one, 5.1 seconds after it came.
constexpr int kTicksToStay = 50;

} // namespace

Splash::Splash(SplashForm& form, Desktop& desktop) : form_(form), desktop_(desktop) {
    form_.Timer1.Tick.connect([this] { Timer1_Timer(); });
    form_.Timer1.setEnabled(true);
}

void Splash::Timer1_Timer() {
    if (ticks_ < kTicksToStay)
        ++ticks_;
    else
        unload();
}

void Splash::Form_KeyPress() {
    unload();
}

void Splash::Frame1_Click() {
    unload();
}

void Splash::Picture1_Click() {
    unload();
}

void Splash::Label1_Click() {
    desktop_.openAddress(form_.Label1.caption());
}

void Splash::unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    form_.Timer1.setEnabled(false);
    form_.Unload();
}

} // namespace parabolt
