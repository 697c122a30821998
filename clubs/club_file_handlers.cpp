#include "clubs/club_file_handlers.h"

#include "clubs/clubs_file.h"
#include "files/file_access.h"

namespace parabolt {

ClubFileHandlers::ClubFileHandlers(ClubForm& form, const ClubTables& clubs, ClubEditor& editor,
                                   const ClubServices& services)
    : form_(form),
      clubs_(clubs),
      editor_(editor),
      messages_(services.messages),
      dialog_(services.ccrpFileDialogs1),
      routine_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      showInMainForm_(services.showInMainForm) {
    form_.mnuOpenClub.Click.connect([this] { mnuOpenClub_Click(); });
    form_.mnuSave.Click.connect([this] { mnuSave_Click(); });
}

void ClubFileHandlers::mnuOpenClub_Click() {
    editor_.settle();
    const auto load = [this](const std::string& fileName, std::string_view) {
        ReadClubFile(fileName);
        showPickedName(); // whether or not it could be read
        return std::optional<Failure>();
    };
    if (const auto failure = routine_.run(DialogPurpose::OpenClubs, load))
        messages_.show(failure->description);
}

void ClubFileHandlers::ReadClubFile(const std::string& FileName) {
    const Outcome<Bytes> data = readFileStart(FileName, kLongestClubsFile);
    if (const auto* failure = std::get_if<Failure>(&data))
        return messages_.show(readFailureMessage(*failure));
    if (const auto clubs = decodeClubs(std::get<Bytes>(data)))
        showClubs(form_, *clubs);
    else
        messages_.show("File mismatch!");
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
                             std::string_view ending) -> std::optional<Failure> {
        std::optional<Failure> failure;
        if (ending == "txt") {
            failure = replaceFile(fileName, composeClubsText(form_, clubs_));
        } else if (const auto bytes = encodeClubs(clubs_)) {
            failure = writeFileStart(fileName, *bytes);
        } else {
            messages_.show("The comment is too long for a clubs file: it may have at most 65535 "
                           "characters. Nothing has been saved.");
            return std::nullopt;
        }
        if (!failure) {
            showPickedName();
            showInMainForm_();
        }
        return failure;
    };
    routine_.run(DialogPurpose::SaveClubs, save);
}

void ClubFileHandlers::showPickedName() {
    form_.setCaption("Clubs Parameter - " + dialog_.pickedName);
}

} // namespace parabolt
