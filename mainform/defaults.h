#pragma once

#include "controls/services.h"
#include "mainform/main_form.h"
#include "shots/ball_kinds.h"

#include <span>

namespace parabolt {

/// What choosing a ball option writes into the shot.
struct BallOption : BallKind {
    OptionButton ShotControls::*button;
};

/// The four ball options, numbers 1 to 4 in this order.
std::span<const BallOption> ballOptions();

/// Lays the defaults of swing, club and weather into variables and fields, and lets the user choose
/// the ball.
class Defaults {
public:
    Defaults(ShotControls& form, MessageBoxes& messages);

    void SetSwingDefaults();
    /// Ends by choosing woods, which in mode 1 loads wood 1 where irons were chosen before.
    void SetClubDefaults();
    void SetEnvironmentDefaults();

    /// Asks, then restores all three groups. Mode, data sets and scale stay.
    void mnuReset_Click();

private:
    ShotControls& form_;
    MessageBoxes& messages_;
};

} // namespace parabolt
