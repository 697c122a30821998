#pragma once

#include "controls/services.h"
#include "mainform/main_form.h"

namespace parabolt {

/// The plot on the main form: keeps frame and curves in step with the form's size, its scale and
/// its data sets.
class PlotPanel {
public:
    /// `weather` is the frame that grows with the form's width.
    PlotPanel(RunControls& run, ResultControls& results, Frame& weather, MessageBoxes& messages)
        : run_(run),
          results_(results),
          weather_(weather),
          messages_(messages) {}

    /// Lays out the form for a new outer size in twips. A size too small for it changes nothing.
    void Form_Resize(const FormSize& size, bool minimized);

    /// Erases the plot and draws its frame at the scale `sRange`.
    void DrawPlotFrame();
    /// Draws the ticked data sets, and their legend, over the frame. A failure is shown.
    void DrawCurves();
    /// Both: the plot anew.
    void redraw();
    /// Gives the print twin the present geometry and draws it completely.
    void PreparePrintPlots();
    /// What the plot shows, in words: how many data sets, and what came of each.
    std::string inWords() const;
    /// Tells in the status bar what came of the newest data set; nothing where there is none.
    void tellNewest();

private:
    RunControls& run_;
    ResultControls& results_;
    Frame& weather_;
    MessageBoxes& messages_;
};

} // namespace parabolt
