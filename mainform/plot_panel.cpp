#include "mainform/plot_panel.h"

namespace parabolt {

void PlotPanel::Form_Resize(const FormSize& size, bool minimized) {
    if (minimized || size.height <= 5000 || size.width <= 1000)
        return;
    LayoutPlots(size, form_.screenPlot());
    DrawPlotFrame();
    if (size.width > 7300) {
        form_.txtResult.setWidth(size.width - 5190);
        form_.Frame7.setWidth(size.width - 7260);
    }
    DrawCurves();
}

void PlotPanel::DrawPlotFrame() {
    parabolt::DrawPlotFrame(form_.screenPlot(), form_.shot.sRange);
}

void PlotPanel::DrawCurves() {
    if (runNumber(form_) < 1)
        return;
    if (const auto failure = parabolt::DrawCurves(form_.screenPlot(), form_.Runs))
        messages_.show(*failure);
}

void PlotPanel::PreparePrintPlots() {
    form_.Picture3.setGeometry(form_.Picture1.geometry());
    const auto& inner = form_.Picture2.geometry();
    form_.Picture4.setGeometry({390, 420, inner.width, inner.height});
    DrawPrintFrame(form_.printPlot(), form_.shot.sRange);
    if (runNumber(form_) >= 1)
        DrawPrintCurves(form_.printPlot(), form_.Runs);
}

} // namespace parabolt
