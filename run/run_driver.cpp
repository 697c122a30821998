#include "run/run_driver.h"

#include "engine/air.h"
#include "engine/flight.h"
#include "engine/impact.h"
#include "engine/units.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "results/result_table.h"

#include <array>
#include <utility>

namespace parabolt {
namespace {

constexpr int kMostRuns = 24;

/// By the number of the data set, modulo 12.
constexpr std::array<Rgb, 12> kCurveColors = {{
    {160, 82, 45},
    {255, 0, 0},
    {0, 255, 0},
    {0, 0, 255},
    {255, 127, 80},
    {0, 255, 255},
    {218, 112, 147},
    {255, 0, 255},
    {255, 20, 147},
    {218, 165, 32},
    {0, 191, 255},
    {175, 175, 175},
}};

/// Where the impact model takes its inputs from, by mode and option buttons.
ImpactSources impactSources(const MainForm& form) {
    ImpactSources sources;
    const int mode = operatingMode(form);
    if (mode == OperatingMode::Default || mode == OperatingMode::Auto)
        sources.club = playableClub(form.clubs, form.optIron.selected(), form.shot.ClubNo);
    sources.wholeRecord = mode == OperatingMode::Auto && form.chkBatch.checked();
    if (form.optActual.selected())
        sources.measuredLaunchAngle = leadingNumber(form.txtLaunchAngle.text());
    return sources;
}

/// Shows in the fields what the impact model has read and computed.
void showLaunch(MainForm& form, const ImpactSources& sources) {
    const ShotState& shot = form.shot;
    if (sources.club != nullptr && sources.wholeRecord) {
        form.txtCor.setText(formatPattern(shot.COR, "0.00"));
        form.txtHeadSpeed.setText(shortestText(shot.HeadSpeed));
        form.txtAttackAngle.setText(shortestText(shot.AttackAngle));
        form.txtBending.setText(shortestText(shot.Bending));
    }
    if (sources.measuredLaunchAngle)
        form.txtAttackAngle.setText(shortestText(shot.AttackAngle));
    else
        form.txtLaunchAngle.setText(formatPattern(shot.LaunchAngle, ".0"));
    form.txtBallSpin.setText(shortestText(shot.RPM));
    form.txtLaunchSpeed.setText(formatPattern(shot.LaunchSpeed, ".0"));
    form.txtLoftAngle.setText(shortestText(shot.LoftAngle));
    form.txtHeadWeight.setText(shortestText(shot.HeadWeight));
}

} // namespace

RunDriver::RunDriver(MainForm& form, PlotPanel& plot, MessageBoxes& messages,
                     std::function<void()> saveResult)
    : form_(form),
      plot_(plot),
      messages_(messages),
      saveResult_(std::move(saveResult)) {
    form_.Command1.Click.connect([this] { Command1_Click(); });
    form_.Command2.Click.connect([this] { Command2_Click(); });
    form_.txtResult.Change.connect([this] { followTableEnd(form_.txtResult); });
}

void RunDriver::Command1_Click() {
    if (runNumber(form_) == 0)
        WriteResultHeader(form_.txtResult);
    if (!makeRoom())
        return;
    const std::string& mode = form_.txtMode.text();
    if (mode == "3") {
        ClearRuns();
        if (!reportFault(ComputeEnvironment()))
            RunFillInBatch();
    } else if (mode == "0" || mode == "1" || mode == "2" || mode == "4") {
        auto fault = ComputeEnvironment();
        if (!fault)
            fault = PrepareLaunch();
        if (fault)
            takeBackRun();
        if (reportFault(fault))
            return;
        flyAndDraw();
        WriteResultRow();
    }
}

/// Counts the data set of this press. A full buffer is saved, and the press ends (false), or it
/// starts afresh.
bool RunDriver::makeRoom() {
    if (runNumber(form_) < kMostRuns) {
        countRun();
        return true;
    }
    if (messages_.ask("The data buffer is full,\r\n"
                      "Save data to file before clearing the result window?")) {
        saveResult_();
        return false;
    }
    form_.txtRun.setText("1");
    WriteResultHeader(form_.txtResult);
    plot_.DrawPlotFrame();
    form_.Runs = std::vector<RunRecord>(2);
    return true;
}

void RunDriver::countRun() {
    const int number = runNumber(form_) + 1;
    form_.txtRun.setText(std::to_string(number));
    form_.Runs.resize(static_cast<std::size_t>(number) + 1);
}

/// A shot that never flew leaves no data set: there is no path to draw and nothing to show.
void RunDriver::takeBackRun() {
    form_.Runs.pop_back();
    form_.txtRun.setText(std::to_string(form_.Runs.size() - 1));
}

std::optional<Fault> RunDriver::ComputeEnvironment() {
    return parabolt::ComputeEnvironment(form_.shot);
}

std::optional<Fault> RunDriver::PrepareLaunch() {
    if (operatingMode(form_) > OperatingMode::Launch) {
        const ImpactSources sources = impactSources(form_);
        ShotState launched = form_.shot; // a launch that fails leaves the one that the fields show
        if (const auto fault = GetLoftAngle(launched, sources))
            return fault;
        form_.shot = launched;
        showLaunch(form_, sources);
    }
    form_.shot.LaunchSpeedMs = store32(form_.shot.LaunchSpeed * kMetresPerSecondPerMph);
    return std::nullopt;
}

bool RunDriver::reportFault(std::optional<Fault> fault) {
    if (fault)
        messages_.show(faultDescription(*fault));
    return fault.has_value();
}

void RunDriver::flyAndDraw() {
    SetCurveColor();
    SimulateFlight();
    plot_.DrawCurves();
}

void RunDriver::SetCurveColor() {
    form_.Runs.back().CurveColor =
        kCurveColors.at(static_cast<std::size_t>(runNumber(form_)) % kCurveColors.size());
}

void RunDriver::SimulateFlight() {
    const RunTags tags{roundTo<std::int16_t>(leadingNumber(form_.txtMode.text())).value_or(0),
                       form_.optWood.selected()};
    reportFault(parabolt::SimulateFlight(form_.shot, tags, form_.Runs.back()));
}

void RunDriver::WriteResultRow() {
    parabolt::WriteResultRow(form_.txtResult, form_.Runs.back(), form_.shot.ClubNo,
                             form_.txtRun.text());
}

void RunDriver::dropRuns() {
    form_.txtRun.setText("0");
    form_.Runs = std::vector<RunRecord>(1);
}

void RunDriver::ClearRuns() {
    dropRuns();
    form_.txtResult.clear();
    plot_.DrawPlotFrame();
    WriteResultHeader(form_.txtResult);
}

void RunDriver::Command2_Click() {
    if (messages_.ask("This will erase all the data now, are you sure?"))
        ClearRuns();
}

} // namespace parabolt
