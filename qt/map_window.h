#pragma once

#include "files/dialog_routine.h"
#include "maps/carry_map.h"
#include "maps/map_worker.h"
#include "shell/frm_main.h"

#include <QMainWindow>
#include <array>

class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace parabolt {

class MapStepsView;
class MapView;

/// The window of the carry map, beside the main form: follows what the form accepts, and takes
/// values into it. With the window closed nothing is computed.
class MapWindow : public QMainWindow {
    Q_OBJECT

public:
    MapWindow(frmMain& logic, const FormServices& services);
    ~MapWindow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The three fields of an axis.
    struct AxisFields {
        QLabel* name;
        QDoubleSpinBox* first;
        QDoubleSpinBox* last;
        QDoubleSpinBox* step;
    };

    QWidget* choices();
    QWidget* stepsPanel();
    AxisFields axisFields(const QString& name);
    void buildMenu();

    void follow();
    void followChoices();
    void keepChoices();
    void compute();
    void accept(const std::shared_ptr<const MapResult>& result);
    void showRanges();
    void takeRanges();
    void showTexts();
    void showReadout();
    bool takeValues();
    void runShot();
    void savePicture();
    void copyPicture();
    void exportTable();

    frmMain& logic_;
    Desktop& desktop_;
    DialogRoutine dialogs_;
    CarryMap map_;
    std::string keptChoices_;   ///< what the desk last held of ours
    std::uint64_t started_ = 0; ///< generation at which the worker is, or was

    QComboBox* kind_;
    QComboBox* outcome_;
    std::array<AxisFields, 2> axes_; ///< across, up
    MapView* view_;
    QLabel* readout_;
    QLabel* summary_;
    MapStepsView* steps_;
    MapWorker worker_; ///< last: it ends before what it delivers to
};

} // namespace parabolt
