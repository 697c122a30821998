#pragma once

#include "clubs/frm_club_params.h"
#include "tests/support/scripted_services.h"

namespace parabolt::support {

/// The club editor with all its handlers, on scripted services and without widgets.
struct ScriptedEditor {
    ClubTables clubs = InitClubTables();
    ScriptedMessageBoxes messages;
    ScriptedFileDialog dialog;
    MemoryPreferences preferences;
    RecordingDesktop desktop;
    std::string mainCaption; ///< what the main form was told to show
    frmClubParams frm{clubs, {messages, dialog, preferences, desktop, "/app", [this] {
                                  mainCaption = clubs.ClubsDescription;
                              }}};
    ClubForm& form = frm.form;
};

} // namespace parabolt::support
