#include "fitting/data_set_entry.h"

namespace parabolt {
namespace {

/// True if the press of Run has made a data set: one more, or the first of a fresh book.
bool runPressed(MainForm& form) {
    const int before = form.Runs.count();
    form.Command1.Click();
    return form.Runs.count() == before + 1 || (before == RunBook::kMost && form.Runs.count() == 1);
}

} // namespace

int runOnForm(MainForm& form, ShotEntry& entry, std::span<const Shot> shots) {
    int run = 0;
    std::optional<ShotInputs> own;
    for (const Shot& shot : shots) {
        if (!entry.enterLaunch(shot))
            break;
        if (!own)
            own = form.shot; // what was being edited has been judged by now
        if (!entry.enterAir(shot) || !runPressed(form))
            break;
        ++run;
    }
    if (own)
        entry.enterAir(*own);
    return run;
}

} // namespace parabolt
