#include "mainform/shot_entry.h"

#include "mainform/defaults.h"
#include "mainform/modes.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <array>

namespace parabolt {

struct ShotEntry::Field {
    TextBox ShotControls::*field;
    std::variant<float ShotInputs::*, double ShotInputs::*> member;

    double of(const ShotInputs& shot) const {
        return std::visit([&shot](auto at) { return double{shot.*at}; }, member);
    }

    static const std::array<Field, 3> kLaunch;
    static const std::array<Field, 6> kSwing;
    static const std::array<Field, 5> kWeather;
};

const std::array<ShotEntry::Field, 3> ShotEntry::Field::kLaunch = {{
    {&ShotControls::txtLaunchAngle, &ShotInputs::LaunchAngle},
    {&ShotControls::txtBallSpin, &ShotInputs::RPM},
    {&ShotControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed},
}};
const std::array<ShotEntry::Field, 6> ShotEntry::Field::kSwing = {{
    {&ShotControls::txtHeadSpeed, &ShotInputs::HeadSpeed},
    {&ShotControls::txtCor, &ShotInputs::COR},
    {&ShotControls::txtHeadWeight, &ShotInputs::HeadWeight},
    {&ShotControls::txtLoftAngle, &ShotInputs::LoftAngle},
    {&ShotControls::txtBending, &ShotInputs::Bending},
    {&ShotControls::txtAttackAngle, &ShotInputs::AttackAngle},
}};
const std::array<ShotEntry::Field, 5> ShotEntry::Field::kWeather = {{
    {&ShotControls::txtAltitude, &ShotInputs::h},
    {&ShotControls::txtWind, &ShotInputs::WindSpeed},
    {&ShotControls::txtPressure, &ShotInputs::BaroPressure},
    {&ShotControls::txtTemperature, &ShotInputs::Temperature},
    {&ShotControls::txtRelativeHumidity, &ShotInputs::RH},
}};

bool ShotEntry::enterLaunch(const ShotInputs& shot) {
    return enter(OperatingMode::Launch, Field::kLaunch, shot);
}

bool ShotEntry::enterSwing(const ShotInputs& shot) {
    return enter(OperatingMode::Manual, Field::kSwing, shot);
}

bool ShotEntry::enterShot(const Shot& shot) {
    const auto mode = shot.Mode == OperatingMode::Auto
                          ? OperatingMode::Manual
                          : static_cast<OperatingMode::Number>(shot.Mode);
    Fields given = Field::kSwing;
    if (mode == OperatingMode::Launch)
        given = Field::kLaunch;
    else if (mode == OperatingMode::Actual)
        given = given.first(given.size() - 1); // the attack angle is computed
    const Fields measured = Fields(Field::kLaunch).first(mode == OperatingMode::Actual ? 1 : 0);
    for (const Fields& fields : {Fields(Field::kWeather), given, measured})
        if (!ready(fields, shot))
            return false;
    form_.Wiping();
    choose(mode);
    chooseClub(shot);
    for (const BallOption& option : ballOptions())
        if (option.BallType == shot.BallType)
            (form_.*option.button).select();
    write(Field::kWeather, shot);
    write(given, shot);
    if (!measured.empty()) { // of which the text counts, whatever the value
        form_.txtLaunchAngle.setText(shortestText(shot.LaunchAngle));
        validators_.validate(form_.txtLaunchAngle);
    }
    return true;
}

bool ShotEntry::enterAir(const ShotInputs& shot) {
    if (!ready(Field::kWeather, shot))
        return false;
    write(Field::kWeather, shot);
    return true;
}

std::string_view ShotEntry::whyNoLaunch(const ShotInputs& shot) const {
    for (const Fields& fields : {Fields(Field::kLaunch), Fields(Field::kWeather)})
        for (const Field& field : fields)
            if (const auto why = validators_.whyRefused(form_.*field.field, field.of(shot));
                !why.empty())
                return why;
    return {};
}

bool ShotEntry::enter(OperatingMode::Number mode, Fields fields, const ShotInputs& shot) {
    if (!ready(fields, shot))
        return false;
    form_.Wiping();
    choose(mode);
    write(fields, shot);
    return true;
}

bool ShotEntry::ready(Fields fields, const ShotInputs& shot) {
    // What waits is held back as the Run button is; what is being edited is judged first.
    if (!form_.Command1.enabled() || !form_.focus.give(rest_))
        return false;
    return std::all_of(fields.begin(), fields.end(), [&](const Field& field) {
        return validators_.accepts(form_.*field.field, field.of(shot));
    });
}

void ShotEntry::choose(OperatingMode::Number mode) {
    modeButton(form_, mode).select();
    form_.txtMode.setText(std::to_string(mode));
}

/// A club that the lists don't have stays away.
void ShotEntry::chooseClub(const Shot& shot) {
    (shot.IsWood ? form_.optWood : form_.optIron).select();
    if (const int entry = form_.cmbClubNo.indexOf(std::to_string(shot.ClubNo)); entry >= 0)
        form_.cmbClubNo.select(entry);
}

void ShotEntry::write(Fields fields, const ShotInputs& shot) {
    for (const Field& field : fields) {
        if (field.of(form_.shot) == field.of(shot))
            continue;
        TextBox& box = form_.*field.field;
        box.setText(shortestText(store32(field.of(shot))));
        validators_.validate(box);
    }
}

} // namespace parabolt
