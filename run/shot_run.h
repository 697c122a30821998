#pragma once

#include "mainform/form_shot.h"
#include "mainform/plot_panel.h"
#include "shots/fly.h"

#include <optional>

namespace parabolt {

/// The steps of which every run consists, single, of a batch or of a study: counting a data set,
/// flying it, drawing it and writing its row.
class ShotRun {
public:
    ShotRun(InputControls& form, const ClubTables& clubs, RichTextBox& txtResult, PlotPanel& plot,
            MessageBoxes& messages);

    /// The shot that the form stands for.
    Shot take() const { return takeShot(form_, clubs_); }
    /// The club of the set that a shot is made with.
    std::optional<ClubRecord> clubOf(const Shot& shot) const { return clubOfSet(shot, clubs_); }

    /// Counts one more data set.
    void countRun();
    /// Takes the newest data set back.
    void takeBackRun();
    /// Flies a shot into the newest data set and draws all. What the impact model computed stands
    /// in variables and fields then. A flight that fails is told; its data set stays, as far as it
    /// came. The fault of a shot that has no air or no launch: nothing has happened then.
    Outcome<void, Fault> flyAndDraw(const Shot& shot);
    /// Adds the row of the newest data set.
    void WriteResultRow();

    /// Empties counter, table, data sets and plot.
    void ClearRuns();
    /// Empties the counter and the data sets and keeps table and plot.
    void dropRuns();

    /// Tells the user.
    void report(Fault fault);

private:
    void SetCurveColor();

    InputControls& form_;
    const ClubTables& clubs_;
    RichTextBox& txtResult_;
    PlotPanel& plot_;
    MessageBoxes& messages_;
};

} // namespace parabolt
