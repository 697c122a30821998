#pragma once

#include "files/dialog_routine.h"
#include "mainform/plot_panel.h"
#include "sessions/form_desk.h"
#include "sessions/recovery.h"
#include "sessions/way_back.h"

namespace parabolt {

/// What sessions ask of the world around them.
struct SessionSurroundings {
    std::string stateFolder; ///< where the desk is kept safe; empty for nowhere
    /// Local time as "2026-11-23 10:32".
    std::function<std::string()> localTime = [] { return std::string("0000-00-00 00:00"); };
    /// Learns after each keeping, on another thread, why it failed; an empty text if it didn't.
    std::function<void(const std::string&)> keepingEnded = [](const std::string&) {};
};

/// Keeps the work of the user: in session files, on the way back from what wiped it, and safe from
/// a sudden end.
class SessionHandlers {
public:
    SessionHandlers(MainForm& form, PlotPanel& plot, FileDialog& dialog,
                    PreferencesStore& preferences, MessageBoxes& messages,
                    const std::string& applicationFolder, SessionSurroundings surroundings);

    /// The form is loaded: its desk is the fresh one, with no way back.
    void begin();
    /// Asks whether the desk of a program that did not end properly is to be reopened.
    void recover();
    /// Opens a session file. Tells why, if that fails.
    void open(const std::string& fileName);
    /// Of the view: what the user did has been done, in all its consequences.
    void actionEnded();
    /// The program ends: leaves the desk for the next one.
    void finish();
    /// Waits until the last desk has been kept. True if that is the present one.
    bool isSafe() { return recovery_.flush() && takeDesk(form_) == kept_; }

    void mnuOpenSession_Click();
    void mnuSaveSession_Click();
    void mnuReopenSession_Click();
    void mnuGoBack_Click();
    void mnuRewriteTable_Click();

private:
    Session present() const { return {takeDesk(form_), surroundings_.localTime()}; }
    std::string timeOf(const Session& session) const;
    void lay(const Desk& desk);
    void openText(std::string_view text);
    void showWayBack();

    MainForm& form_;
    PlotPanel& plot_;
    MessageBoxes& messages_;
    DialogRoutine dialogs_;
    SessionSurroundings surroundings_;
    WayBack wayBack_;
    Desk fresh_; ///< of the form as it is loaded
    Desk kept_;  ///< as it was last handed to the recovery
    Recovery recovery_;
};

} // namespace parabolt
