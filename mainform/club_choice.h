#pragma once

#include "mainform/validators.h"

namespace parabolt {

/// Choosing a club: its type, its number in the list, and in mode 1 its values in the fields.
class ClubChoice {
public:
    ClubChoice(ShotControls& form, const ClubTables& clubs, Validators& validators);

    /// The list's selection has changed: takes the club number and, in mode 1, loads the club.
    void cmbClubNo_Click();
    /// The club type has changed: fills the list with its clubs and selects the first.
    void txtType_Change();

private:
    ShotControls& form_;
    const ClubTables& clubs_;
    Validators& validators_;
};

/// Takes the number in the list into the shot.
void takeClubNumber(ShotControls& form);

} // namespace parabolt
