// What the commands of the window of measured shots do.

#include "files/file_access.h"
#include "fitting/data_set_entry.h"
#include "fitting/measured_words.h"
#include "mainform/form_shot.h"
#include "measured/shot_file.h"
#include "qt/chart_view.h"
#include "qt/import_dialog.h"
#include "qt/measured_window.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "tables/table_text.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>
#include <numeric>

namespace parabolt {
namespace {

constexpr int kOutColumn = 1; ///< of the table of shots: left out

/// The local file that a drag brings; empty if it brings none, or a folder.
QString draggedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls())
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile())
            return url.toLocalFile();
    return {};
}

} // namespace

void MeasuredWindow::importFile() {
    const auto read = [this](const std::string& fileName, std::string_view) {
        return importNamed(fileName);
    };
    if (const auto done = dialogs_.run(DialogPurpose::ImportShots, read); !done)
        messages_.show(done.why().description);
}

/// Shows what a file would bring, and takes what the user wants of it.
Outcome<void, Failure> MeasuredWindow::importNamed(const std::string& fileName) {
    const auto bytes = readFile(fileName, kLongestShotFile + 1); // one more tells that it is longer
    if (!bytes)
        return because(bytes.why());
    auto review = ImportReview::open(*bytes, columns_.choices());
    if (!review) {
        messages_.show("Nothing was imported. " + review.why().message);
        return {};
    }
    const QString name = QFileInfo(toQt(fileName)).fileName();
    ImportDialog dialog(*review, name, logic_.form.clubs, fitting_.session().answers, desktop_,
                        this);
    const bool taken = dialog.exec() == QDialog::Accepted;
    activateWindow();
    if (!taken)
        return {};
    if (review->device() == nullptr)
        columns_.remember(review->choice());
    otherClubs_ = true;
    fitting_.take(review->preview(), fromQt(name), dialog.answers());
    shotsView_->fitTexts();
    statusBar()->clearMessage();
    return {};
}

void MeasuredWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MeasuredWindow::dropEvent(QDropEvent* event) {
    const std::string fileName = fromQt(draggedFile(*event->mimeData()));
    event->acceptProposedAction();
    // Whoever holds the file waits until this has returned: the preview comes afterwards.
    QTimer::singleShot(0, this, [this, fileName] {
        if (const auto done = importNamed(fileName); !done)
            messages_.show(done.why().description);
    });
}

void MeasuredWindow::copyTableInUse() {
    (clubsView_->hasFocus() ? clubsView_ : shotsView_)->copy();
}

void MeasuredWindow::print() {
    const MeasuredSession& session = fitting_.session();
    SheetContent content;
    content.title = "Measured Shots";
    content.charts = {[lines = carryLines(), figures = whose()](PictureBox& canvas) {
        drawCarries(canvas, lines, {}, figures, {});
    }};
    content.table = tableAsCells(clubs_, clubsView_->extract());
    content.remark = sourceInWords(session) + ". " + comparisonInWords(session, comparison_);
    printSheet(std::move(content));
}

void MeasuredWindow::checkedIntoDataSets() {
    const MeasuredSession& session = fitting_.session();
    const bool anyChecked = std::any_of(session.entries.begin(), session.entries.end(),
                                        [](const MeasuredEntry& entry) { return entry.checked; });
    runShots(
        checkedShots(session.entries, takeShot(logic_.form, logic_.form.clubs), session.ownAir),
        anyChecked ? "All ticked shots are left out."
                   : "Tick the shots first that are to become data sets.");
}

void MeasuredWindow::meansIntoDataSets() {
    const MeasuredSession& session = fitting_.session();
    runShots(meanShots(session.entries, takeShot(logic_.form, logic_.form.clubs), session.ownAir),
             "All shots are left out.");
}

/// Runs shots, and says what came of them; a message tells of those that are missing.
void MeasuredWindow::runShots(const std::vector<NamedShot>& shots, const std::string& whyNone) {
    if (shots.empty())
        return messages_.show(whyNone);
    const SeriesReport report = runOnForm(logic_.form, logic_.shotEntry, shots);
    const std::string words = seriesInWords(report);
    statusBar()->showMessage(toQt(words));
    if (!report.why.empty())
        messages_.show(words);
}

void MeasuredWindow::strikeSelected() {
    shots_.strike(shotsView_->selectedRows());
}

void MeasuredWindow::checkSelected() {
    const auto rows = shotsView_->selectedRows();
    if (!rows.empty())
        shots_.check(rows, !fitting_.session().entries[rows.front()].checked);
}

void MeasuredWindow::checkAll() {
    const auto& entries = fitting_.session().entries;
    std::vector<std::size_t> rows(entries.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    const bool all = std::all_of(entries.begin(), entries.end(),
                                 [](const MeasuredEntry& entry) { return entry.checked; });
    shots_.check(rows, !all);
}

/// Space ticks what is marked: the box that has the cursor, for all marked rows.
bool MeasuredWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == shotsView_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        if (shotsView_->currentIndex().column() == kOutColumn)
            strikeSelected();
        else
            checkSelected();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace parabolt
