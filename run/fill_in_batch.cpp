#include "run/fill_in_batch.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

namespace parabolt {

FillInBatch::FillInBatch(MainForm& form, RunDriver& driver, Pause& pause)
    : form_(form),
      driver_(driver),
      pause_(pause) {
    driver_.RunFillInBatch = [this] { RunFillInBatch(); };
}

void FillInBatch::RunFillInBatch() {
    const LongRun busy(form_, pause_);
    driver_.dropRuns();
    form_.Timer1.setInterval(10);
    for (const std::int16_t club : playableClubs(form_.optIron.selected()))
        if (!shoot(club))
            return;
}

/// One club; false if the user has stopped the batch. The row comes after the pause, when the field
/// already shows the next club's speed; the row itself shows the speed that was flown.
bool FillInBatch::shoot(std::int16_t club) {
    form_.cmbClubNo.select(form_.cmbClubNo.indexOf(std::to_string(club)));
    form_.shot.ClubNo = club;
    if (driver_.reportFault(driver_.PrepareLaunch()))
        return true;
    driver_.countRun();
    driver_.flyAndDraw();
    const bool goOn = pause_.wait();
    if (!form_.chkBatch.checked())
        form_.shot.HeadSpeed =
            store32(form_.shot.HeadSpeed - leadingNumber(form_.txtSpeedIncrement.text()));
    form_.txtHeadSpeed.setText(shortestText(form_.shot.HeadSpeed));
    driver_.WriteResultRow();
    return goOn;
}

} // namespace parabolt
