#include "mainform/defaults.h"

#include "mainform/club_choice.h"
#include "mainform/form_shot.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<BallOption, 4> kBallOptions = {{
    // button                Slope1  CD1    BallType
    {&ShotControls::BallOpt1, 0.5F, 0.0F, 1},
    {&ShotControls::BallOpt2, 0.0F, -0.1F, 2},
    {&ShotControls::BallOpt3, -0.5F, 0.0F, 3},
    {&ShotControls::BallOpt4, 0.0F, 0.0F, 4},
}};

void apply(ShotInputs& shot, const BallOption& option) {
    shot.BallType = option.BallType;
    shot.Slope1 = option.Slope1;
    shot.CD1 = option.CD1;
}

} // namespace

std::span<const BallOption> ballOptions() {
    return kBallOptions;
}

Defaults::Defaults(ShotControls& form, MessageBoxes& messages) : form_(form), messages_(messages) {
    for (const BallOption& option : kBallOptions)
        (form_.*option.button).Click.connect([this, &option] { apply(form_.shot, option); });
}

void Defaults::SetSwingDefaults() {
    constexpr ShotInputs kFresh;
    form_.cmbClubNo.select(0);
    ShotInputs& shot = form_.shot;
    shot.LaunchAngle = kFresh.LaunchAngle;
    shot.RPM = kFresh.RPM;
    shot.LaunchSpeed = kFresh.LaunchSpeed;
    shot.HeadSpeed = kFresh.HeadSpeed;
    takeClubNumber(form_);
    shot.SpeedIncrement = kFresh.SpeedIncrement;
    showSwing(form_);
}

void Defaults::SetClubDefaults() {
    constexpr ShotInputs kFresh;
    ShotInputs& shot = form_.shot;
    shot.COR = kFresh.COR;
    shot.HeadWeight = kFresh.HeadWeight;
    shot.AttackAngle = kFresh.AttackAngle;
    shot.LoftAngle = kFresh.LoftAngle;
    shot.Bending = kFresh.Bending;
    apply(shot, kBallOptions.back());
    form_.BallOpt4.select();
    showClub(form_);
    form_.optWood.select();
}

void Defaults::SetEnvironmentDefaults() {
    constexpr ShotInputs kFresh;
    ShotInputs& shot = form_.shot;
    shot.WindSpeed = kFresh.WindSpeed;
    shot.Temperature = kFresh.Temperature;
    shot.BaroPressure = kFresh.BaroPressure;
    shot.RH = kFresh.RH;
    shot.h = kFresh.h;
    showEnvironment(form_);
}

void Defaults::mnuReset_Click() {
    if (!messages_.ask(
            "Do you want to replace the current Swing, Club, and Environment parameters?"))
        return;
    form_.Wiping();
    SetSwingDefaults();
    SetClubDefaults();
    SetEnvironmentDefaults();
}

} // namespace parabolt
