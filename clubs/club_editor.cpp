#include "clubs/club_editor.h"

#include "clubs/grid_paste.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <initializer_list>
#include <utility>

namespace parabolt {
namespace {

/// Visits all cells that hold values, irons first, each club from top to bottom, until one visit
/// returns false. True if none did.
template <class Visit>
bool everyCell(const ClubForm& form, Visit visit) {
    for (const ClubKind kind : {ClubKind::Irons, ClubKind::Woods}) {
        const Grid& grid = form.grid(kind);
        for (int col = Grid::kFixed; col < grid.cols(); ++col)
            for (int row = Grid::kFixed; row < grid.rows(); ++row)
                if (!visit(kind, row, col, leadingNumber(grid.text(row, col))))
                    return false;
    }
    return true;
}

} // namespace

ClubEditor::ClubEditor(ClubForm& form, ClubTables& clubs, MessageBoxes& messages, Desktop& desktop,
                       std::function<void()> showInMainForm)
    : form_(form),
      clubs_(clubs),
      messages_(messages),
      showInMainForm_(std::move(showInMainForm)),
      irons_(form.GridIrons, form.txtIronEdit, form.focus, CellEditing::Advance::AlongRow),
      woods_(form.GridWoods, form.txtWoodEdit, form.focus, CellEditing::Advance::DownColumn) {
    form_.Command1.Click.connect([this] { unload(); });
    form_.Command2.Click.connect([this] { Command2_Click(); });
    form_.Command3.Click.connect([this] { Command3_Click(); });
    form_.mnuExit.Click.connect([this] { unload(); });
    form_.mnuHelp.Click.connect([this, &desktop] {
        form_.focus.give(form_.txtDescription);
        desktop.openHelp();
    });
    for (Grid* grid : {&form_.GridIrons, &form_.GridWoods})
        grid->Paste.connect([this, grid](const std::string& cells) { paste(*grid, cells); });
    showClubs(form_, clubs_);
}

void ClubEditor::paste(Grid& grid, const std::string& cells) {
    settle();
    if (!pasteCells(grid, cells))
        messages_.show("The clipboard holds no row of numbers. Nothing has been pasted.");
}

bool ClubEditor::ValidateClubGrids() {
    return everyCell(form_, [this](ClubKind kind, int row, int col, double value) {
        const ClubBounds& bounds = clubBounds(kind, row);
        if (bounds.hold(value))
            return true;
        messages_.show(bounds.message);
        form_.grid(kind).moveTo(row, col);
        form_.focus.give(form_.grid(kind)); // the cell may have been the current one before
        return false;
    });
}

void ClubEditor::ApplyClubGrids() {
    Applying();
    everyCell(form_, [this](ClubKind kind, int row, int col, double value) {
        clubField(clubs_, kind, row, col) = store32(value);
        return true;
    });
    clubs_.ClubsDescription = form_.txtDescription.text();
    clubs_.IronsDescription = form_.txtIronsDes.text();
    clubs_.WoodsDescription = form_.txtWoodsDes.text();
    clubs_.Comment = form_.txtComment.text();
    showInMainForm_();
}

bool ClubEditor::ClubGridsChanged() const {
    const bool sameCells = everyCell(form_, [this](ClubKind kind, int row, int col, double value) {
        // A value can have more digits than its cell shows.
        const float field = clubField(std::as_const(clubs_), kind, row, col);
        return store32(value) == field || form_.grid(kind).text(row, col) == clubCellText(field);
    });
    return !sameCells || form_.txtDescription.text() != clubs_.ClubsDescription ||
           form_.txtIronsDes.text() != clubs_.IronsDescription ||
           form_.txtWoodsDes.text() != clubs_.WoodsDescription ||
           form_.txtComment.text() != clubs_.Comment;
}

CellEditing* ClubEditor::editing(std::int16_t GridIndex) {
    switch (static_cast<ClubKind>(GridIndex)) {
    case ClubKind::Irons:
        return &irons_;
    case ClubKind::Woods:
        return &woods_;
    }
    return nullptr;
}

void ClubEditor::EditClubCell(std::int16_t GridIndex) {
    if (CellEditing* grid = editing(GridIndex))
        grid->open();
}

void ClubEditor::NextClubCell(std::int16_t GridIndex) {
    if (CellEditing* grid = editing(GridIndex))
        grid->next();
}

void ClubEditor::settle() {
    irons_.settle();
    woods_.settle();
}

bool ClubEditor::queryUnload() {
    settle();
    if (!ClubGridsChanged() || !messages_.ask("Do you want to apply changes?"))
        return true;
    if (!ValidateClubGrids())
        return false;
    ApplyClubGrids();
    return true;
}

void ClubEditor::Command2_Click() {
    settle();
    if (messages_.askOrCancel("Abort edited and restore previous datas?") ==
        MessageBoxes::Answer::Yes)
        showClubs(form_, clubs_);
}

void ClubEditor::Command3_Click() {
    settle();
    if (ValidateClubGrids())
        ApplyClubGrids();
}

void ClubEditor::unload() const {
    if (form_.onUnload)
        form_.onUnload();
}

} // namespace parabolt
