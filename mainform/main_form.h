#pragma once

#include "clubs/club_tables.h"
#include "controls/choices.h"
#include "controls/focus.h"
#include "controls/rich_text_box.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "numbers/shared_text.h"
#include "plots/curves.h"
#include "shots/run_book.h"

#include <map>
#include <string>

namespace parabolt {

/// The application's title, in captions and message boxes.
inline constexpr std::string_view kApplicationTitle = "Parabolt";

// The inventory of the main form `frmMain`: its controls under their given names, and its state. It
// has no behaviour. It comes in parts, so that each group of handlers gets those that it works on.

/// What all parts of the form share.
struct FormCore {
    ControlSet controls;
    Focus focus;
    /// Something is about to wipe or overwrite what stands on the form: all is still as it was.
    Event<> Wiping;
};

/// The title, and what counts, scales, starts and clears the data sets.
struct RunControls : virtual FormCore {
    RunBook Runs;       ///< the data sets
    float sRange = 300; ///< width of the plot, yards

    Frame Frame3{controls, "Frame3", ""};
    Label Label5{controls, "Label5", kApplicationTitle};
    Label Label1{controls, "Label1", kApplicationTitle}; ///< its shadow: 15 twips right, 30 down

    Label Label4{controls, "Label4", "Data Sets"};
    TextBox txtRun{controls, "txtRun", "0"}; ///< the run counter n
    Label Label11{controls, "Label11", "Scale (Yard)"};
    TextBox txtRange{controls, "txtRange", "300"};
    Button Command1{controls, "Command1", "&Run"};
    Button Command2{controls, "Command2", "&Clear"};
    Timer Timer1{controls, "Timer1", 10}; ///< paces studies and batch
};

/// What is given of a shot.
struct ShotControls : virtual FormCore {
    ShotInputs shot; ///< the values that the fields have passed on

    // Mode -------------------------------------------------------------------------------------
    Frame Frame1{controls, "Frame1", "Mode"};
    OptionGroup modeOptions;
    OptionButton optActual{controls, modeOptions, "optActual", "Actual"};
    OptionButton optManual{controls, modeOptions, "optManual", "Manual", true};
    OptionButton optLaunch{controls, modeOptions, "optLaunch", "Launch"};
    OptionButton optStandard{controls, modeOptions, "optStandard", "Default"};
    OptionButton optAuto{controls, modeOptions, "optAuto", "Auto"};
    TextBox txtMode{controls, "txtMode"}; ///< hidden; the mode, "0" to "4"

    // Swing ------------------------------------------------------------------------------------
    Frame Frame2{controls, "Frame2", "Swing Param."};
    Label Label3{controls, "Label3", "Launch Angle(Deg.)"};
    TextBox txtLaunchAngle{controls, "txtLaunchAngle", "9.5"};
    Label Label2{controls, "Label2", "Ball Spin(rpm)"};
    TextBox txtBallSpin{controls, "txtBallSpin", "3200"};
    Label Label7{controls, "Label7", "Launch Speed(mph)"};
    TextBox txtLaunchSpeed{controls, "txtLaunchSpeed", "144"};
    Label Label8{controls, "Label8", "Club No."};
    DropDownList cmbClubNo{controls, "cmbClubNo"};
    Label Label9{controls, "Label9", "Head Speed(mph)"};
    TextBox txtHeadSpeed{controls, "txtHeadSpeed"};
    Label Label10{controls, "Label10", "Speed Increment"};
    TextBox txtSpeedIncrement{controls, "txtSpeedIncrement", "1"};
    CheckBox chkBatch{controls, "chkBatch", "Fill-in"};

    // Club type --------------------------------------------------------------------------------
    Frame Frame4{controls, "Frame4", "Club Type"};
    OptionGroup typeOptions;
    OptionButton optWood{controls, typeOptions, "optWood", "Wood", true};
    OptionButton optIron{controls, typeOptions, "optIron", "Iron"};
    TextBox txtType{controls, "txtType", "0"}; ///< hidden; the club type, "0" wood, "1" iron

    // Club -------------------------------------------------------------------------------------
    Frame Frame5{controls, "Frame5", "Club Parameter"};
    Label Label6{controls, "Label6", "COR"};
    TextBox txtCor{controls, "txtCor", "0.80"};
    Label Label12{controls, "Label12", "Head(gm)"};
    TextBox txtHeadWeight{controls, "txtHeadWeight", "225"};
    Label Label14{controls, "Label14", "Loft Ang."};
    TextBox txtLoftAngle{controls, "txtLoftAngle", "16"};
    Label Label20{controls, "Label20", "Bend Ang."};
    TextBox txtBending{controls, "txtBending", "0"};
    Label Label13{controls, "Label13", "Att. Ang."};
    TextBox txtAttackAngle{controls, "txtAttackAngle", "0"};

    // Ball -------------------------------------------------------------------------------------
    Frame Frame6{controls, "Frame6", "Golf Ball Properties "};
    OptionGroup ballOptions;
    OptionButton BallOpt1{controls, ballOptions, "BallOpt1", "Soft ball"};
    OptionButton BallOpt2{controls, ballOptions, "BallOpt2", "Different dimple"};
    OptionButton BallOpt3{controls, ballOptions, "BallOpt3", "Larger MOI"};
    OptionButton BallOpt4{controls, ballOptions, "BallOpt4", "Default", true};

