#pragma once

#include "fitting/fitting.h"
#include "qt/desktop.h"
#include "qt/dialogs.h"
#include "qt/end_signals.h"
#include "qt/file_dialog.h"
#include "qt/main_window.h"
#include "qt/printer.h"
#include "qt/settings_store.h"
#include "shell/frm_main.h"
#include "shell/frm_splash.h"

#include <memory>

namespace parabolt {

class BagWindow;
class DataSetsWindow;
class MapWindow;
class MeasuredWindow;
class SplashWindow;

/// The whole program: the services of this platform, the main form on them, and the windows that it
/// asks for. Needs a `QApplication`.
class Program {
public:
    Program();
    ~Program();

    /// Runs the program from its splash to its end, and returns its exit code. When the splash
    /// goes, the main form comes, with the session of a file if one is named.
    int run(const std::string& sessionFile = {});
    /// Loads and shows the main form. Asks then about the desk of a program that did not end
    /// properly, and opens the session file if one is named.
    void showMainForm(const std::string& sessionFile = {});
    /// The state behind the main form, for whoever watches the program at work.
    const MainForm& mainForm() const { return logic_.form; }
    /// For such a watcher too: waits for a desk that is on its way to the disk. True if the present
    /// one stands there.
    bool isSafe();

private:
    void showKeeping(const std::string& trouble);
    void showClubEditor();
    void showPrintView();
    void showCarryMap();
    void showDataSets();
    void showMeasured();
    void showBag();
    void showAbout();

    QtMessageBoxes messages_;
    QtFileDialog fileDialog_;
    SettingsStore preferences_{messages_};
    QtDesktop desktop_;
    QtEventLoop events_;
    QtPrinter printer_;
    QObject post_; ///< takes what other threads report
    FormServices services_;
    frmMain logic_;
    EndSignals endSignals_{[this] { logic_.endProgram(); }};
    Fitting fitting_{logic_.form};
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<MapWindow> mapWindow_;
    std::unique_ptr<DataSetsWindow> dataSetsWindow_;
    std::unique_ptr<MeasuredWindow> measuredWindow_;
    std::unique_ptr<BagWindow> bagWindow_;
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<SplashWindow> splashWindow_;
};

} // namespace parabolt
