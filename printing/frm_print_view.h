#pragma once

#include "printing/print_view.h"

namespace parabolt {

/// The print view `frmPrintView`: owns its controls and the handlers that work on them. It is made
/// anew each time it opens.
struct frmPrintView {
    frmPrintView(const PlotCanvases& printPlot, const RichTextBox& txtResult, Printer& printer,
                 MessageBoxes& messages)
        : handlers(form, printPlot, txtResult, printer, messages) {}

    PrintViewForm form;
    PrintView handlers;
};

} // namespace parabolt