    // Weather ----------------------------------------------------------------------------------
    Frame Frame7{controls, "Frame7", "Environment"};
    Label Label15{controls, "Label15", "Altitude(ft)"};
    TextBox txtAltitude{controls, "txtAltitude", "0"};
    Label Label16{controls, "Label16", "Wind(mph)"};
    TextBox txtWind{controls, "txtWind", "0"};
    Label Label17{controls, "Label17", "Pressure(In-Hg)"};
    TextBox txtPressure{controls, "txtPressure", "29.92"};
    Label Label18{controls, "Label18", "Temperature(F)"};
    TextBox txtTemperature{controls, "txtTemperature", "70"};
    Label Label19{controls, "Label19", "Humidity(%)"};
    TextBox txtRelativeHumidity{controls, "txtRelativeHumidity", "50"};
};

/// Table and plots.
struct ResultControls : virtual FormCore {
    RichTextBox txtResult{controls, "txtResult"};
    PictureBox Picture1{controls, "Picture1", kBlack, kWhite}; ///< the plot with axes and labels
    PictureBox Picture2{controls, "Picture2", kBlack, kWhite}; ///< inside it, the curves
    PictureBox Picture3{controls, "Picture3", kWhite, kBlack}; ///< hidden print twin of Picture1
    PictureBox Picture4{controls, "Picture4", kWhite, kBlack}; ///< hidden print twin of Picture2
    Label StatusBar1{controls, "StatusBar1", ""};

    PlotCanvases screenPlot() { return {Picture1, Picture2}; }
    PlotCanvases printPlot() { return {Picture3, Picture4}; }
};

/// The menus. What leaves a study or batch alone stays in use during it; the end of the program
/// waits for no field.
struct MenuControls : virtual FormCore {
    MenuItem mnuFile{controls, "mnuFile", "&File", WhileBusy::Free};
    MenuItem mnuOpen{controls, "mnuOpen", "&Open Param."};
    MenuItem mnuSave{controls, "mnuSave", "&Save Param."};
    MenuItem mnuSResult{controls, "mnuSResult", "Save &Result"};
    MenuItem mnuPrint{controls, "mnuPrint", "&Print"};
    MenuItem mnuExit{controls, "mnuExit", "E&xit", WhileBusy::Free,
                     MenuItem::First::WaitsForNothing};
    MenuItem mnuOpenSession{controls, "mnuOpenSession", "Ope&n Session..."};
    MenuItem mnuSaveSession{controls, "mnuSaveSession", "Sa&ve Session..."};
    MenuItem mnuReopenSession{controls, "mnuReopenSession", "Reopen &Last Session"};
    MenuItem mnuGoBack{controls, "mnuGoBack", "Go &Back"};
    MenuItem mnuRewriteTable{controls, "mnuRewriteTable", "Rewrite &Table"};
    MenuItem mnuExportTable{controls, "mnuExportTable", "Export T&able..."};
    MenuItem mnuExportPaths{controls, "mnuExportPaths", "Export Pat&hs..."};
    MenuItem mnuExportPlot{controls, "mnuExportPlot", "&Export Plot..."};
    MenuItem mnuCopyTable{controls, "mnuCopyTable", "&Copy Table"};
    MenuItem mnuCopyPlot{controls, "mnuCopyPlot", "Cop&y Plot"};
    MenuItem mnuReopenClubs{controls, "mnuReopenClubs", "Reopen Last Cl&ubs File"};
    MenuItem mnuDefault{controls, "mnuDefault", "&DefaultClub"};
    MenuItem mnuStudies{controls, "mnuStudies", "&Studies", WhileBusy::Free};
    MenuItem mnuStyLaunch{controls, "mnuStyLaunch", "Launch &Angle"};
    MenuItem mnuStySpin{controls, "mnuStySpin", "Spin &Rate"};
    MenuItem mnuStyMap{controls, "mnuStyMap", "Carry &Map...", WhileBusy::Free};
    MenuItem mnuDataSets{controls, "mnuDataSets", "&Data Sets...", WhileBusy::Free};
    MenuItem mnuMeasured{controls, "mnuMeasured", "M&easured Shots...", WhileBusy::Free};
    MenuItem mnuBag{controls, "mnuBag", "&Bag...", WhileBusy::Free};
    MenuItem mnuReset{controls, "mnuReset", "&Reset"};
    MenuItem Help{controls, "Help", "&Help", WhileBusy::Free};
    MenuItem mnuHelp{controls, "mnuHelp", "&Help", WhileBusy::Free};
    MenuItem mnuSkype{controls, "mnuSkype", "&Skype", WhileBusy::Free};
    MenuItem mnuAbout{controls, "mnuAbout", "&About"};
};

/// The fields that a validator judges.
struct InputControls : RunControls, ShotControls {};

/// The whole form.
struct MainForm : InputControls, ResultControls, MenuControls {
    ClubTables clubs;
    std::string reportCaption;      ///< what was typed last into `txtCaption` of the print view
    bool reportCaptionLaid = false; ///< it came with a desk: the next print view begins with it
    /// State of windows that are no forms, by the names of the windows; each knows its own.
    std::map<std::string, SharedText> windows;
    bool blFormLoaded = false; ///< read by the splash: is there a main form already?
    std::string caption{kApplicationTitle};
    std::function<void()> onCaption; ///< set by the view

    /// Hides what the user never sees and disables what starts disabled.
    MainForm();
};

/// Fills the list of club numbers with the irons or woods that can be played. None is selected.
void listClubs(DropDownList& cmbClubNo, bool iron);

/// The run counter n: the number of data sets and the index of the newest.
int runNumber(const RunControls& form);

/// The number in `txtMode`, an `OperatingMode`.
std::int16_t operatingMode(const ShotControls& form);

/// Puts the title and the description of the club set into the form's caption.
void showClubsInCaption(MainForm& form);

} // namespace parabolt
