#pragma once

#include "qt/action_watch.h"
#include "qt/main_layout.h"
#include "shell/frm_main.h"

#include <QMainWindow>
#include <memory>

class QLabel;

namespace parabolt {

class DataSetOutput;
class FormBinding;
class PlotReadout;
class RichTextBinding;

/// The window of `frmMain`: menus, inputs and table above, the plot across the full width below.
///
/// The form counts in twips; what a twip measures here follows the font, so that the inputs fit
/// into the share of the form that is theirs and the whole keeps its proportions.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(frmMain& logic);
    ~MainWindow() override;

    /// Says with one word in the status bar that the desk can't be kept safe, and why in its tip;
    /// takes the word away for an empty text.
    void showKeeping(const QString& trouble);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPlots();
    void showOutcome();
    void walkPlot();
    void connectLogic();
    void runInPlace();
    void describePlot();
    void setLeastSize();
    void fitToSize();
    double pixelsPerTwip() const;
    double pixelsPerPlotTwip() const;
    void place(const PictureBox& picture, double down);

    frmMain& logic_;
    QWidget* centre_ = nullptr; ///< what stands between menus and status bar
    MainLayout layout_{};
    std::unique_ptr<QWidget> progress_;
    std::unique_ptr<FormBinding> progressBinding_;
    std::unique_ptr<FormBinding> binding_;
    std::unique_ptr<RichTextBinding> tableBinding_;
    std::unique_ptr<DataSetOutput> output_;
    QLabel* unsaved_ = nullptr; ///< in the status bar
    PlotReadout* readout_ = nullptr;
    QWidget* beforePlot_ = nullptr; ///< had the keys before the plot got them
    ActionWatch watch_;
};

} // namespace parabolt
