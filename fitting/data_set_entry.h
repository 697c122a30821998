#pragma once

#include "mainform/main_form.h"
#include "mainform/shot_entry.h"

#include <span>

namespace parabolt {

/// Runs shots on the main form, one after another, as the user would: the launch is typed in, in
/// the mode Launch, and Run pressed. Where a shot has another air than the form, that goes into the
/// fields too; in the end the form has its own air again. A full buffer asks, as it always does; a
/// shot that the form doesn't run ends the series. Returns the number of shots that were run.
int runOnForm(MainForm& form, ShotEntry& entry, std::span<const Shot> shots);

} // namespace parabolt
