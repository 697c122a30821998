#include "run/run_driver.h"

#include "results/result_table.h"

#include <utility>

namespace parabolt {

RunDriver::RunDriver(InputControls& form, RichTextBox& txtResult, PlotPanel& plot, ShotRun& run,
                     FillInBatch& batch, MessageBoxes& messages, std::function<void()> saveResult)
    : form_(form),
      txtResult_(txtResult),
      plot_(plot),
      run_(run),
      batch_(batch),
      messages_(messages),
      saveResult_(std::move(saveResult)) {
    form_.Command1.Click.connect([this] { Command1_Click(); });
    form_.Command2.Click.connect([this] { Command2_Click(); });
    txtResult_.Change.connect([this] { followTableEnd(txtResult_); });
}

void RunDriver::Command1_Click() {
    if (runNumber(form_) == 0) {
        if (!holdsOnlyHeadings(txtResult_)) // but notes of the user
            form_.Wiping();
        WriteResultHeader(txtResult_);
    }
    if (!makeRoom())
        return;
    const Shot shot = run_.take();
    if (shot.Mode == OperatingMode::Auto) {
        run_.ClearRuns();
        batch_.RunFillInBatch(shot);
    } else if (const auto flown = run_.flyAndDraw(shot)) {
        run_.WriteResultRow();
    } else { // there is no path to draw and nothing to show
        run_.takeBackRun();
        run_.report(flown.why());
    }
}

/// Counts the data set of this press. A full buffer is saved, and the press ends (false), or it
/// starts afresh.
bool RunDriver::makeRoom() {
    if (runNumber(form_) < RunBook::kMost) {
        if (operatingMode(form_) == OperatingMode::Auto) // the batch begins with an empty book
            form_.Wiping();
        run_.countRun();
        return true;
    }
    if (messages_.ask("The data buffer is full,\r\n"
                      "Save data to file before clearing the result window?")) {
        saveResult_();
        return false;
    }
    form_.Wiping();
    run_.dropRuns();
    run_.countRun();
    WriteResultHeader(txtResult_);
    plot_.DrawPlotFrame();
    return true;
}

void RunDriver::Command2_Click() {
    if (!messages_.ask("This will erase all the data now, are you sure?"))
        return;
    form_.Wiping();
    run_.ClearRuns();
}

} // namespace parabolt
