#include "fitting/data_set_entry.h"

#include "shots/fault_words.h"
#include "shots/fly.h"

namespace parabolt {
namespace {

/// True if the press of Run has made a data set: one more, or the first of a fresh book.
bool runPressed(MainForm& form) {
    const int before = form.Runs.count();
    form.Command1.Click();
    return form.Runs.count() == before + 1 || (before == RunBook::kMost && form.Runs.count() == 1);
}

/// Why a shot can become no data set; empty if it can.
std::string whyNotRun(const ShotEntry& entry, const Shot& shot) {
    if (const auto refusal = entry.whyNoLaunch(shot); !refusal.empty())
        return std::string(refusal);
    const auto flown = fly(shot);
    return flown ? std::string() : std::string(faultDescription(flown.why().fault));
}

void nameNewest(RunBook& book, const std::string& name) {
    DataSetTag tag = book.tag(book.count());
    tag.name = name;
    book.setTag(book.count(), std::move(tag));
}

} // namespace

SeriesReport runOnForm(MainForm& form, ShotEntry& entry, std::span<const NamedShot> shots) {
    SeriesReport report{shots.size(), 0, {}};
    const auto missing = [&report](const std::string& why, const std::string& name = {}) {
        if (report.why.empty())
            report.why = name.empty() ? why : name + ": " + why;
    };
    std::optional<ShotInputs> own;
    for (const auto& [name, shot] : shots) {
        if (report.run == RunBook::kMost) {
            missing("A book holds 24 data sets.");
            break;
        }
        if (const std::string why = whyNotRun(entry, shot); !why.empty()) {
            missing(why, name);
            continue;
        }
        if (!entry.enterLaunch(shot)) {
            missing("The main form takes no shots while it runs or a field holds a bad value.");
            break;
        }
        if (!own)
            own = form.shot; // what was being edited has been judged by now
        if (!entry.enterAir(shot) || !runPressed(form)) {
            missing("The data buffer is full.");
            break;
        }
        nameNewest(form.Runs, name);
        ++report.run;
    }
    if (own)
        entry.enterAir(*own);
    return report;
}

std::string seriesInWords(const SeriesReport& report) {
    const auto shots = [](std::size_t count) {
        return std::to_string(count) + (count == 1 ? " shot" : " shots");
    };
    const std::string became = report.run > 1 ? " became data sets." : " became a data set.";
    if (report.run == report.asked)
        return shots(report.run) + became;
    if (report.asked == 1)
        return "The shot became no data set. " + report.why;
    return (report.run == 0 ? "None" : std::to_string(report.run)) + " of " + shots(report.asked) +
           became + " " + report.why;
}

} // namespace parabolt
