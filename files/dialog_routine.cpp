#include "files/dialog_routine.h"

#include "numbers/characters.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

namespace parabolt {

namespace {

struct DialogRule {
    DialogPurpose purpose;
    void (FileDialog::*show)();
    std::string_view title;
    std::string_view filter;
    std::array<std::string_view, 2> endings; ///< in lower case, without a dot; the second may lack
    std::string_view refusal;
    bool addsEnding = false; ///< the first ending, to names that have none of them
};

constexpr std::string_view kSessionEnding = "pbs";
constexpr std::string_view kCannotOpen = "The file type is not correct!";
constexpr std::string_view kCannotSave = "The file type is not support!";

constexpr std::array<DialogRule, 7> kRules{{
    {DialogPurpose::OpenParameters,
     &FileDialog::showOpen,
     "Open Parameters File",
     "Parameter File(*.opt)|*.opt",
     {"opt"},
     kCannotOpen},
    {DialogPurpose::SaveParameters,
     &FileDialog::showSave,
     "Save All Parameters To File",
     "Parameters File(*.opt)|*.opt",
     {"opt"},
     kCannotSave},
    {DialogPurpose::SaveResult,
     &FileDialog::showSave,
     "Save Result To A Text File",
     "Text File(*.txt)|*.txt",
     {"txt"},
     kCannotSave},
    {DialogPurpose::OpenClubs,
     &FileDialog::showOpen,
     "Open Clubs Parameter File",
     "Clubs Parameter File(*.clb)|*.clb",
     {"clb"},
     kCannotOpen},
    {DialogPurpose::SaveClubs,
     &FileDialog::showSave,
     "Save Clubs Parameter To File",
     "Clubs Parameter File(*.clb)|*.clb|Save As Text File(*.txt)|*.txt",
     {"clb", "txt"},
     kCannotSave},
    {DialogPurpose::OpenSession,
     &FileDialog::showOpen,
     "Open Session",
     "Session(*.pbs)|*.pbs",
     {kSessionEnding},
     kCannotOpen},
    {DialogPurpose::SaveSession,
     &FileDialog::showSave,
     "Save Session",
     "Session(*.pbs)|*.pbs",
     {kSessionEnding},
     kCannotSave,
     true},
}};

constexpr std::string_view kAppName = "Parabolt";
constexpr std::string_view kLastPath = "LastPath";
constexpr std::size_t kEndingLength = 3;

const DialogRule& ruleOf(DialogPurpose purpose) {
    return *std::find_if(kRules.begin(), kRules.end(),
                         [purpose](const DialogRule& rule) { return rule.purpose == purpose; });
}

std::string ending(std::string_view fileName) {
    return lowerCase(fileName.substr(fileName.size() - std::min(fileName.size(), kEndingLength)));
}

} // namespace

DialogRoutine::DialogRoutine(FileDialog& dialog, PreferencesStore& preferences,
                             MessageBoxes& messages, std::string applicationFolder)
    : dialog_(dialog),
      preferences_(preferences),
      messages_(messages),
      applicationFolder_(std::move(applicationFolder)) {}

Outcome<void, Failure> DialogRoutine::run(DialogPurpose purpose, const Work& work,
                                          std::string_view suggestedName) {
    const DialogRule& rule = ruleOf(purpose);
    const auto lastPath = GetRegString(preferences_, kAppName, "startup", kLastPath, "");
    if (!lastPath)
        return because(lastPath.why());
    dialog_.initialFolder = lastPath->empty() ? applicationFolder_ : *lastPath;
    dialog_.title = rule.title;
    dialog_.filter = rule.filter;
    dialog_.suggestedName = suggestedName;
    (dialog_.*rule.show)();

    std::string fileName = dialog_.fileName;
    if (rule.addsEnding && !fileName.empty() && ending(fileName) != rule.endings.front())
        fileName = withEnding(fileName, rule.endings.front());
    if (!fileName.empty()) {
        const auto* const match =
            std::find(rule.endings.begin(), rule.endings.end(), ending(fileName));
        if (match == rule.endings.end())
            messages_.show(rule.refusal);
        else if (auto done = work(fileName, *match); !done)
            return done;
    }
    auto saved = SaveRegString(preferences_, kAppName, "Startup", kLastPath, dialog_.finalFolder);
    if (saved)
        dialog_.initialFolder.clear();
    return saved;
}

/// The name with its ending. The dialog has not asked about a file of that name: empty if it is to
/// stay.
std::string DialogRoutine::withEnding(const std::string& fileName, std::string_view ending) const {
    std::string whole = fileName + "." + std::string(ending);
    std::error_code unknown;
    const bool replaces = std::filesystem::exists(whole, unknown);
    return !replaces || messages_.ask(whole + " already exists. Do you want to replace it?")
               ? whole
               : std::string();
}

std::string_view readFailureMessage(const Failure& failure) {
    return failure.number == kBadFileName ? "File not found!" : kFileMismatch;
}

} // namespace parabolt
