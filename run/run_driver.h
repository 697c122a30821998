#pragma once

#include "engine/fault.h"
#include "mainform/plot_panel.h"

#include <functional>

namespace parabolt {

/// What a press of Run does, step by step, and the clearing of the data sets.
class RunDriver {
public:
    /// `saveResult` saves the table's text when the user wants that before a full buffer is
    /// cleared.
    RunDriver(MainForm& form, PlotPanel& plot, MessageBoxes& messages,
              std::function<void()> saveResult);

    /// In mode 3 a press of Run ends in this: the whole batch over a club set.
    std::function<void()> RunFillInBatch;

    /// The run: counts a data set, flies the shot, draws it and adds its row; in mode 3 the batch.
    void Command1_Click();
    /// Asks, then clears all data sets.
    void Command2_Click();

    /// Empties counter, table, data sets and plot.
    void ClearRuns();
    /// Empties the counter and the data sets and keeps table and plot.
    void dropRuns();

    /// Derives the air from the weather; the fault if there is none for it.
    std::optional<Fault> ComputeEnvironment();
    /// Brings the launch up to date: in all modes but Launch the impact model computes it, and
    /// shows it in the fields. The fault if the swing has no launch.
    std::optional<Fault> PrepareLaunch();
    /// Tells the user of a fault; true if there is one.
    bool reportFault(std::optional<Fault> fault);
    /// Counts one more data set.
    void countRun();
    /// Flies the counted data set, in its colour, and draws all. A failed flight is shown; its data
    /// set stays, as far as it came.
    void flyAndDraw();
    /// Adds the row of the counted data set.
    void WriteResultRow();

private:
    bool makeRoom();
    void takeBackRun();
    void SetCurveColor();
    void SimulateFlight();

    MainForm& form_;
    PlotPanel& plot_;
    MessageBoxes& messages_;
    std::function<void()> saveResult_;
};

} // namespace parabolt
