#pragma once

#include "fitting/bag_table.h"
#include "qt/fitting_window.h"

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSplitter;

namespace parabolt {

class ChartView;
class TableView;

/// The window of the bag, called "bag": which clubs the player owns, how far each goes in the
/// weather of the main form, which gaps lie between them, and what was measured with them.
class BagWindow : public FittingWindow {
    Q_OBJECT

public:
    BagWindow(frmMain& logic, Fitting& fitting, const FormServices& services, Printer& printer);
    ~BagWindow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void look() override;
    void refresh() override;
    void remember() override;

private:
    struct BagField;
    static std::span<const BagField> bagFields();

    void buildCommands();
    QWidget* choices();
    void showChoices();
    void takeChoices();

    void fly();
    void ownSelected();
    void print();

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
