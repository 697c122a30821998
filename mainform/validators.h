#pragma once

#include "mainform/plot_panel.h"
#include "shots/input_limits.h"

#include <span>
#include <string_view>
#include <variant>

namespace parabolt {

/// What the validator of one field knows.
struct FieldRule : InputLimits {
    TextBox InputControls::*field;
    std::variant<float ShotInputs::*, double ShotInputs::*, float RunControls::*> variable;
    std::string_view fallback;
};

std::span<const FieldRule> fieldRules();

/// Judges what the user types: the way from the sixteen fields into the shot. A field is judged
/// when it loses the focus and when Enter is released in it. A good value goes into its variable. A
/// bad one raises one message, is replaced by the field's fallback and keeps the focus; the
/// variable keeps its value until the field passes.
class Validators {
public:
    Validators(InputControls& form, PlotPanel& plot, MessageBoxes& messages);

    /// Judges a field now. A disabled field can't keep the focus; all else holds for it too.
    void validate(const TextBox& field);
    /// What the user is told of a value that a field refuses; empty for one that it accepts.
    std::string_view whyRefused(const TextBox& field, double value) const;
    /// True if a field would accept a value; tells the user otherwise, and nothing else happens.
    bool accepts(const TextBox& field, double value);

private:
    void judge(const FieldRule& rule);
    void store(const FieldRule& rule, double value);
    void rescale(float RunControls::*scale, float yards);

    InputControls& form_;
    PlotPanel& plot_;
    MessageBoxes& messages_;
};

} // namespace parabolt
