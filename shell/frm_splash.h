#pragma once

#include "shell/splash.h"

namespace parabolt {

/// The splash `frmSplash`, which is also the About box: owns its controls and the handlers that
/// work on them. It is made anew each time it is shown.
struct frmSplash {
    explicit frmSplash(Desktop& desktop) : handlers(form, desktop) {}

    SplashForm form;
    Splash handlers;
};

} // namespace parabolt
