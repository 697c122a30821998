#pragma once

#include "clubs/club_tables.h"
#include "numbers/coloured_text.h"
#include "numbers/shared_text.h"
#include "shots/run_book.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace parabolt {

/// All that is on the desk of the user: what the main form holds and shows, as a value. A desk that
/// is laid on the form again goes on as if it had never left.
struct Desk {
    ShotInputs shot;   ///< the values that the fields have passed on
    int mode = 2;      ///< an `OperatingMode`
    bool iron = false; ///< the list of clubs holds irons, not woods
    int club = 0;      ///< entry of that list, from 0
    int ball = 4;      ///< ball option, 1 to 4
    bool fillIn = false;
    std::map<std::string, std::string> fields; ///< what stands in the fields, by their names
    float scale = 300;                         ///< width of the plot, yards
    ClubTables clubs;
    std::vector<RunRecord> runs;  ///< the data sets in their order
    std::vector<DataSetTag> tags; ///< of each; what lacks is as at first
    int base = 1;                 ///< number of the data set with which others are compared

    ColouredTexts table;
    std::size_t caret = 0;           ///< in the table
    std::optional<Rgb> typingColour; ///< in which typing into the table goes on, if it was set

    std::string reportCaption;
    std::map<std::string, SharedText> windows; ///< state of windows that are no forms, by name

    /// Of an element of the runs.
    DataSetTag tagOf(std::size_t run) const { return run < tags.size() ? tags[run] : DataSetTag(); }

    friend bool operator==(const Desk&, const Desk&) = default;
};

/// A desk, and when it was as it is.
struct Session {
    Desk desk;
    std::string time; ///< local time, "2026-11-23 10:32"
};

} // namespace parabolt
