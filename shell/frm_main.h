#pragma once

#include "clubs/club_file_handlers.h"
#include "controls/services.h"
#include "mainform/defaults.h"
#include "mainform/modes.h"
#include "mainform/parameter_handlers.h"
#include "mainform/shot_entry.h"
#include "results/result_export.h"
#include "run/studies.h"
#include "sessions/session_handlers.h"
#include "sets/data_set_export.h"

#include <functional>

namespace parabolt {

/// What the main form asks of the world around it.
struct FormServices {
    MessageBoxes& messages;
    FileDialog& ccrpFileDialogs1;
    PreferencesStore& preferences;
    Desktop& desktop;
    EventLoop& events;
    std::string applicationFolder; ///< where dialogs start before they have been used
    SessionSurroundings sessions{};
};

/// The main form `frmMain`: owns its controls and state and the handlers that work on them, and
/// wires events to handlers.
class frmMain {
public:
    explicit frmMain(const FormServices& services);

    /// Lays the defaults and makes the form ready for use, once, when it is first shown.
    void Form_Load();

    MainForm form;
    ProgressForm frmProgress;
    PlotPanel plot; ///< lays out and draws the plot when the view says what size the form has
    Pause pause;    ///< of a study or batch; the view can stop it
    Validators validators; ///< the way from the fields into the shot
    /// Enters a shot from elsewhere, such as a map, into the fields.
    ShotEntry shotEntry;
    SessionHandlers sessions;

    // The forms and the end of the program, which the view brings about.
    std::function<void()> showClubEditor; ///< `frmClubParams`, modal
    std::function<void()> showPrintView;  ///< `frmPrintView`, modal
    std::function<void()> showCarryMap;   ///< beside the form
    std::function<void()> showDataSets;   ///< likewise
    std::function<void()> showMeasured;   ///< likewise
    std::function<void()> showBag;        ///< likewise
    std::function<void()> showAbout;      ///< `frmSplash`, modal
    std::function<void()> endProgram;     ///< at once, with no question
    // What only the view can paint, or put on the clipboard.
    DialogRoutine::Compose plotFile; ///< the plot as a picture file
    std::function<void()> copyTable; ///< all data sets with all that is known of them
    std::function<void()> copyPlot;

private:
    void wireMenus(Desktop& desktop);
    void ResetAll();
    void reopenClubs(const ClubServices& services);

    ClubChoice clubChoice_;
    Modes modes_;
    Defaults defaults_;
    ResultExport resultExport_;
    DataSetExport dataSetExport_;
    ParameterHandlers parameters_;
    ShotRun run_;
    FillInBatch batch_;
    RunDriver driver_;
    Studies studies_;
};

} // namespace parabolt
