#include "mainform/plot_panel.h"

#include "sets/data_set_words.h"

#include <utility>

namespace parabolt {

void PlotPanel::Form_Resize(const FormSize& size, bool minimized) {
    if (minimized || size.height <= 5000 || size.width <= 1000)
        return;
    LayoutPlots(size, results_.screenPlot());
    DrawPlotFrame();
    if (size.width > 7300) {
        results_.txtResult.setWidth(size.width - 5190);
        weather_.setWidth(size.width - 7260);
    }
    DrawCurves();
}

void PlotPanel::DrawPlotFrame() {
    parabolt::DrawPlotFrame(results_.screenPlot(), run_.sRange);
}

void PlotPanel::DrawCurves() {
    if (runNumber(run_) < 1)
        return;
    if (const auto drawn =
            parabolt::DrawCurves(results_.screenPlot(), run_.Runs.records(), run_.Runs.ticked());
        !drawn)
        messages_.show(drawn.why());
}

void PlotPanel::redraw() {
    DrawPlotFrame();
    DrawCurves();
}

void PlotPanel::PreparePrintPlots() {
    results_.Picture3.setGeometry(results_.Picture1.geometry());
    const auto& inner = results_.Picture2.geometry();
    results_.Picture4.setGeometry({390, 420, inner.width, inner.height});
    DrawPrintFrame(results_.printPlot(), run_.sRange);
    if (runNumber(run_) >= 1)
        DrawPrintCurves(results_.printPlot(), run_.Runs.records(), run_.Runs.ticked());
}

void PlotPanel::tellNewest() {
    const int newest = run_.Runs.count();
    results_.StatusBar1.setCaption(newest == 0 ? "" : "Data set " + wordsOf(run_.Runs, newest));
}

std::string PlotPanel::inWords() const {
    const int count = run_.Runs.count();
    const auto shown = run_.Runs.ticked();
    std::string words = std::to_string(count) + (count == 1 ? " data set." : " data sets.");
    if (std::cmp_less(shown.size(), count))
        words =
            std::to_string(shown.size()) + " of " + words.substr(0, words.size() - 1) + " shown.";
    for (const int number : shown)
        words += " " + wordsOf(run_.Runs, number) + ".";
    return words;
}

} // namespace parabolt
