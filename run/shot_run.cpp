#include "run/shot_run.h"

#include "results/result_table.h"
#include "shots/fault_words.h"

#include <utility>

namespace parabolt {

ShotRun::ShotRun(InputControls& form, const ClubTables& clubs, RichTextBox& txtResult,
                 PlotPanel& plot, MessageBoxes& messages)
    : form_(form),
      clubs_(clubs),
      txtResult_(txtResult),
      plot_(plot),
      messages_(messages) {}

void ShotRun::countRun() {
    form_.Runs.add();
    form_.txtRun.setText(std::to_string(runNumber(form_) + 1));
}

void ShotRun::takeBackRun() {
    form_.Runs.takeBack();
    form_.txtRun.setText(std::to_string(runNumber(form_) - 1));
}

Outcome<void, Fault> ShotRun::flyAndDraw(const Shot& shot) {
    const auto outcome = fly(shot);
    if (!outcome && !outcome.why().flight)
        return because(outcome.why().fault);
    const FlownShot& flown = outcome ? *outcome : *outcome.why().flight;
    form_.shot = static_cast<const ShotInputs&>(flown.shot);
    showLaunch(form_, flown.shot);
    form_.Runs.newest() = flown.record;
    form_.Runs.setTag(form_.Runs.count(),
                      {.name = {}, .ticked = true, .ball = flown.shot.BallType});
    SetCurveColor();
    if (!outcome)
        report(outcome.why().fault);
    plot_.DrawCurves();
    return {};
}

void ShotRun::SetCurveColor() {
    form_.Runs.newest().CurveColor = curveColour(runNumber(form_));
}

void ShotRun::WriteResultRow() {
    parabolt::WriteResultRow(txtResult_, form_.Runs.newest(), form_.shot.ClubNo,
                             form_.txtRun.text());
    plot_.tellNewest();
}

void ShotRun::dropRuns() {
    form_.txtRun.setText("0");
    form_.Runs.clear();
    plot_.tellNewest();
}

void ShotRun::ClearRuns() {
    dropRuns();
    txtResult_.clear();
    plot_.DrawPlotFrame();
    WriteResultHeader(txtResult_);
}

void ShotRun::report(Fault fault) {
    messages_.show(faultDescription(fault));
}

} // namespace parabolt
