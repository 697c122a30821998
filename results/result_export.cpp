#include "results/result_export.h"

#include "files/code_page.h"
#include "files/file_access.h"

#include <utility>

namespace parabolt {

ResultExport::ResultExport(const RichTextBox& txtResult, FileDialog& dialog,
                           PreferencesStore& preferences, MessageBoxes& messages,
                           std::string applicationFolder)
    : txtResult_(txtResult),
      messages_(messages),
      dialogs_(dialog, preferences, messages, std::move(applicationFolder)) {}

void ResultExport::mnuSResult_Click() {
    const auto write = [this](const std::string& fileName, std::string_view) {
        return replaceFile(fileName, composeResultText(txtResult_));
    };
    if (const auto done = dialogs_.run(DialogPurpose::SaveResult, write); !done)
        messages_.show(done.why().description);
}

std::string composeResultText(const RichTextBox& txtResult) {
    std::string text;
    for (const char c : toCodePage(txtResult.text() + '\n'))
        text.append(c == '\n' ? "\r\n" : std::string(1, c));
    return text;
}

} // namespace parabolt
