#include "sessions/session_handlers.h"

#include "files/file_access.h"
#include "sessions/desk_work.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace parabolt {
namespace {

constexpr std::string_view kNewerVersion =
    "This session was saved by a newer version of Parabolt. This version cannot open it.";
constexpr std::string_view kNoLastSession = "There is no last session to reopen.";
constexpr std::string_view kGoBack = "Go &Back";
constexpr std::size_t kDateLength = 10; ///< of "2026-11-23 10:32"

/// What a desk is told by: its data sets, or the measured shots of one without any, or else `none`.
std::string contentOf(const Desk& desk, std::string_view none) {
    const auto counted = [](std::size_t count, const std::string& what) {
        return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    const DeskWork work = workOn(desk);
    if (work.dataSets > 0)
        return counted(work.dataSets, "data set");
    return work.measuredShots > 0 ? counted(work.measuredShots, "measured shot")
                                  : std::string(none);
}

/// What a user does to a text by hand: letter by letter, or at a stroke that takes several away.
WayBack::Change changeOf(std::string_view before, std::string_view after) {
    const auto shorter = std::min(before.size(), after.size());
    const auto alike = [&](auto one, auto other) {
        return static_cast<std::size_t>(
            std::mismatch(one, one + static_cast<std::ptrdiff_t>(shorter), other).first - one);
    };
    const std::size_t start = alike(before.begin(), after.begin());
    const std::size_t end = std::min(alike(before.rbegin(), after.rbegin()), shorter - start);
    const std::string_view gone = before.substr(start, before.size() - start - end);
    const auto letters = std::count_if(gone.begin(), gone.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; // no later byte of a letter
    });
    return letters > 1 ? WayBack::Change::Wipe : WayBack::Change::Edit;
}

} // namespace

SessionHandlers::SessionHandlers(MainForm& form, PlotPanel& plot, FileDialog& dialog,
                                 PreferencesStore& preferences, MessageBoxes& messages,
                                 const std::string& applicationFolder,
                                 SessionSurroundings surroundings)
    : form_(form),
      plot_(plot),
      messages_(messages),
      dialogs_(dialog, preferences, messages, applicationFolder),
      surroundings_(std::move(surroundings)),
      recovery_(surroundings_.stateFolder, surroundings_.keepingEnded) {
    using Change = WayBack::Change;
    const auto keep = [this](Change change) {
        wayBack_.keep(present(), change);
        showWayBack();
    };
    const auto keepForChoice = [keep] { keep(Change::Choice); };
    form_.Wiping.connect([keep] { keep(Change::Wipe); });
    for (OptionButton* button :
         {&form_.optActual, &form_.optManual, &form_.optLaunch, &form_.optStandard, &form_.optAuto,
          &form_.optWood, &form_.optIron})
        button->Choosing.connect(keepForChoice);
    form_.cmbClubNo.Choosing.connect(keepForChoice);
    form_.txtResult.Editing.connect(
        [this, keep](const std::string& after) { keep(changeOf(form_.txtResult.text(), after)); });
    form_.mnuFile.Click.connect([this] { showWayBack(); }); // "10:32" may be of yesterday by now
    form_.mnuOpenSession.Click.connect([this] { mnuOpenSession_Click(); });
    form_.mnuSaveSession.Click.connect([this] { mnuSaveSession_Click(); });
    form_.mnuReopenSession.Click.connect([this] { mnuReopenSession_Click(); });
    form_.mnuGoBack.Click.connect([this] { mnuGoBack_Click(); });
    form_.mnuRewriteTable.Click.connect([this] { mnuRewriteTable_Click(); });
}

void SessionHandlers::begin() {
    wayBack_ = {};
    showWayBack();
    fresh_ = takeDesk(form_);
    kept_ = fresh_;
}

void SessionHandlers::recover() {
    const auto session = recovery_.abandoned();
    if (!session)
        return;
    const bool reopens =
        messages_.ask("Parabolt did not end properly. Reopen " +
                      contentOf(session->desk, "the fields") + " of " + timeOf(*session) + "?");
    if (!reopens)
        return recovery_.settle(false);
    lay(session->desk);
    actionEnded();
    if (recovery_.flush()) // safe as our own
        recovery_.settle(true);
}

void SessionHandlers::open(const std::string& fileName) {
    const auto text = readFile(fileName, kLongestSessionFile);
    if (!text)
        return messages_.show(readFailureMessage(text.why()));
    openText(*text);
}

void SessionHandlers::actionEnded() {
    Desk desk = takeDesk(form_);
    wayBack_.actionEnded(desk);
    if (desk == kept_)
        return;
    kept_ = desk;
    recovery_.keep({std::move(desk), surroundings_.localTime()});
}

void SessionHandlers::finish() {
    const Session session = present();
    if (session.desk == fresh_)
        recovery_.finish();
    else
        recovery_.finish(session);
}

void SessionHandlers::mnuOpenSession_Click() {
    const auto load = [this](const std::string& fileName,
                             std::string_view) -> Outcome<void, Failure> {
        const auto text = readFile(fileName, kLongestSessionFile);
        if (!text)
            return because(text.why());
        openText(*text);
        return {};
    };
    if (const auto done = dialogs_.run(DialogPurpose::OpenSession, load); !done)
        messages_.show(readFailureMessage(done.why()));
}

void SessionHandlers::mnuSaveSession_Click() {
    const auto save = [this](const std::string& fileName, std::string_view) {
        return replaceFile(fileName, encodeSession(present()));
    };
    const std::string name = "Session " + surroundings_.localTime().substr(0, kDateLength) + ".pbs";
    if (const auto done = dialogs_.run(DialogPurpose::SaveSession, save, name); !done)
        messages_.show(done.why().description);
}

void SessionHandlers::mnuReopenSession_Click() {
    const auto text = recovery_.last();
    if (text)
        openText(*text);
    else
        messages_.show(text.why().number == kBadFileName ? kNoLastSession
                                                         : readFailureMessage(text.why()));
}

void SessionHandlers::mnuGoBack_Click() {
    if (wayBack_.next() == nullptr)
        return;
    lay(wayBack_.goBack(present()).desk);
    showWayBack();
}

void SessionHandlers::mnuRewriteTable_Click() {
    form_.Wiping();
    rewriteTable(form_);
}

/// The time alone where it is of today.
std::string SessionHandlers::timeOf(const Session& session) const {
    const std::string today = surroundings_.localTime().substr(0, kDateLength);
    return session.time.starts_with(today) && session.time.size() > kDateLength
               ? session.time.substr(kDateLength + 1)
               : session.time;
}

void SessionHandlers::lay(const Desk& desk) {
    layDesk(form_, desk);
    plot_.redraw();
    plot_.tellNewest();
}

void SessionHandlers::openText(std::string_view text) {
    const auto session = decodeSession(text);
    if (!session)
        return messages_.show(session.why() == NoSession::Newer ? kNewerVersion : kFileMismatch);
    form_.Wiping();
    lay(session->desk);
}

/// The menu tells what going back leads to, and can't be chosen where that is nothing.
void SessionHandlers::showWayBack() {
    const Session* next = wayBack_.next();
    form_.mnuGoBack.setEnabled(next != nullptr);
    form_.mnuGoBack.setCaption(next == nullptr ? std::string(kGoBack)
                                               : std::string(kGoBack) + ": " +
                                                     contentOf(next->desk, "no data sets") + ", " +
                                                     timeOf(*next));
}

} // namespace parabolt
