#include "plots/curves.h"

#include "numbers/rounding.h"

#include <string>

namespace parabolt {
namespace {

constexpr std::size_t kLegendSlots = 12;

/// The legend's row runs along the top of the outer canvas; a later data set overwrites the slot
/// that an earlier one had, twelve before it. In twips.
void drawLegendEntry(PictureBox& outer, std::size_t place, int number, const RunRecord& run,
                     Rgb ground) {
    const std::size_t slot = place % kLegendSlots;
    const double x = static_cast<double>(slot) * 1020 + 100;
    outer.box({x, 100}, {150, 150}, run.CurveColor);
    outer.box({x + 150, 100}, {850, 150}, ground);
    outer.print({x + 200, 100},
                "Club " + std::to_string(run.ClubNo) + "/" + std::to_string(number));
}

Outcome<void, std::string_view> drawAll(const PlotCanvases& plot, std::span<const RunRecord> runs,
                                        std::span<const int> numbers, Rgb legendGround,
                                        Rgb restColour) {
    const auto& [outer, inner] = plot;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const RunRecord& run = runs[static_cast<std::size_t>(numbers[i])];
        inner.setForeColor(run.CurveColor);
        if (run.Path.empty())
            return because(std::string_view("A data set has no path to draw."));
        inner.curve(run.Path);
        if (!inner.setDrawWidth(roundTo<int>(inner.geometry().width / 1750).value_or(0)))
            return because(std::string_view("The plot is too narrow for the landing mark."));
        const TrajectoryPoint& last = run.Path.back();
        inner.circle({last.x, last.y + 1.0}, 1);
        inner.setDrawWidth(1);
        drawLegendEntry(outer, i, numbers[i], run, legendGround);
    }
    inner.setForeColor(restColour);
    return {};
}

} // namespace

Outcome<void, std::string_view> DrawCurves(const PlotCanvases& screen,
                                           std::span<const RunRecord> runs,
                                           std::span<const int> numbers) {
    if (numbers.empty())
        return {};
    return drawAll(screen, runs, numbers, kBlack, kWhite);
}

void DrawPrintCurves(const PlotCanvases& twin, std::span<const RunRecord> runs,
                     std::span<const int> numbers) {
    if (numbers.empty())
        return;
    twin.inner.cls();
    static_cast<void>(drawAll(twin, runs, numbers, kWhite, kBlack));
}

} // namespace parabolt
