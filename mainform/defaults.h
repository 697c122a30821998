#pragma once

#include "controls/services.h"
#include "mainform/main_form.h"

#include <span>

namespace parabolt {

/// What choosing a ball option writes into the shot.
struct BallOption {
    OptionButton MainForm::*button;
    float Slope1;
    float CD1;
    std::int16_t BallType;
};

/// The four ball options, numbers 1 to 4 in this order.
std::span<const BallOption> ballOptions();

/// Lays the defaults of swing, club and weather into variables and fields, and lets the user choose
/// the ball.
class Defaults {
public:
    Defaults(MainForm& form, MessageBoxes& messages);

    void SetSwingDefaults();
    /// Ends by choosing woods, which in mode 1 loads wood 1 where irons were chosen before.
    void SetClubDefaults();
    void SetEnvironmentDefaults();

    /// Asks, then restores all three groups. Mode, data sets and scale stay.
    void mnuReset_Click();

private:
    MainForm& form_;
    MessageBoxes& messages_;
};

// The fields that show a group of variables, each written from its variable in the order in which
// the form shows them.
void showSwing(MainForm& form);
void showClub(MainForm& form);
void showEnvironment(MainForm& form);

} // namespace parabolt
