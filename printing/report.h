#pragma once

#include "printing/page.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

/// A page in landscape and the area of it that can be printed on, in inches. The area is taken to
/// be in the middle of the page.
struct PageSize {
    double width = 0;
    double height = 0;
    double printableWidth = 0;
    double printableHeight = 0;
    friend bool operator==(const PageSize&, const PageSize&) = default;
};

/// Length on paper of an inch of the report's layout: 1, or less where the printable area is too
/// small for the report's frame and the margin around it.
double layoutScale(const PageSize& paper);

/// The same page measured in inches of the report's layout.
PageSize inLayoutInches(const PageSize& paper);

/// How a page is shown in a box on the screen.
struct PreviewScale {
    double Ratio = 0; ///< size on the screen relative to the page
    double width = 0; ///< of the box in the shape of the page, inches of the screen
    double height = 0;
    double left = 0; ///< what the box's left and top edge read, in inches of the page: the
    double top = 0;  ///< printable area begins at (0, 0)
    friend bool operator==(const PreviewScale&, const PreviewScale&) = default;
};

/// Gives a box the shape of the page: the largest that fits into the given size, in inches.
PreviewScale ScalePreviewToPage(const PageSize& page, double boxWidth, double boxHeight);

/// What a report shows.
struct ReportContent {
    std::string caption;
    std::string table; ///< lines of text; those beyond the eighteenth are left out
    PlotCanvases plot;
};

/// How many rows of the table the report loses: those beyond its last line, and those that wrapped
/// lines above push out of the frame. Empty rows are no loss.
int rowsLeftOut(std::string_view table);

/// Draws the report on a page whose units are inches from the corner of the printable area. `Ratio`
/// is the size of the target relative to the page, 1 for a printer; `PicRatio` is the plot's width
/// over its height. A caption or a plot too wide for the frame is drawn smaller.
void ComposeReport(Page& target, double Ratio, double PicRatio, const ReportContent& content);

/// Cuts a UTF-8 text into pieces of at most so many characters (1 or more), at a blank where one
/// stands in the second half of a piece. One empty piece follows the last.
std::vector<std::string> SplitSentence(std::string_view text, std::int16_t maxLength);

} // namespace parabolt
