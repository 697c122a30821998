#pragma once

#include "mainform/validators.h"
#include "shots/shot.h"

namespace parabolt {

/// Enters values from elsewhere into the fields, as the user would: the mode, then each field whose
/// value differs, judged by its validator. Nothing is entered, and the answer is false, while a
/// study or batch runs, where the field being edited is refused, or where one of the values would
/// be: that is told.
class ShotEntry {
public:
    /// `rest` is where the focus goes while values are entered.
    ShotEntry(InputControls& form, Control& rest, Validators& validators)
        : form_(form),
          rest_(rest),
          validators_(validators) {}

    /// The launch of a shot, in the mode Launch.
    bool enterLaunch(const ShotInputs& shot);
    /// Swing and club of a shot, in the mode Manual.
    bool enterSwing(const ShotInputs& shot);
    /// Weather and altitude of a shot; the mode stays.
    bool enterAir(const ShotInputs& shot);

private:
    struct Field;
    bool accepts(std::span<const Field> fields, const ShotInputs& shot);
    bool enter(OptionButton& option, OperatingMode::Number mode, std::span<const Field> fields,
               const ShotInputs& shot);
    void type(std::span<const Field> fields, const ShotInputs& shot);

    InputControls& form_;
    Control& rest_;
    Validators& validators_;
};

} // namespace parabolt
