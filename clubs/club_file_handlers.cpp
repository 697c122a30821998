#include "clubs/club_file_handlers.h"

#include "clubs/clubs_file.h"
#include "clubs/clubs_text.h"
#include "files/file_access.h"

#include <tuple>

namespace parabolt {
namespace {

// Where the name of the last clubs file is kept.
constexpr std::string_view kStore = "Parabolt";
constexpr std::string_view kSection = "Startup";
constexpr std::string_view kLastFile = "LastClubsFile";

} // namespace

ClubFileHandlers::ClubFileHandlers(ClubForm& form, const ClubTables& clubs, ClubEditor& editor,
                                   const ClubServices& services)
    : form_(form),
      clubs_(clubs),
      editor_(editor),
      messages_(services.messages),
      dialog_(services.ccrpFileDialogs1),
      preferences_(services.preferences),
      routine_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      showInMainForm_(services.showInMainForm) {
    form_.mnuOpenClub.Click.connect([this] { mnuOpenClub_Click(); });
    form_.mnuSave.Click.connect([this] { mnuSave_Click(); });
}

void ClubFileHandlers::mnuOpenClub_Click() {
    editor_.settle();
    const auto load = [this](const std::string& fileName,
                             std::string_view) -> Outcome<void, Failure> {
        if (ReadClubFile(fileName))
            rememberFile(fileName);
        showPickedName(); // whether or not it could be read
        return {};
    };
    if (const auto done = routine_.run(DialogPurpose::OpenClubs, load); !done)
        messages_.show(done.why().description);
}

bool ClubFileHandlers::ReadClubFile(const std::string& FileName) {
    const auto data = readFileStart(FileName, kLongestClubsFile);
    if (!data) {
        messages_.show(readFailureMessage(data.why()));
        return false;
    }
    const auto clubs = decodeClubs(*data);
    if (clubs)
        showClubs(form_, *clubs);
    else
        messages_.show(kFileMismatch);
    return static_cast<bool>(clubs);
}

bool ClubFileHandlers::readLastFile() {
    const auto last = GetRegString(preferences_, kStore, kSection, kLastFile, "");
    if (!last || last->empty()) {
        messages_.show("There is no last clubs file to reopen.");
        return false;
    }
    // The given way of opening would make a file where there is none any more.
    if (const auto there = readFile(*last, 1); !there) {
        messages_.show(*last + ": " + there.why().description);
        return false;
    }
    return ReadClubFile(*last);
}

/// What the store refuses is as if no file had been picked.
void ClubFileHandlers::rememberFile(const std::string& fileName) {
    static_cast<void>(SaveRegString(preferences_, kStore, kSection, kLastFile, fileName));
}

void ClubFileHandlers::mnuSave_Click() {
    editor_.settle();
    if (!editor_.ValidateClubGrids())
        return;
    editor_.ApplyClubGrids();
    SaveClubFile();
}

void ClubFileHandlers::SaveClubFile() {
    const auto save = [this](const std::string& fileName,
                             std::string_view ending) -> Outcome<void, Failure> {
        Outcome<void, Failure> written;
        if (ending == "txt") {
            written = replaceFile(fileName, composeClubsText(form_, clubs_));
        } else if (const auto bytes = encodeClubs(clubs_)) {
            written = writeFileStart(fileName, *bytes);
        } else {
            messages_.show("The comment is too long for a clubs file: it may have at most 65535 "
                           "characters. Nothing has been saved.");
            return {};
        }
        if (written) {
            if (ending == "clb")
                rememberFile(fileName);
            showPickedName();
            showInMainForm_();
        }
        return written;
    };
    std::ignore = routine_.run(DialogPurpose::SaveClubs, save);
}

void ClubFileHandlers::showPickedName() {
    form_.setCaption("Clubs Parameter - " + dialog_.pickedName);
}

} // namespace parabolt
