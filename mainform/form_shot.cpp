#include "mainform/form_shot.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

namespace parabolt {

Shot takeShot(const ShotControls& form, const ClubTables& clubs) {
    Shot shot{form.shot, {operatingMode(form), form.optWood.selected()}, {}};
    shot.sources.club = clubOfSet(shot, clubs);
    shot.sources.wholeRecord = shot.Mode == OperatingMode::Auto && form.chkBatch.checked();
    if (form.optActual.selected())
        shot.sources.measuredLaunchAngle = leadingNumber(form.txtLaunchAngle.text());
    return shot;
}

Shot acceptedShot(const ShotControls& form, const ClubTables& clubs) {
    Shot shot = takeShot(form, clubs);
    if (shot.sources.measuredLaunchAngle && form.focus.active() == &form.txtLaunchAngle)
        shot.sources.measuredLaunchAngle = form.shot.LaunchAngle;
    return shot;
}

std::optional<ClubRecord> clubOfSet(const Shot& shot, const ClubTables& clubs) {
    if (shot.Mode != OperatingMode::Default && shot.Mode != OperatingMode::Auto)
        return std::nullopt;
    const ClubRecord* club = playableClub(clubs, !shot.IsWood, shot.ClubNo);
    return club != nullptr ? std::optional(*club) : std::nullopt;
}

void showLaunch(ShotControls& form, const Shot& shot) {
    if (shot.Mode == OperatingMode::Launch)
        return;
    if (shot.sources.club && shot.sources.wholeRecord) {
        form.txtCor.setText(formatPattern(shot.COR, "0.00"));
        form.txtHeadSpeed.setText(shortestText(shot.HeadSpeed));
        form.txtAttackAngle.setText(shortestText(shot.AttackAngle));
        form.txtBending.setText(shortestText(shot.Bending));
    }
    if (shot.sources.measuredLaunchAngle)
        form.txtAttackAngle.setText(shortestText(shot.AttackAngle));
    else
        form.txtLaunchAngle.setText(formatPattern(shot.LaunchAngle, ".0"));
    form.txtBallSpin.setText(shortestText(shot.RPM));
    form.txtLaunchSpeed.setText(formatPattern(shot.LaunchSpeed, ".0"));
    form.txtLoftAngle.setText(shortestText(shot.LoftAngle));
    form.txtHeadWeight.setText(shortestText(shot.HeadWeight));
}

void showSwing(ShotControls& form) {
    form.txtLaunchAngle.setText(shortestText(form.shot.LaunchAngle));
    form.txtLaunchSpeed.setText(shortestText(form.shot.LaunchSpeed));
    form.txtBallSpin.setText(shortestText(form.shot.RPM));
    form.txtHeadSpeed.setText(shortestText(form.shot.HeadSpeed));
    form.txtSpeedIncrement.setText(shortestText(form.shot.SpeedIncrement));
}

void showClub(ShotControls& form) {
    form.txtCor.setText(formatPattern(form.shot.COR, "0.00"));
    form.txtHeadWeight.setText(shortestText(form.shot.HeadWeight));
    form.txtAttackAngle.setText(shortestText(form.shot.AttackAngle));
    form.txtBending.setText(shortestText(form.shot.Bending));
    form.txtLoftAngle.setText(shortestText(form.shot.LoftAngle));
}

void showEnvironment(ShotControls& form) {
    form.txtWind.setText(shortestText(store32(form.shot.WindSpeed)));
    form.txtTemperature.setText(shortestText(form.shot.Temperature));
    form.txtPressure.setText(shortestText(form.shot.BaroPressure));
    form.txtRelativeHumidity.setText(shortestText(form.shot.RH));
    form.txtAltitude.setText(shortestText(form.shot.h));
}

} // namespace parabolt
