#pragma once

#include "controls/rich_text_box.h"
#include "controls/services.h"
#include "printing/print_view_form.h"
#include "printing/printer.h"

#include <optional>

namespace parabolt {

/// What the print view does: it lets the user caption the report, look at it and print it. It shows
/// the print twin of the plot and the result table as they are while it is open.
class PrintView {
public:
    PrintView(PrintViewForm& form, const PlotCanvases& printPlot, const RichTextBox& txtResult,
              Printer& printer, MessageBoxes& messages);

    /// Of the view: the form has a new size, in twips. A page that is shown is fitted to it. A form
    /// without room for a page leaves it as it was.
    void Form_Resize(double width, double height);

    /// Where the page stands in `Picture0`; nothing before the first preview.
    const std::optional<PreviewScale>& preview() const { return scale_; }
    /// Draws the page of the last preview. Later changes of the caption don't show in it.
    void composePreview(Page& target) const;

private:
    void cmdPrintPreview_Click();
    void cmdPrint_Click();
    ReportContent takeContent();
    void fitPreview();

    PrintViewForm& form_;
    PlotCanvases plot_;
    const RichTextBox& txtResult_;
    Printer& printer_;
    MessageBoxes& messages_;
    float PicRatio_ = 0;        ///< width over height of the plot; 0 until it is composed
    PictureBox::Geometry room_; ///< for `Picture0`, before it takes the shape of the page
    PageSize page_;             ///< in inches of the layout
    std::optional<ReportContent> shown_;
    std::optional<PreviewScale> scale_;
};

} // namespace parabolt
