#pragma once

#include "mainform/main_form.h"
#include "mainform/shot_entry.h"
#include "measured/club_statistics.h"

#include <span>
#include <string>

namespace parabolt {

/// What came of shots that were to become data sets.
struct SeriesReport {
    std::size_t asked = 0; ///< shots
    std::size_t run = 0;   ///< of these, data sets
    std::string why;       ///< why the first that is missing isn't there; empty if none is missing
    friend bool operator==(const SeriesReport&, const SeriesReport&) = default;
};

/// Runs shots on the main form, one after another, as the user would: the launch is typed in, in
/// the mode Launch, and Run pressed; the data set gets the shot's name. Where a shot has another
/// air than the form, that goes into the fields too; in the end the form has its own air again. A
/// shot that a field would refuse, or that doesn't come down, is passed over. A full buffer asks,
/// as it always does; to save it ends the series, as do 24 data sets.
SeriesReport runOnForm(MainForm& form, ShotEntry& entry, std::span<const NamedShot> shots);

/// "2 of 3 shots became data sets. 7i, line 4: ..."
std::string seriesInWords(const SeriesReport& report);

} // namespace parabolt
