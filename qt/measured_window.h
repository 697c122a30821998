#pragma once

#include "files/dialog_routine.h"
#include "fitting/carry_chart.h"
#include "fitting/import_review.h"
#include "fitting/measured_table.h"
#include "shell/frm_main.h"
#include "shots/background.h"

#include <QMainWindow>
#include <array>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace parabolt {

class ChartView;
class Printer;
class TableView;

/// The window of the shots that a launch monitor has measured, called "measuredShots": beside the
/// main form, whose weather it follows. With the window closed nothing is computed.
class MeasuredWindow : public QMainWindow {
    Q_OBJECT

public:
    MeasuredWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                   Printer& printer);
    ~MeasuredWindow() override;

    /// Shows what a file of a name would bring, and takes what the user wants of it.
    void importBytes(const QString& name, std::string_view bytes);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* head();
    QWidget* choices();
    QWidget* tables();
    void buildMenus();
    void connectParts();

    void follow();
    void refresh();
    void showChoices();
    void showTexts();
    void takeAir();

    void importFile();
    void exportFile();
    void copy();
    void copyChart();
    void print();
    void checkedIntoDataSets();
    void meansIntoDataSets();
    void runOnForm(std::span<const Shot> shots, const char* none);
    void drawChart(PictureBox& canvas) const;
    const TableView& tableInUse() const;

    frmMain& logic_;
    Fitting& fitting_;
    MessageBoxes& messages_;
    PreferencesStore& preferences_;
    Desktop& desktop_;
    Printer& printer_;
    DialogRoutine dialogs_;
    ColumnMemory memory_;
    Comparison comparison_;
    MeasuredTable shots_;
    ClubsTable clubs_;

    QLabel* source_;
    QComboBox* weather_;
    QCheckBox* normalise_;
    std::array<QDoubleSpinBox*, 4> air_; ///< in the order of `CalmAir`
    TableView* shotsView_ = nullptr;
    TableView* clubsView_ = nullptr;
    ChartView* chart_ = nullptr;
    QLabel* summary_;
    Background background_; ///< last: it ends before what it delivers to
};

} // namespace parabolt
