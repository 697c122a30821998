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
    /// All that a shot was flown with: club, ball and weather, and the launch or the swing in its
    /// mode. A shot of the mode Auto, which flies whole sets, is entered in the mode Manual; one
    /// whose ball nobody knows keeps the ball of the form.
    bool enterShot(const Shot& shot);
    /// Weather and altitude of a shot; the mode stays.
    bool enterAir(const ShotInputs& shot);
    /// What the user would be told if a field refused its value of a shot's launch or weather;
    /// empty if all accept theirs.
    std::string_view whyNoLaunch(const ShotInputs& shot) const;

private:
    struct Field;
    using Fields = std::span<const Field>;
    bool ready(Fields fields, const ShotInputs& shot);
    void choose(OperatingMode::Number mode);
    void chooseClub(const Shot& shot);
    void write(Fields fields, const ShotInputs& shot);
    bool enter(OperatingMode::Number mode, Fields fields, const ShotInputs& shot);

    InputControls& form_;
    Control& rest_;
    Validators& validators_;
};

} // namespace parabolt
