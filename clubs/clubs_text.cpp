#include "clubs/clubs_text.h"

#include "files/code_page.h"

namespace parabolt {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string gridLines(const Grid& grid, int firstCol) {
    std::string lines;
    for (int row = 0; row < grid.rows(); ++row) {
        for (int col = firstCol; col < grid.cols(); ++col)
            lines.append(grid.text(row, col)).append("\t");
        lines += kLineEnd;
    }
    return lines;
}

} // namespace

std::string composeClubsText(const ClubForm& form, const ClubTables& clubs) {
    std::string text;
    const auto line = [&text](std::string_view start, std::string_view end = {}) {
        text.append(start).append(end).append(kLineEnd);
    };
    line("Clubs Description: ", clubs.ClubsDescription);
    line("Clubs Irons");
    line("Irons Clubs Description: ", clubs.IronsDescription);
    text += gridLines(form.GridIrons, 0); // with the labels, unlike the woods
    line("");
    line("");
    line("Clubs Woods");
    line("Woods Clubs Description: ", clubs.WoodsDescription);
    text += gridLines(form.GridWoods, Grid::kFixed);
    line("");
    line("Comment");
    line(clubs.Comment);
    return toCodePage(text);
}

} // namespace parabolt
