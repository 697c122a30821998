#include "clubs/club_form.h"

#include <utility>

namespace parabolt {
namespace {

void showGrid(Grid& grid, ClubKind kind, const ClubTables& clubs) {
    grid.setFormatString(clubGridFormat(kind));
    for (int row = 0; row < grid.rows(); ++row)
        grid.setText(row, 0, clubRowLabel(row));
    for (int col = Grid::kFixed; col < grid.cols(); ++col) {
        for (int row = Grid::kFixed; row < grid.rows(); ++row)
            grid.setText(row, col, clubCellText(clubField(clubs, kind, row, col)));
    }
    grid.setTag(grid.text());
}

} // namespace

ClubForm::ClubForm() {
    txtDescription.setMaxLength(40);
    txtIronsDes.setMaxLength(120);
    txtWoodsDes.setMaxLength(120);
    txtIronEdit.setVisible(false);
    txtWoodEdit.setVisible(false);
}

void ClubForm::setCaption(std::string text) {
    caption = std::move(text);
    if (onCaption)
        onCaption();
}

void showClubs(ClubForm& form, const ClubTables& clubs) {
    showGrid(form.GridIrons, ClubKind::Irons, clubs);
    showGrid(form.GridWoods, ClubKind::Woods, clubs);
    form.txtDescription.setText(clubs.ClubsDescription);
    form.txtIronsDes.setText(clubs.IronsDescription);
    form.txtWoodsDes.setText(clubs.WoodsDescription);
    form.txtComment.setText(clubs.Comment);
}

} // namespace parabolt
