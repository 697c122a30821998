#pragma once

#include "clubs/club_file_handlers.h"

namespace parabolt {

/// The club editor `frmClubParams`: owns its controls and the handlers that work on them. It is
/// made anew each time it opens, so that it starts from the club set.
struct frmClubParams {
    frmClubParams(ClubTables& clubs, const ClubServices& services)
        : editor(form, clubs, services.messages, services.desktop, services.showInMainForm),
          files(form, clubs, editor, services) {}

    ClubForm form;
    ClubEditor editor;
    ClubFileHandlers files;
};

} // namespace parabolt
