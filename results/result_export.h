#pragma once

#include "controls/rich_text_box.h"
#include "files/dialog_routine.h"

namespace parabolt {

/// Keeps the table of results as a text file.
class ResultExport {
public:
    ResultExport(const RichTextBox& txtResult, FileDialog& dialog, PreferencesStore& preferences,
                 MessageBoxes& messages, std::string applicationFolder);

    /// Asks for a file and replaces its content by the table as it stands in the box, with an empty
    /// line at the end. Nothing else changes; a failure is shown.
    void mnuSResult_Click();

private:
    const RichTextBox& txtResult_;
    MessageBoxes& messages_;
    DialogRoutine dialogs_;
};

/// The content of the file: lines that end in CR LF, in the code page of text files.
std::string composeResultText(const RichTextBox& txtResult);

} // namespace parabolt
