#pragma once

#include "mainform/club_choice.h"

namespace parabolt {

/// The five operating modes: what the user gives and what the impact model computes. The mode is
/// the text of the hidden `txtMode`.
class Modes {
public:
    Modes(ShotControls& form, ClubChoice& clubs);

    /// Mode 3: a press of Run shoots a whole club set.
    void SetAutoMode();
    /// Enables and disables the controls for the mode in `txtMode`. In mode 1 this also loads the
    /// selected club into the fields. A text that is no mode changes nothing.
    void txtMode_Change();

    /// Enables the club parameters and the ball options.
    void EnableClubParameters();
    /// Disables the club parameters, and leaves the ball options alone.
    void DisableClubParameters();

private:
    ShotControls& form_;
    ClubChoice& clubs_;
};

/// The button of a mode, 0 to 4.
OptionButton& modeButton(ShotControls& form, int mode);

/// Enables and disables the controls for the mode in `txtMode`, and does nothing else.
void enableForMode(ShotControls& form);

} // namespace parabolt
