#pragma once

#include "fitting/carry_chart.h"
#include "fitting/import_review.h"
#include "fitting/measured_table.h"
#include "qt/fitting_window.h"
#include "shots/background.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSplitter;

namespace parabolt {

class ChartView;
class TableView;

/// The window of the shots that a launch monitor has measured, called "measuredShots": beside the
/// main form, whose weather it follows. With the window closed nothing is computed.
class MeasuredWindow : public FittingWindow {
    Q_OBJECT

public:
    MeasuredWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                   Printer& printer);
    ~MeasuredWindow() override;

protected:
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void look() override;
    void refresh() override;
    void remember() override;

private:
    // The window.
    QWidget* head();
    QWidget* choices();
    QWidget* parts();
    void buildCommands();
    void compute();
    void showChoices();
    void showTexts();
    void takeAir();
    std::vector<CarryLine> carryLines() const;

    // Its commands.
    void importFile();
    Outcome<void, Failure> importNamed(const std::string& fileName);
    void copyTableInUse();
    void print();
    void checkedIntoDataSets();
    void meansIntoDataSets();
    void runShots(const std::vector<NamedShot>& shots, const std::string& whyNone);
    void strikeSelected();
    void checkSelected();
    void checkAll();

    ColumnMemory columns_;
    Comparison comparison_;
    MeasuredTable shots_;
    ClubsTable clubs_;
    std::uint64_t computing_ = 0; ///< generation at which the background is, or was
    bool otherClubs_ = false;     ///< shots have come in, and their clubs have no rows yet
    bool formRuns_ = false;       ///< the main form takes no shots: a study or batch runs

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
