#pragma once

#include "run/fill_in_batch.h"
#include "run/shot_run.h"

#include <functional>

namespace parabolt {

/// What a press of Run does, step by step, and what a press of Clear does.
class RunDriver {
public:
    /// `saveResult` saves the table's text when the user wants that before a full buffer is
    /// cleared.
    RunDriver(InputControls& form, RichTextBox& txtResult, PlotPanel& plot, ShotRun& run,
              FillInBatch& batch, MessageBoxes& messages, std::function<void()> saveResult);

    /// The run: counts a data set, flies the shot, draws it and adds its row; in the mode Auto the
    /// batch over a whole club set.
    void Command1_Click();
    /// Asks, then clears all data sets.
    void Command2_Click();

private:
    bool makeRoom();

    InputControls& form_;
    RichTextBox& txtResult_;
    PlotPanel& plot_;
    ShotRun& run_;
    FillInBatch& batch_;
    MessageBoxes& messages_;
    std::function<void()> saveResult_;
};

} // namespace parabolt
