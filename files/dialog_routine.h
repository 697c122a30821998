#pragma once

#include "controls/services.h"
#include "files/preferences.h"

#include <functional>
#include <optional>
#include <string_view>

namespace parabolt {

/// What a file dialog is shown for.
enum class DialogPurpose {
    OpenParameters,
    SaveParameters,
    SaveResult,
    OpenClubs,
    SaveClubs,
    SaveMapPicture,
    SaveMapTable,
    OpenSession,
    SaveSession,
    ExportTable,
    ExportPaths,
    ExportPlot,
    ImportShots,
    ExportTableOrChart,
};

/// What all file dialogs of the program have in common: they start in the folder where the last one
/// ended, and refuse names by their ending.
class DialogRoutine {
public:
    /// Does what the dialog was shown for. Gets the file's name and the ending that it matched, in
    /// lower case and without a dot.
    using Work =
        std::function<Outcome<void, Failure>(const std::string& fileName, std::string_view ending)>;

    /// `applicationFolder` is where dialogs start before one has ended.
    DialogRoutine(FileDialog& dialog, PreferencesStore& preferences, MessageBoxes& messages,
                  std::string applicationFolder);

    /// Shows the dialog. A name with a right ending goes to `work`, any other is refused with a
    /// message; a cancel does neither. In the end the dialog's folder is remembered. A failure, of
    /// the work or of the preferences, ends the routine where it happens: what follows isn't done,
    /// and what has been done stays done. `suggestedName` is what a dialog for saving offers; the
    /// names that it gives have endings then.
    Outcome<void, Failure> run(DialogPurpose purpose, const Work& work,
                               std::string_view suggestedName = {});

    /// Makes the bytes of a file with this ending; nothing if there is to be no file after all.
    using Compose = std::function<std::optional<std::string>(std::string_view ending)>;
    /// Replaces the content of the file that the user names. A failure is shown.
    void save(DialogPurpose purpose, std::string_view suggestedName, const Compose& compose);

private:
    FileDialog& dialog_;
    PreferencesStore& preferences_;
    MessageBoxes& messages_;
    std::string applicationFolder_;
};

/// What the user reads when a file's content couldn't be taken in.
inline constexpr std::string_view kFileMismatch = "File mismatch!";

/// What the user reads when the reading of a picked file has failed.
std::string_view readFailureMessage(const Failure& failure);

} // namespace parabolt
