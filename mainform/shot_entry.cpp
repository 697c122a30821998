#include "mainform/shot_entry.h"

#include "numbers/text_number.h"

#include <array>

namespace parabolt {

struct ShotEntry::Field {
    TextBox ShotControls::*field;
    float ShotInputs::*member;
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

bool ShotEntry::enter(OptionButton& option, OperatingMode::Number mode,
                      std::span<const Field> fields, const ShotInputs& shot) {
    // What waits is held back as the Run button is; what is being edited is judged first.
    if (!form_.Command1.enabled() || !form_.focus.give(rest_))
        return false;
    for (const auto& [field, member] : fields)
        if (!validators_.accepts(form_.*field, double{shot.*member}))
            return false;
    form_.Wiping();
    option.select();
    form_.txtMode.setText(std::to_string(mode));
    for (const auto& [field, member] : fields) {
        if (form_.shot.*member == shot.*member)
            continue;
        TextBox& box = form_.*field;
        box.setText(shortestText(shot.*member));
        validators_.validate(box);
    }
    return true;
}

} // namespace parabolt
