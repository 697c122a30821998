#include "plots/plot_frame.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <optional>

namespace parabolt {
namespace {

/// In what the screen's frame and the printed one differ.
struct FrameStyle {
    std::optional<Rgb> innerForeColor; ///< of the grid; nothing to leave the canvas's own
    bool grid = false;
    float heightTicksFrom = 0; ///< start of the height ticks above the inner canvas's foot, twips
};

constexpr Rgb kGridGrey{80, 80, 80};
constexpr int kTicksAcross = 10;
constexpr double kTopOfAxis = 400; ///< twips; no height tick stands above it

/// A number as an axis shows it: a blank in the place of the sign.
std::string axisLabel(double value) {
    return " " + shortestText(store32(value));
}

void drawFrame(const PlotCanvases& plot, float range, const FrameStyle& style) {
    const auto& [outer, inner] = plot;
    outer.cls();
    inner.cls();
    const float width = store32(inner.geometry().width);
    const float height = store32(inner.geometry().height);
    const float step = store32(width / 10.0);
    const double foot = double{height} + 420;
    const double stepYards = range / 10.0;
    if (!(width > 0 && height > 0)) // not laid out yet
        return;

    if (style.innerForeColor)
        inner.setForeColor(*style.innerForeColor);
    const float scaleHeight = store32(-((double{height} / width) * range));
    // Ten twips to the left of the edge, so that x = 0 lies just outside the canvas.
    const float scaleLeft = store32((double{range} / width) * 10);
    inner.setScale({scaleLeft, -double{scaleHeight}, range, scaleHeight});

    outer.line({380, foot}, {width + 400.0, foot});
    outer.line({380, foot}, {380, kTopOfAxis});

    for (int i = 1; i <= kTicksAcross; ++i) {
        const float x = store32(i * double{step} + 400);
        const bool labelled = i % 2 == 0;
        outer.line({x, foot}, {x, foot + (labelled ? 200 : 100)});
        if (!labelled)
            continue;
        outer.print({x, height + 470.0}, axisLabel(stepYards * i));
        if (style.grid)
            inner.line({stepYards * i, 0}, {stepYards * i, -double{scaleHeight}});
    }
    const float tickYards = store32(stepYards);
    int i = 1;
    for (float y = store32(height + double{style.heightTicksFrom} - step); y >= kTopOfAxis;
         y = store32(double{y} - step), ++i) {
        outer.line({380, y}, {280, y});
        outer.print({20, y + 50.0}, axisLabel(i * double{tickYards}));
        if (style.grid)
            inner.line({0, i * double{tickYards}}, {range, i * double{tickYards}});
    }
}

} // namespace

void LayoutPlots(const FormSize& form, const PlotCanvases& screen) {
    constexpr double kFormRows = 4000; ///< height of what stands above the plot
    constexpr double kMargins = 800;   ///< room for axes and labels on the outer canvas
    const double outerHeight = form.height - kFormRows - form.statusBar - 690;
    const double outerWidth = form.width - 120;
    if (outerHeight <= kMargins || outerWidth <= kMargins)
        return;
    screen.outer.setGeometry({0, kFormRows, outerWidth, outerHeight});
    screen.inner.setGeometry({390, 420, outerWidth - kMargins, outerHeight - kMargins});
}

void DrawPlotFrame(const PlotCanvases& screen, float range) {
    drawFrame(screen, range, {kGridGrey, true, 420});
}

void DrawPrintFrame(const PlotCanvases& twin, float range) {
    drawFrame(twin, range, {std::nullopt, false, 410});
}

} // namespace parabolt
