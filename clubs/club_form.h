#pragma once

#include "clubs/club_cells.h"
#include "controls/focus.h"
#include "controls/grid.h"
#include "controls/simple_controls.h"

namespace parabolt {

/// The inventory of the club editor `frmClubParams`: its controls under their given names. It has
/// no behaviour; the handler groups work on it.
struct ClubForm {
    std::string caption{"Clubs Parameter"};
    std::function<void()> onCaption; ///< set by the view
    std::function<void()> onUnload;  ///< set by the view: closes the form, if it may be closed

    ControlSet controls;
    Focus focus;

    Label lblDescription{controls, "lblDescription", "Case No."};
    TextBox txtDescription{controls, "txtDescription"};
    Label lblIronsDes{controls, "lblIronsDes", "Irons Set Description"};
    TextBox txtIronsDes{controls, "txtIronsDes"};
    Grid GridIrons{controls, "GridIrons", kClubRows, kIronCols};
    TextBox txtIronEdit{controls, "txtIronEdit"}; ///< over the current cell while it is edited
    Label lblWoodsDes{controls, "lblWoodsDes", "Woods Set Description"};
    TextBox txtWoodsDes{controls, "txtWoodsDes"};
    Grid GridWoods{controls, "GridWoods", kClubRows, kWoodCols};
    TextBox txtWoodEdit{controls, "txtWoodEdit"};
    Label lblComment{controls, "lblComment", "Comment"};
    TextBox txtComment{controls, "txtComment"}; ///< several lines
    Button Command3{controls, "Command3", "&Apply"};
    Button Command2{controls, "Command2", "&Reset"};
    Button Command1{controls, "Command1", "Cl&ose"};
    Label StatusBar1{controls, "StatusBar1", ""};

    MenuItem mnuFile{controls, "mnuFile", "&File"};
    MenuItem mnuSave{controls, "mnuSave", "&Save To File"};
    MenuItem mnuOpenClub{controls, "mnuOpenClub", "&Open Clubs File"};
    MenuItem mnuExit{controls, "mnuExit", "E&xit"};
    MenuItem mnuHelp{controls, "mnuHelp", "&Help"};

    /// Sets the limits of the texts and hides the edit boxes.
    ClubForm();

    Grid& grid(ClubKind kind) { return kind == ClubKind::Irons ? GridIrons : GridWoods; }
    const Grid& grid(ClubKind kind) const {
        return kind == ClubKind::Irons ? GridIrons : GridWoods;
    }
    void setCaption(std::string text);
};

/// Fills grids and texts from a club set.
void showClubs(ClubForm& form, const ClubTables& clubs);

} // namespace parabolt
