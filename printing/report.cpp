#include "printing/report.h"

#include "numbers/characters.h"

#include <algorithm>

namespace parabolt {
namespace {

// The layout, in inches from the corner of the printable area.
constexpr Place kFrameCorner{0.2, 0.2};
constexpr Place kFrameOpposite{11, 7.5};
constexpr Place kCaption{0.3, 0.35};
constexpr Place kPlot{0.3, 0.6};
constexpr double kPlotHeight = 3.7;
constexpr Place kHeading{0.4, 4.4};
constexpr Place kTable{0.4, 4.7};
constexpr double kRoomAcross = 10.6; ///< for caption and plot, with equal gaps to the frame

// Sizes on a whole page, in points.
constexpr double kCaptionSize = 16;
constexpr double kHeadingSize = 14;
constexpr double kTableSize = 9;

constexpr std::size_t kMostRows = 18; ///< of the table
constexpr std::int16_t kLineLength = 125;
constexpr std::size_t kRoomDown = 19; ///< lines that fit between the table's top and the frame

/// Pages wider than this get the wide pen for the frame, in twips.
constexpr double kWidePage = 10000;

void writeAt(Page& target, Place place, std::string_view text) {
    target.CurrentX = place.x;
    target.CurrentY = place.y;
    target.Print(text);
}

void writeCaption(Page& target, const std::string& caption) {
    const double size = target.FontSize;
    const double width = target.TextWidth(caption);
    if (width > kRoomAcross)
        target.FontSize = size * kRoomAcross / width;
    writeAt(target, kCaption, caption);
}

void paintPlot(Page& target, double PicRatio, const PlotCanvases& plot) {
    if (PicRatio <= 0)
        return;
    const double width = PicRatio * kPlotHeight;
    const double fit = std::min(1.0, kRoomAcross / width);
    target.PaintPlot(plot, kPlot, {width * fit, kPlotHeight * fit});
}

/// The rows of the table, each as the lines in which it is printed.
std::vector<std::vector<std::string>> printedRows(std::string_view table) {
    std::vector<std::vector<std::string>> rows;
    while (!table.empty()) {
        std::string_view row = table.substr(0, table.find('\n'));
        table.remove_prefix(std::min(row.size() + 1, table.size()));
        if (row.ends_with('\r'))
            row.remove_suffix(1);
        if (characterCount(row) <= kLineLength)
            rows.push_back({std::string(row)});
        else
            rows.push_back(SplitSentence(row, kLineLength));
    }
    return rows;
}

} // namespace

double layoutScale(const PageSize& paper) {
    return std::min({1.0, paper.printableWidth / (kFrameOpposite.x + kFrameCorner.x),
                     paper.printableHeight / (kFrameOpposite.y + kFrameCorner.y)});
}

PageSize inLayoutInches(const PageSize& paper) {
    const double scale = layoutScale(paper);
    return {paper.width / scale, paper.height / scale, paper.printableWidth / scale,
            paper.printableHeight / scale};
}

PreviewScale ScalePreviewToPage(const PageSize& page, double boxWidth, double boxHeight) {
    const double Ratio = std::min(boxHeight / page.height, boxWidth / page.width);
    return {Ratio, page.width * Ratio, page.height * Ratio, -(page.width - page.printableWidth) / 2,
            -(page.height - page.printableHeight) / 2};
}

int rowsLeftOut(std::string_view table) {
    int leftOut = 0;
    std::size_t number = 0;
    std::size_t down = 0; // printed lines so far
    for (const auto& row : printedRows(table)) {
        std::size_t last = down; // line that isn't empty
        for (const std::string& line : row)
            if (++down; !line.empty())
                last = down;
        if (++number > kMostRows || last > kRoomDown)
            leftOut += row.front().find_first_not_of(' ') == std::string::npos ? 0 : 1;
    }
    return leftOut;
}

void ComposeReport(Page& target, double Ratio, double PicRatio, const ReportContent& content) {
    target.DrawWidth = target.Width() > kWidePage ? 5 : 2;
    target.Box(kFrameCorner, kFrameOpposite);

    target.FontName = "Courier New";
    target.FontBold = true;
    target.FontSize = kCaptionSize * Ratio;
    writeCaption(target, content.caption);
    target.FontBold = false;

    target.DrawWidth = 1;
    paintPlot(target, PicRatio, content.plot);

    target.FontSize = kHeadingSize * Ratio;
    target.FontBold = true;
    writeAt(target, kHeading, "Parameters:");
    target.FontBold = false;

    target.FontSize = kTableSize * Ratio;
    target.CurrentY = kTable.y;
    auto rows = printedRows(content.table);
    rows.resize(std::min(rows.size(), kMostRows));
    for (const auto& row : rows)
        for (const std::string& line : row) {
            target.CurrentX = kTable.x;
            target.Print(line);
        }
}

std::vector<std::string> SplitSentence(std::string_view text, std::int16_t maxLength) {
    const auto most = static_cast<std::size_t>(maxLength);
    std::vector<std::string> pieces;
    while (characterCount(text) > most) {
        std::size_t length = characterStart(text, most);
        std::size_t next = length;
        if (text[length] == ' ' && most > 2) {
            next = std::min(text.find_first_not_of(' ', length), text.size());
        } else {
            const std::string_view piece = text.substr(0, length);
            const std::size_t upToBlank = piece.rfind(' ') + 1; // 0 if there is none
            if (2 * characterCount(piece.substr(0, upToBlank)) > most)
                next = length = upToBlank;
        }
        pieces.emplace_back(text.substr(0, length));
        text.remove_prefix(next);
    }
    pieces.emplace_back(text);
    pieces.emplace_back();
    return pieces;
}

} // namespace parabolt
