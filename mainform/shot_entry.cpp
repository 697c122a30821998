#include "mainform/shot_entry.h"

#include "numbers/text_number.h"

#include <algorithm>
#include <array>
#include <variant>

namespace parabolt {

struct ShotEntry::Field {
    TextBox ShotControls::*field;
    std::variant<float ShotInputs::*, double ShotInputs::*> member;

    double value(const ShotInputs& shot) const {
        return std::visit([&shot](auto part) { return double{shot.*part}; }, member);
    }
    std::string text(const ShotInputs& shot) const {
        return std::visit([&shot](auto part) { return shortestText(shot.*part); }, member);
    }
};

bool ShotEntry::enterLaunch(const ShotInputs& shot) {
    static constexpr std::array<Field, 3> kFields = {{
        {&ShotControls::txtLaunchAngle, &ShotInputs::LaunchAngle},
        {&ShotControls::txtBallSpin, &ShotInputs::RPM},
        {&ShotControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed},
    }};
    return enter(form_.optLaunch, OperatingMode::Launch, kFields, shot);
}

bool ShotEntry::enterSwing(const ShotInputs& shot) {
    static constexpr std::array<Field, 6> kFields = {{
        {&ShotControls::txtHeadSpeed, &ShotInputs::HeadSpeed},
        {&ShotControls::txtCor, &ShotInputs::COR},
        {&ShotControls::txtHeadWeight, &ShotInputs::HeadWeight},
        {&ShotControls::txtLoftAngle, &ShotInputs::LoftAngle},
        {&ShotControls::txtBending, &ShotInputs::Bending},
        {&ShotControls::txtAttackAngle, &ShotInputs::AttackAngle},
    }};
    return enter(form_.optManual, OperatingMode::Manual, kFields, shot);
}

bool ShotEntry::enterAir(const ShotInputs& shot) {
    static constexpr std::array<Field, 5> kFields = {{
        {&ShotControls::txtAltitude, &ShotInputs::h},
        {&ShotControls::txtWind, &ShotInputs::WindSpeed},
        {&ShotControls::txtPressure, &ShotInputs::BaroPressure},
        {&ShotControls::txtTemperature, &ShotInputs::Temperature},
        {&ShotControls::txtRelativeHumidity, &ShotInputs::RH},
    }};
    if (!accepts(kFields, shot))
        return false;
    type(kFields, shot);
    return true;
}

/// What waits is held back as the Run button is; what is being edited is judged first.
bool ShotEntry::accepts(std::span<const Field> fields, const ShotInputs& shot) {
    return form_.Command1.enabled() && form_.focus.give(rest_) &&
           std::all_of(fields.begin(), fields.end(), [&](const Field& field) {
               return validators_.accepts(form_.*field.field, field.value(shot));
           });
}

bool ShotEntry::enter(OptionButton& option, OperatingMode::Number mode,
                      std::span<const Field> fields, const ShotInputs& shot) {
    if (!accepts(fields, shot))
        return false;
    form_.Wiping();
    option.select();
    form_.txtMode.setText(std::to_string(mode));
    type(fields, shot);
    return true;
}

void ShotEntry::type(std::span<const Field> fields, const ShotInputs& shot) {
    for (const Field& field : fields) {
        if (field.value(form_.shot) == field.value(shot))
            continue;
        TextBox& box = form_.*field.field;
        box.setText(field.text(shot));
        validators_.validate(box);
    }
}

} // namespace parabolt
