#pragma once

#include "files/dialog_routine.h"
#include "files/parameters_file.h"
#include "mainform/main_form.h"

namespace parabolt {

/// Keeps the set-up of the form, swing, club, ball and weather, in parameters files. Mode, club
/// tables, data sets and scale are no part of it.
class ParameterHandlers {
public:
    ParameterHandlers(ShotControls& form, FileDialog& dialog, PreferencesStore& preferences,
                      MessageBoxes& messages, std::string applicationFolder);

    /// Asks for a file, and once more before its values replace those of the form.
    void mnuOpen_Click();
    /// Saves the variables as they stand: a field whose text hasn't been judged yet isn't saved.
    void mnuSave_Click();

private:
    ShotControls& form_;
    MessageBoxes& messages_;
    DialogRoutine dialogs_;
};

/// The set-up of the form.
ParameterRecord collectParameters(const ShotControls& form);

/// Lays a set-up into variables and fields. The validators judge none of it. In mode 1 the club
/// tables have the last word on the club's values. Fails half-way if there is no club of that
/// number: the variables hold the new values then, the fields still the old ones.
Outcome<void, Failure> applyParameters(ShotControls& form, const ParameterRecord& record);

} // namespace parabolt
