#pragma once

#include "clubs/club_editor.h"
#include "files/dialog_routine.h"

#include <string>

namespace parabolt {

/// What the club editor asks of the world around it.
struct ClubServices {
    MessageBoxes& messages;
    FileDialog& ccrpFileDialogs1;
    PreferencesStore& preferences;
    Desktop& desktop;
    std::string applicationFolder; ///< where dialogs start before they have been used
    /// Puts the description of the club set into the main form's caption.
    std::function<void()> showInMainForm;
};

/// Loads club sets into the editor and saves the applied one.
class ClubFileHandlers {
public:
    ClubFileHandlers(ClubForm& form, const ClubTables& clubs, ClubEditor& editor,
                     const ClubServices& services);

    /// Fills grids and texts from a clubs file; the club set itself stays as it is. Tells the user
    /// if that fails (false), and leaves grids and texts alone then.
    bool ReadClubFile(const std::string& FileName);
    /// Fills grids and texts from the clubs file that was opened or saved last; false, and told, if
    /// that fails.
    bool readLastFile();
    /// Asks for a name and writes the club set, which must have been applied before: as a clubs
    /// file or, for reading, as text. A failed write ends without a word.
    void SaveClubFile();

private:
    void mnuOpenClub_Click();
    void mnuSave_Click();
    void showPickedName();
    void rememberFile(const std::string& fileName);

    ClubForm& form_;
    const ClubTables& clubs_;
    ClubEditor& editor_;
    MessageBoxes& messages_;
    FileDialog& dialog_;
    PreferencesStore& preferences_;
    DialogRoutine routine_;
    std::function<void()> showInMainForm_;
};

} // namespace parabolt
