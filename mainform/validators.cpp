#include "mainform/validators.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

/// Stands where a text that is no number gets the message of a value out of range.
constexpr std::string_view kSame;

// Field, variable, lowest, highest, fallback; message for a value out of range, message for a text
// that is no number. The users know these messages; where one disagrees with its limits, the limits
// hold.
constexpr std::array<FieldRule, 16> kFieldRules = {{
    {&ShotControls::txtLaunchAngle, &ShotInputs::LaunchAngle, 0, 55, "9.5",
     "The combined launch angle resulting from head loft plus attack angle must be "
     "greater than 0 and less than 50 degrees. Note the launch angle upper right. "
     "Defaults to 9.5 degrees or try again.",
     kSame},
    {&ShotControls::txtBallSpin, &ShotInputs::RPM, 0, 22000, "3200",
     "Enter a value between 0 and 22000 RPM for ball spin. Defaults to 3200 RPM or try "
     "again!",
     kSame},
    {&ShotControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed, 30, 250, "144",
     "Enter a value between 30 and 250 MPH for launch speed.Defaults to 144 MPH or try "
     "again.",
     kSame},
    {&ShotControls::txtHeadSpeed, &ShotInputs::HeadSpeed, 50, 165, "100",
     "Enter a head speed between 50 and 165 mph. Defaults to 100mph.Try Again.", kSame},
    {&ShotControls::txtSpeedIncrement, &ShotInputs::SpeedIncrement, 1, 3, "1",
     "Enter a value between 1 and 3 mph. Defaults to 1 mph or try again.", kSame},
    {&RunControls::txtRange, &RunControls::sRange, 100, 500, "300",
     "The value must between 100 - 500, restore default value!",
     "You must input a number, restore the default value!"},
    {&ShotControls::txtCor, &ShotInputs::COR, 0.7, 0.9, "0.80",
     "Enter values between 0.7 and 0.9! Try again!",
     "Enter a value between 0.7 and 0.9! Defaults to 0.8 or try again."},
    {&ShotControls::txtHeadWeight, &ShotInputs::HeadWeight, 180, 320, "225",
     "Enter values between 180 and 320 grams, try again.", kSame},
    {&ShotControls::txtAttackAngle, &ShotInputs::AttackAngle, -5, 20, "0",
     "Enter a value between -5 and +20 degrees. Try again.", kSame},
    {&ShotControls::txtBending, &ShotInputs::Bending, -10, 10, "0",
     "Enter a value between -10 and 10 degrees. Try again.", kSame},
    {&ShotControls::txtLoftAngle, &ShotInputs::LoftAngle, 0, 65, "18",
     "Enter values between 0 and 65 degrees, try again.", kSame},
    {&ShotControls::txtAltitude, &ShotInputs::h, 0, 15000, "0",
     "Enter a value between 0 and 15000 feet for elevation. Defaults to 0 or try again.", kSame},
    {&ShotControls::txtPressure, &ShotInputs::BaroPressure, 25, 34, "29.92",
     "Enter a value between 25 and 34 inches mercury (Hg) for barometric pressure. "
     "Defaults to 29.92 or try again.",
     kSame},
    {&ShotControls::txtRelativeHumidity, &ShotInputs::RH, 0, 100, "50",
     "Enter a value between 0 and 100 % for relative humidity. Defaults to 50% or try "
     "again.",
     "Enter a value between 0 and 100 % for Relative Humidity. Defaults to 50% or try "
     "again."},
    {&ShotControls::txtTemperature, &ShotInputs::Temperature, 20, 120, "70",
     "Enter a value between 20 and 120 degrees F for temperature. Defaults to 70 degrees "
     "or try again.",
     kSame},
    {&ShotControls::txtWind, &ShotInputs::WindSpeed, -35, 35, "0",
     "Enter a value between -35 and 35 mph for wind speed. Defaults to 0 MPH or try again.",
     "Enter a value between 0 and 35 mph for wind speed. Defaults to 0 MPH or try again."},
}};

} // namespace

std::span<const FieldRule> fieldRules() {
    return kFieldRules;
}

Validators::Validators(InputControls& form, PlotPanel& plot, MessageBoxes& messages)
    : form_(form),
      plot_(plot),
      messages_(messages) {
    for (const FieldRule& rule : kFieldRules) {
        TextBox& field = form_.*rule.field;
        field.LostFocus.connect([this, &rule] { judge(rule); });
        field.KeyUp.connect([this, &rule](int key) {
            if (key == keys::kEnter)
                judge(rule);
        });
    }
}

void Validators::validate(const TextBox& field) {
    for (const FieldRule& rule : kFieldRules)
        if (&(form_.*rule.field) == &field)
            judge(rule);
}

bool Validators::accepts(const TextBox& field, double value) {
    for (const FieldRule& rule : kFieldRules)
        if (&(form_.*rule.field) == &field && !(value >= rule.lowest && value <= rule.highest)) {
            messages_.show(rule.rangeMessage);
            return false;
        }
    return true;
}

void Validators::judge(const FieldRule& rule) {
    TextBox& field = form_.*rule.field;
    const auto value = parseNumber(field.text());
    if (value && *value >= rule.lowest && *value <= rule.highest) {
        store(rule, *value);
    } else {
        const bool sameMessage = value || rule.numberMessage.empty();
        messages_.show(sameMessage ? rule.rangeMessage : rule.numberMessage);
        field.setText(rule.fallback);
        form_.focus.give(field);
    }
    SelectWholeText(field);
}

void Validators::store(const FieldRule& rule, double value) {
    if (const auto* wide = std::get_if<double ShotInputs::*>(&rule.variable))
        form_.shot.*(*wide) = value;
    else if (const auto* narrow = std::get_if<float ShotInputs::*>(&rule.variable))
        form_.shot.*(*narrow) = store32(value);
    else
        rescale(std::get<float RunControls::*>(rule.variable), store32(value));
}

void Validators::rescale(float RunControls::*scale, float yards) {
    form_.*scale = yards;
    plot_.redraw();
}

} // namespace parabolt
