#include "printing/print_view.h"

#include "controls/units.h"
#include "numbers/rounding.h"

namespace parabolt {
namespace {

constexpr std::string_view kUntitled = "Parabolt - Report"; ///< of a document without a caption

/// What the user reads about the rows that the page leaves out.
std::string tellRowsLeftOut(int rows) {
    if (rows == 0)
        return {};
    return std::to_string(rows) +
           (rows == 1 ? " row of the table doesn't fit." : " rows of the table don't fit.");
}

} // namespace

PrintView::PrintView(PrintViewForm& form, const PlotCanvases& printPlot,
                     const RichTextBox& txtResult, Printer& printer, MessageBoxes& messages)
    : form_(form),
      plot_(printPlot),
      txtResult_(txtResult),
      printer_(printer),
      messages_(messages) {
    form_.lblRows.setCaption(tellRowsLeftOut(rowsLeftOut(txtResult.text())));
    form_.cmdPrintPreview.Click.connect([this] { cmdPrintPreview_Click(); });
    form_.cmdPrint.Click.connect([this] { cmdPrint_Click(); });
    form_.cmdClose.Click.connect([this] {
        if (form_.onUnload)
            form_.onUnload();
    });
}

void PrintView::Form_Resize(double width, double height) {
    constexpr int kGap = PrintViewForm::kGapAtSides;
    constexpr int kAbove = PrintViewForm::kRowOfControls;
    const double roomAcross = width - 2 * kGap;
    const double roomDown = height - kAbove - kGap;
    if (roomAcross <= 0 || roomDown <= 0)
        return;
    room_ = {kGap, kAbove, roomAcross, roomDown};
    form_.Picture0.setGeometry(room_);
    if (shown_)
        fitPreview();
}

void PrintView::composePreview(Page& target) const {
    if (shown_ && scale_)
        ComposeReport(target, scale_->Ratio, PicRatio_, *shown_);
}

void PrintView::cmdPrintPreview_Click() {
    shown_.emplace(takeContent());
    page_ = inLayoutInches(printer_.paper());
    fitPreview();
}

void PrintView::cmdPrint_Click() {
    const ReportContent content = takeContent();
    const std::string_view title = content.caption.empty() ? kUntitled : content.caption;
    const auto printed =
        printer_.print(title, [&](Page& page) { ComposeReport(page, 1, PicRatio_, content); });
    form_.lblResult.setCaption(printed ? *printed : "");
    if (!printed)
        messages_.show(printed.why());
}

ReportContent PrintView::takeContent() {
    const PictureBox::Geometry& outer = plot_.outer.geometry();
    PicRatio_ = outer.height > 0 ? store32(outer.width / outer.height) : 0;
    return {form_.txtCaption.text(), txtResult_.text(), plot_};
}

/// Gives `Picture0` the shape of the page, in the middle of its room, and lets it show the page.
void PrintView::fitPreview() {
    scale_ = ScalePreviewToPage(page_, room_.width / kTwipsPerInch, room_.height / kTwipsPerInch);
    const double width = scale_->width * kTwipsPerInch;
    form_.Picture0.setGeometry(
        {room_.left + (room_.width - width) / 2, room_.top, width, scale_->height * kTwipsPerInch});
    form_.Picture0.cls();
}

} // namespace parabolt
