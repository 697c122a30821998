#pragma once

#include "mainform/validators.h"
#include "shots/shot.h"

namespace parabolt {

/// Enters values from elsewhere into the fields, as the user would: the mode, then each field whose
/// value differs, judged by its validator. Nothing happens, and the answer is false, while a study
/// or batch runs, or where the field being edited is refused.
class ShotEntry {
public:
    /// The validators may come into being later, but before the first entry.
    ShotEntry(MainForm& form, Validators& validators) : form_(form), validators_(validators) {}

    /// The launch of a shot, in the mode Launch.
    bool enterLaunch(const ShotInputs& shot);
    /// Swing and club of a shot, in the mode Manual.
    bool enterSwing(const ShotInputs& shot);

private:
    struct Field;
    bool enter(OptionButton& option, OperatingMode::Number mode, std::span<const Field> fields,
               const ShotInputs& shot);

    MainForm& form_;
    Validators& validators_;
};

} // namespace parabolt
