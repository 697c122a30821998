#include "mainform/defaults.h"

#include "mainform/club_choice.h"
#include "mainform/form_shot.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<BallOption, 4> kBallOptions = {{
    {kBallKinds[0], &ShotControls::BallOpt1},
    {kBallKinds[1], &ShotControls::BallOpt2},
    {kBallKinds[2], &ShotControls::BallOpt3},
    {kBallKinds[3], &ShotControls::BallOpt4},
}};

} // namespace

std::span<const BallOption> ballOptions() {
    return kBallOptions;
}

Defaults::Defaults(ShotControls& form, MessageBoxes& messages) : form_(form), messages_(messages) {
    for (const BallOption& option : kBallOptions)
        (form_.*option.button).Click.connect([this, &option] { option.applyTo(form_.shot); });
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
    kBallOptions.back().applyTo(shot);
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
