#include "mainform/shot_entry.h"

#include "numbers/text_number.h"

#include <array>

namespace parabolt {

struct ShotEntry::Field {
    TextBox ShotControls::*field;
    float ShotInputs::*member;
    std::string_view pattern; ///< of a value that is computed; empty to show all its digits
};

bool ShotEntry::enterLaunch(const ShotInputs& shot) {
    static constexpr std::array<Field, 3> kFields = {{
        {&ShotControls::txtLaunchAngle, &ShotInputs::LaunchAngle, ""},
        {&ShotControls::txtBallSpin, &ShotInputs::RPM, ""},
        {&ShotControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed, ".0"},
    }};
    return enter(form_.optLaunch, OperatingMode::Launch, kFields, shot);
}

bool ShotEntry::enterSwing(const ShotInputs& shot) {
    static constexpr std::array<Field, 6> kFields = {{
        {&ShotControls::txtHeadSpeed, &ShotInputs::HeadSpeed, ""},
        {&ShotControls::txtCor, &ShotInputs::COR, ""},
        {&ShotControls::txtHeadWeight, &ShotInputs::HeadWeight, ""},
        {&ShotControls::txtLoftAngle, &ShotInputs::LoftAngle, ""},
        {&ShotControls::txtBending, &ShotInputs::Bending, ""},
        {&ShotControls::txtAttackAngle, &ShotInputs::AttackAngle, ""},
    }};
    return enter(form_.optManual, OperatingMode::Manual, kFields, shot);
}

bool ShotEntry::enter(OptionButton& option, OperatingMode::Number mode,
                      std::span<const Field> fields, const ShotInputs& shot) {
    // What waits is held back as the Run button is; what is being edited is judged first.
    if (!form_.Command1.enabled() || !form_.focus.give(form_.Picture1))
        return false;
    form_.Wiping();
    option.select();
    form_.txtMode.setText(std::to_string(mode));
    for (const auto& [field, member, pattern] : fields) {
        const float value = shot.*member;
        if (form_.shot.*member == value)
            continue;
        TextBox& box = form_.*field;
        box.setText(pattern.empty() ? shortestText(value) : formatPattern(value, pattern));
        validators_.validate(box);
    }
    return true;
}

} // namespace parabolt
