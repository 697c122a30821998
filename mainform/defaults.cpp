#include "mainform/defaults.h"

#include "mainform/club_choice.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<BallOption, 4> kBallOptions = {{
    // button                Slope1  CD1    BallType
    {&MainForm::BallOpt1, 0.5F, 0.0F, 1},
    {&MainForm::BallOpt2, 0.0F, -0.1F, 2},
    {&MainForm::BallOpt3, -0.5F, 0.0F, 3},
    {&MainForm::BallOpt4, 0.0F, 0.0F, 4},
}};

void apply(ShotState& shot, const BallOption& option) {
    shot.BallType = option.BallType;
    shot.Slope1 = option.Slope1;
    shot.CD1 = option.CD1;
}

} // namespace

std::span<const BallOption> ballOptions() {
    return kBallOptions;
}

Defaults::Defaults(MainForm& form, MessageBoxes& messages) : form_(form), messages_(messages) {
    for (const BallOption& option : kBallOptions)
        (form_.*option.button).Click.connect([this, &option] { apply(form_.shot, option); });
}

void Defaults::SetSwingDefaults() {
    form_.cmbClubNo.select(0);
    ShotState& shot = form_.shot;
    shot.LaunchAngle = 9.5F;
    shot.RPM = 3200;
    shot.LaunchSpeed = 144;
    shot.HeadSpeed = 100;
    takeClubNumber(form_);
    shot.SpeedIncrement = 1;
    showSwing(form_);
}

void Defaults::SetClubDefaults() {
    ShotState& shot = form_.shot;
    shot.COR = 0.83F;
    shot.HeadWeight = 198;
    shot.AttackAngle = 0;
    shot.LoftAngle = 10;
    shot.Bending = 0;
    apply(shot, kBallOptions.back());
    form_.BallOpt4.select();
    showClub(form_);
    form_.optWood.select();
}

void Defaults::SetEnvironmentDefaults() {
    ShotState& shot = form_.shot;
    shot.WindSpeed = 0;
    shot.Temperature = 70;
    shot.BaroPressure = 29.92F;
    shot.RH = 50;
    shot.h = 0;
    showEnvironment(form_);
}

void Defaults::mnuReset_Click() {
    if (!messages_.ask(
            "Do you want to replace the current Swing, Club, and Environment parameters?"))
        return;
    SetSwingDefaults();
    SetClubDefaults();
    SetEnvironmentDefaults();
}

void showSwing(MainForm& form) {
    form.txtLaunchAngle.setText(shortestText(form.shot.LaunchAngle));
    form.txtLaunchSpeed.setText(shortestText(form.shot.LaunchSpeed));
    form.txtBallSpin.setText(shortestText(form.shot.RPM));
    form.txtHeadSpeed.setText(shortestText(form.shot.HeadSpeed));
    form.txtSpeedIncrement.setText(shortestText(form.shot.SpeedIncrement));
}

void showClub(MainForm& form) {
    form.txtCor.setText(formatPattern(form.shot.COR, "0.00"));
    form.txtHeadWeight.setText(shortestText(form.shot.HeadWeight));
    form.txtAttackAngle.setText(shortestText(form.shot.AttackAngle));
    form.txtBending.setText(shortestText(form.shot.Bending));
    form.txtLoftAngle.setText(shortestText(form.shot.LoftAngle));
}

void showEnvironment(MainForm& form) {
    form.txtWind.setText(shortestText(store32(form.shot.WindSpeed)));
    form.txtTemperature.setText(shortestText(form.shot.Temperature));
    form.txtPressure.setText(shortestText(form.shot.BaroPressure));
    form.txtRelativeHumidity.setText(shortestText(form.shot.RH));
    form.txtAltitude.setText(shortestText(form.shot.h));
}

} // namespace parabolt
