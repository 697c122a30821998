#pragma once

#include "files/dialog_routine.h"
#include "fitting/bag_table.h"
#include "fitting/carry_chart.h"
#include "printing/printer.h"
#include "qt/window_memory.h"
#include "shell/frm_main.h"

#include <QMainWindow>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QMenu;
class QSplitter;

namespace parabolt {

class ChartView;
class TableView;

/// The window of the bag, called "bag": which clubs the player owns, how far each goes in the
/// weather of the main form, which gaps lie between them, and what was measured with them.
class BagWindow : public QMainWindow {
    Q_OBJECT

public:
    BagWindow(frmMain& logic, Fitting& fitting, const FormServices& services, Printer& printer);
    ~BagWindow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct BagField;
    static std::span<const BagField> bagFields();

    void buildCommands();
    QWidget* choices();
    void follow();
    void refresh();
    void showChoices();
    void takeChoices();
    void remember();
    std::vector<CarryLine> carryLines() const;
    /// "Device" or "Measured".
    std::string_view whose() const { return figuresHeading(fitting_.session().computesCarry); }

    void fly();
    void ownSelected();
    void exportFile();
    void copyChart();
    void print();

    frmMain& logic_;
    Fitting& fitting_;
    MessageBoxes& messages_;
    Desktop& desktop_;
    Printer& printer_;
    std::function<std::string()> localTime_;
    DialogRoutine dialogs_;
    WindowMemory memory_;
    BagTable bag_;
    bool current_ = true; ///< as the summary says it

    QComboBox* speeds_;
    std::vector<QDoubleSpinBox*> fields_; ///< in the order of `bagFields`
    TableView* table_;
    ChartView* chart_;
    QSplitter* halves_;
    QLabel* summary_;
};

} // namespace parabolt
