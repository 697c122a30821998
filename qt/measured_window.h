#pragma once

#include "files/dialog_routine.h"
#include "fitting/carry_chart.h"
#include "fitting/import_review.h"
#include "fitting/measured_table.h"
#include "printing/printer.h"
#include "qt/window_memory.h"
#include "shell/frm_main.h"
#include "shots/background.h"

#include <QMainWindow>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QMenu;
class QSplitter;

namespace parabolt {

class ChartView;
class TableView;

/// The window of the shots that a launch monitor has measured, called "measuredShots": beside the
/// main form, whose weather it follows. With the window closed nothing is computed.
class MeasuredWindow : public QMainWindow {
    Q_OBJECT

public:
    MeasuredWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                   Printer& printer);
    ~MeasuredWindow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The window.
    QWidget* head();
    QWidget* choices();
    QWidget* parts();
    void buildCommands();
    QAction* add(QMenu* menu, const QString& name, const QString& text, const QString& meaning,
                 const QKeySequence& key, void (MeasuredWindow::*run)());
    void follow();
    void refresh();
    void showChoices();
    void showTexts();
    void takeAir();
    void remember();
    std::vector<CarryLine> carryLines() const;
    /// "Device" or "Measured".
    std::string_view whose() const { return figuresHeading(fitting_.session().computesCarry); }

    // Its commands.
    void importFile();
    Outcome<void, Failure> importNamed(const std::string& fileName);
    void exportFile();
    void copyTableInUse();
    void copyChart();
    void print();
    void checkedIntoDataSets();
    void meansIntoDataSets();
    void runShots(std::span<const Shot> shots);
    void strikeSelected();
    void checkSelected();
    void checkAll();

    frmMain& logic_;
    Fitting& fitting_;
    MessageBoxes& messages_;
    Desktop& desktop_;
    Printer& printer_;
    std::function<std::string()> localTime_;
    DialogRoutine dialogs_;
    ColumnMemory columns_;
    WindowMemory memory_;
    Comparison comparison_;
    MeasuredTable shots_;
    ClubsTable clubs_;
    std::uint64_t computing_ = 0; ///< generation at which the background is, or was

    QLabel* source_;
    QComboBox* weather_;
    QCheckBox* normalise_;
    std::vector<QDoubleSpinBox*> air_; ///< of the calm air
    TableView* shotsView_;
    TableView* clubsView_;
    ChartView* chart_;
    QSplitter* halves_;
    QSplitter* below_;
    QLabel* summary_;
    Background background_; ///< last: it ends before what it delivers to
};

} // namespace parabolt
