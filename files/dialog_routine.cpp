#include "files/dialog_routine.h"

#include "files/file_access.h"
#include "numbers/characters.h"

#include <algorithm>
#include <array>
#include <utility>

namespace parabolt {

namespace {

struct DialogRule {
    DialogPurpose purpose;
    void (FileDialog::*show)();
    std::string_view title;
    std::string_view filter;
    std::array<std::string_view, 4> endings; ///< in lower case, without a dot; all but one may lack
    std::string_view refusal;
};

constexpr std::string_view kCannotOpen = "The file type is not correct!";
constexpr std::string_view kCannotSave = "The file type is not support!";

constexpr std::array<DialogRule, 14> kRules{{
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
    {DialogPurpose::SaveMapPicture,
     &FileDialog::showSave,
     "Save Carry Map As Picture",
     "PNG Picture(*.png)|*.png|SVG Drawing(*.svg)|*.svg|PDF Document(*.pdf)|*.pdf",
     {"png", "svg", "pdf"},
     kCannotSave},
    {DialogPurpose::SaveMapTable,
     &FileDialog::showSave,
     "Export Carry Map As Table",
     "Comma-Separated Values(*.csv)|*.csv",
     {"csv"},
     kCannotSave},
    {DialogPurpose::OpenSession,
     &FileDialog::showOpen,
     "Open Session",
     "Session(*.pbs)|*.pbs",
     {"pbs"},
     kCannotOpen},
    {DialogPurpose::SaveSession,
     &FileDialog::showSave,
     "Save Session",
     "Session(*.pbs)|*.pbs",
     {"pbs"},
     kCannotSave},
    {DialogPurpose::ExportTable,
     &FileDialog::showSave,
     "Export Table",
     "Comma-Separated Values(*.csv)|*.csv",
     {"csv"},
     kCannotSave},
    {DialogPurpose::ExportPaths,
     &FileDialog::showSave,
     "Export Paths",
     "Comma-Separated Values(*.csv)|*.csv",
     {"csv"},
     kCannotSave},
    {DialogPurpose::ExportPlot,
     &FileDialog::showSave,
     "Export Plot",
     "PNG Picture(*.png)|*.png|SVG Drawing(*.svg)|*.svg|PDF Document(*.pdf)|*.pdf",
     {"png", "svg", "pdf"},
     kCannotSave},
    {DialogPurpose::ImportShots,
     &FileDialog::showOpen,
     "Import Launch Monitor File",
     "Launch Monitor Files|*.csv *.txt *.tsv",
     {"csv", "txt", "tsv"},
     kCannotOpen},
    {DialogPurpose::ExportTableOrChart,
     &FileDialog::showSave,
     "Export Table Or Chart",
     "Table As Comma-Separated Values(*.csv)|*.csv|Chart As PNG Picture(*.png)|*.png|"
     "Chart As SVG Drawing(*.svg)|*.svg|Chart As PDF Document(*.pdf)|*.pdf",
     {"csv", "png", "svg", "pdf"},
     kCannotSave},
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

    if (const std::string fileName = dialog_.fileName; !fileName.empty()) {
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

void DialogRoutine::save(DialogPurpose purpose, std::string_view suggestedName,
                         const Compose& compose) {
    const auto write = [&compose](const std::string& fileName,
                                  std::string_view ending) -> Outcome<void, Failure> {
        if (const auto bytes = compose(ending))
            return replaceFile(fileName, *bytes);
        return {};
    };
    if (const auto done = run(purpose, write, suggestedName); !done)
        messages_.show(done.why().description);
}

std::string_view readFailureMessage(const Failure& failure) {
    return failure.number == kBadFileName ? "File not found!" : kFileMismatch;
}

} // namespace parabolt
