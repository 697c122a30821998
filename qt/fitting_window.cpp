#include "qt/fitting_window.h"

#include "qt/chart_view.h"
#include "qt/sheet_dialog.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"
#include "tables/table_text.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>

namespace parabolt {

FittingWindow::FittingWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                             Printer& printer, const QString& name, const QString& title,
                             const char* helpPage)
    : logic_(logic),
      fitting_(fitting),
      messages_(services.messages),
      desktop_(services.desktop),
      dialogs_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      memory_(services.preferences, fromQt(name)),
      printer_(printer),
      localTime_(services.sessions.localTime) {
    setObjectName(name);
    setWindowTitle(toQt(kApplicationTitle) + " - " + title);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    setLocale(QLocale::c());
    // The other window may change the session when this one has gone, as the program ends.
    fitting_.Changed.connect([window = QPointer(this)] {
        if (window != nullptr && window->isVisible())
            window->refresh();
    });
    // The form changes in this thread alone: before it sleeps, and when it wakes, a look is enough.
    const auto* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &FittingWindow::follow);
    connect(loop, &QAbstractEventDispatcher::awake, this, &FittingWindow::follow);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this, helpPage] { desktop_.openHelpPage(helpPage); });
}

void FittingWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    follow();
    refresh();
}

void FittingWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    remember();
}

void FittingWindow::follow() {
    if (!isVisible())
        return;
    fitting_.follow();
    look();
}

QAction* FittingWindow::add(QMenu* menu, const QString& name, const QString& text,
                            const QString& meaning, const QKeySequence& key,
                            const std::function<void()>& run) {
    QAction* action = command(menu, name, text, meaning, key);
    connect(action, &QAction::triggered, this, [this, run] {
        for (TableView* table : findChildren<TableView*>())
            table->settle();
        run();
    });
    return action;
}

void FittingWindow::showNumber(QDoubleSpinBox& field, double value) {
    const QSignalBlocker quiet(field);
    if (field.value() != value)
        field.setValue(value);
}

void FittingWindow::exportTableOrChart(const TableSource& table, const ChartView& chart,
                                       const std::string& name) {
    const auto compose = [&](std::string_view ending) -> std::optional<std::string> {
        return ending == "csv" ? tableAsCsv(table, completeTable(table))
                               : pictureFile(chart.onPaper(), ending);
    };
    dialogs_.save(DialogPurpose::ExportTableOrChart, name, compose);
}

void FittingWindow::copyChart(const ChartView& chart) {
    QApplication::clipboard()->setImage(pictureImage(chart.onPaper()));
}

void FittingWindow::printSheet(SheetContent content) {
    const MeasuredSession& session = fitting_.session();
    const SheetFields before{session.player, session.fitter, session.date, session.note};
    content.fields = before;
    SheetDialog dialog(std::move(content), localTime_(), printer_, messages_, this);
    dialog.exec();
    activateWindow();
    if (const SheetFields fields = dialog.fields(); !(fields == before))
        fitting_.change([&fields](MeasuredSession& changed) {
            changed.player = fields.player;
            changed.fitter = fields.fitter;
            changed.date = fields.date;
            changed.note = fields.note;
        });
}

} // namespace parabolt
