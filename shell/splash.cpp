#include "shell/splash.h"

namespace parabolt {

namespace {

/// Ticks that the form survives; it goes on the next one, 5.1 seconds after it came.
constexpr int kTicksToStay = 50;

} // namespace

SplashForm::SplashForm(Desktop& desktop) : desktop_(desktop) {
    Timer1.Tick.connect([this] { Timer1_Timer(); });
    Timer1.setEnabled(true);
}

void SplashForm::Timer1_Timer() {
    if (ticks_ < kTicksToStay)
        ++ticks_;
    else
        unload();
}

void SplashForm::Form_KeyPress() {
    unload();
}

void SplashForm::Frame1_Click() {
    unload();
}

void SplashForm::Picture1_Click() {
    unload();
}

void SplashForm::Label1_Click() {
    desktop_.openWebPage(Label1.caption());
}

void SplashForm::unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    Timer1.setEnabled(false);
    Unload();
}

} // namespace parabolt
