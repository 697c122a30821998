#include "run/fill_in_batch.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

namespace parabolt {

FillInBatch::FillInBatch(InputControls& form, ShotRun& run, Pause& pause)
    : form_(form),
      run_(run),
      pause_(pause) {}

void FillInBatch::RunFillInBatch(Shot shot) {
    if (const auto air = deriveAir(shot); !air)
        return run_.report(air.why());
    const LongRun busy(pause_);
    run_.dropRuns();
    form_.Timer1.setInterval(10);
    for (const std::int16_t club : playableClubs(!shot.IsWood)) {
        form_.cmbClubNo.select(form_.cmbClubNo.indexOf(std::to_string(club)));
        form_.shot.ClubNo = club;
        static_cast<ShotInputs&>(shot) = form_.shot;
        shot.sources.club = run_.clubOf(shot);
        if (!shoot(shot))
            return;
    }
}

/// One club; false if the user has stopped the batch. The row comes after the pause, when the field
/// already shows the next club's speed; the row itself shows the speed that was flown.
bool FillInBatch::shoot(const Shot& shot) {
    run_.countRun();
    const auto flown = run_.flyAndDraw(shot);
    if (!flown) {
        run_.takeBackRun();
        run_.report(flown.why());
    }
    const bool goOn = pause_.wait();
    if (flown) {
        if (!shot.sources.wholeRecord)
            form_.shot.HeadSpeed =
                store32(form_.shot.HeadSpeed - leadingNumber(form_.txtSpeedIncrement.text()));
        form_.txtHeadSpeed.setText(shortestText(form_.shot.HeadSpeed));
        run_.WriteResultRow();
    }
    return goOn;
}

} // namespace parabolt
