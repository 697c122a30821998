#pragma once

#include "printing/printer.h"
#include "qt/window_memory.h"
#include "sets/data_sets.h"
#include "shell/frm_main.h"

#include <QMainWindow>

class QComboBox;
class QLabel;
class QSplitter;

namespace parabolt {

class ChartView;
class TableView;

/// The window of the data sets, beside the main form: a table of all, with names and ticks, and a
/// close-up of where the ticked ones land. Follows the form; what is ticked stands in its plot.
class DataSetsWindow : public QMainWindow {
    Q_OBJECT

public:
    DataSetsWindow(frmMain& logic, const FormServices& services, Printer& printer);
    ~DataSetsWindow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildCommands();
    void follow();
    void showState();
    void showBases();
    void showOnlyTicked(bool only);
    void tickSelected();
    void takeIntoFields();
    void exportTable();
    void print();
    void restore();
    void remember();

    frmMain& logic_;
    RunBook& book_;
    Printer& printer_;
    MessageBoxes& messages_;
    WindowMemory memory_;
    Desktop& desktop_;
    std::function<std::string()> localTime_;
    DialogRoutine dialogs_;
    DataSets sets_;
    std::uint64_t shownRevision_ = 0;

    QAction* onlyTicked_ = nullptr;
    QAction* all_ = nullptr;
    QAction* take_ = nullptr;
    QAction* print_ = nullptr;
    QComboBox* base_;
    QLabel* count_;
    TableView* table_;
    ChartView* landing_;
    QSplitter* halves_; ///< table and close-up
};

} // namespace parabolt
