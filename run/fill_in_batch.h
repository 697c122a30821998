#pragma once

#include "run/pause.h"
#include "run/run_driver.h"

namespace parabolt {

/// Shoots a whole club set, a data set for each club that the list offers, with a pause after each
/// curve. Unless the tables fill in each club's own speed, the head speed falls by the increment in
/// its field from shot to shot and stays there.
class FillInBatch {
public:
    FillInBatch(MainForm& form, RunDriver& driver, Pause& pause);

    /// The air must have been computed before.
    void RunFillInBatch();

private:
    bool shoot(std::int16_t club);

    MainForm& form_;
    RunDriver& driver_;
    Pause& pause_;
};

} // namespace parabolt
