#pragma once

#include "files/dialog_routine.h"
#include "fitting/fitting.h"
#include "printing/printer.h"
#include "printing/sheet.h"
#include "qt/window_memory.h"
#include "shell/frm_main.h"

#include <QMainWindow>

class QDoubleSpinBox;
class QKeySequence;
class QMenu;

namespace parabolt {

class ChartView;
class TableSource;

/// What the windows of measured shots and of the bag have in common: both stand beside the main
/// form, look at it whenever this thread sleeps or wakes, show the same session, and put a table
/// and a chart out.
class FittingWindow : public QMainWindow {
    Q_OBJECT

protected:
    /// `helpPage` is the page of the manual, which opens by F1.
    FittingWindow(frmMain& logic, Fitting& fitting, const FormServices& services, Printer& printer,
                  const QString& name, const QString& title, const char* helpPage);

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    /// Looks at what the form and the session stand for now. Called only while the window is seen.
    virtual void look() = 0;
    /// Shows the session. Called only while the window is seen.
    virtual void refresh() = 0;
    /// Keeps how the user leaves the window.
    virtual void remember() = 0;

    QAction* add(QMenu* menu, const QString& name, const QString& text, const QString& meaning,
                 const QKeySequence& key, const std::function<void()>& run);
    /// "Device" or "Measured".
    std::string_view whose() const { return figuresHeading(fitting_.session().computesCarry); }
    /// Shows a number in its field, and leaves alone what is being typed.
    static void showNumber(QDoubleSpinBox& field, double value);

    /// Asks for a file, and writes the table as CSV or the chart as a picture.
    void exportTableOrChart(const TableSource& table, const ChartView& chart,
                            const std::string& name);
    /// Puts a picture of the chart on the clipboard.
    static void copyChart(const ChartView& chart);
    /// Shows a page with the player, fitter, date and note of the session, and prints it if the
    /// user wants. What the user types becomes the session's.
    void printSheet(SheetContent content);

    frmMain& logic_;
    Fitting& fitting_;
    MessageBoxes& messages_;
    Desktop& desktop_;
    DialogRoutine dialogs_;
    WindowMemory memory_;

private:
    void follow();

    Printer& printer_;
    std::function<std::string()> localTime_;
};

} // namespace parabolt
