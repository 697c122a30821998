#include "mainform/validators.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

constexpr InputLimits kScale{100, 500, "The value must between 100 - 500, restore default value!",
                             "You must input a number, restore the default value!"};

// Limits, field, variable, fallback.
constexpr std::array<FieldRule, 16> kFieldRules = {{
    {limits::kLaunchAngle, &ShotControls::txtLaunchAngle, &ShotInputs::LaunchAngle, "9.5"},
    {limits::kSpin, &ShotControls::txtBallSpin, &ShotInputs::RPM, "3200"},
    {limits::kLaunchSpeed, &ShotControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed, "144"},
    {limits::kHeadSpeed, &ShotControls::txtHeadSpeed, &ShotInputs::HeadSpeed, "100"},
    {limits::kSpeedIncrement, &ShotControls::txtSpeedIncrement, &ShotInputs::SpeedIncrement, "1"},
    {kScale, &RunControls::txtRange, &RunControls::sRange, "300"},
    {limits::kCor, &ShotControls::txtCor, &ShotInputs::COR, "0.80"},
    {limits::kHeadWeight, &ShotControls::txtHeadWeight, &ShotInputs::HeadWeight, "225"},
    {limits::kAttackAngle, &ShotControls::txtAttackAngle, &ShotInputs::AttackAngle, "0"},
    {limits::kBending, &ShotControls::txtBending, &ShotInputs::Bending, "0"},
    {limits::kLoftAngle, &ShotControls::txtLoftAngle, &ShotInputs::LoftAngle, "18"},
    {limits::kAltitude, &ShotControls::txtAltitude, &ShotInputs::h, "0"},
    {limits::kPressure, &ShotControls::txtPressure, &ShotInputs::BaroPressure, "29.92"},
    {limits::kHumidity, &ShotControls::txtRelativeHumidity, &ShotInputs::RH, "50"},
    {limits::kTemperature, &ShotControls::txtTemperature, &ShotInputs::Temperature, "70"},
    {limits::kWind, &ShotControls::txtWind, &ShotInputs::WindSpeed, "0"},
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

std::string_view Validators::whyRefused(const TextBox& field, double value) const {
    for (const FieldRule& rule : kFieldRules)
        if (&(form_.*rule.field) == &field && !rule.hold(value))
            return rule.rangeMessage;
    return {};
}

bool Validators::accepts(const TextBox& field, double value) {
    const std::string_view why = whyRefused(field, value);
    if (!why.empty())
        messages_.show(why);
    return why.empty();
}

void Validators::judge(const FieldRule& rule) {
    TextBox& field = form_.*rule.field;
    const auto value = parseNumber(field.text());
    if (value && rule.hold(*value)) {
        store(rule, *value);
    } else {
        messages_.show(value ? rule.rangeMessage : rule.noNumber());
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
