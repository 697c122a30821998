#include "printing/drv_printer.h"

namespace parabolt {
namespace {

constexpr std::int16_t kPrinterPixelsPerScreenPixel = 3;

} // namespace

void clsDrvPrinter::PntObject(Page& vNewValue) {
    page_ = &vNewValue;
    page_->DrawWidth = page_->isPrinter() ? kPrinterPixelsPerScreenPixel : 1;
}

std::int16_t clsDrvPrinter::MaxLines() const {
    return lineHeight_ == 0 ? std::int16_t{0}
                            : static_cast<std::int16_t>(page_->ScaleHeight() / lineHeight_);
}

std::int16_t clsDrvPrinter::MaxCols() const {
    return colWidth_ == 0 ? std::int16_t{0}
                          : static_cast<std::int16_t>(page_->ScaleWidth() / colWidth_);
}

void clsDrvPrinter::StdFontSize(double vNewValue) {
    stdFontSize_ = vNewValue;
    page_->FontName = "Courier";
    const double present = page_->FontSize;
    page_->FontSize = vNewValue;
    lineHeight_ = page_->TextHeight("7");
    colWidth_ = page_->TextWidth("7");
    page_->FontSize = present;
}

void clsDrvPrinter::PrintText(std::int32_t Alignment, std::string_view strText) const {
    const double width = page_->TextWidth(strText);
    double x = curX_;
    if (Alignment == Centred)
        x -= width / 2;
    else if (Alignment != Left)
        x -= width;
    page_->CurrentX = x;
    page_->CurrentY = curY_;
    page_->Print(strText);
}

void clsDrvPrinter::DrawWidth(std::int16_t vNewValue) {
    drawWidth_ = vNewValue;
    if (!page_->isPrinter()) {
        const int onScreen = vNewValue / kPrinterPixelsPerScreenPixel;
        drawWidth_ = static_cast<std::int16_t>(onScreen == 0 ? 1 : onScreen);
    }
    page_->DrawWidth = drawWidth_;
}

} // namespace parabolt
