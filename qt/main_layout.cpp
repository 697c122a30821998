#include "qt/main_layout.h"

#include "mainform/main_form.h"
#include "qt/text.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace parabolt {
namespace {

constexpr int kGap = 4;

template <class Widget>
Widget* named(Widget* widget, const Control& control) {
    widget->setObjectName(toQt(control.name()));
    return widget;
}

QLabel* label(const Label& control) {
    return named(new QLabel(toQt(control.caption())), control);
}

QLineEdit* field(const TextBox& control, const QString& spoken) {
    auto* edit = named(new QLineEdit, control);
    edit->setAccessibleName(spoken);
    edit->setToolTip(spoken);
    edit->setAcceptDrops(false); // what is dropped on a field that isn't being edited isn't judged
    edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance("000000000"));
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance("0000000"));
    return edit;
}

QRadioButton* option(const OptionButton& control) {
    return named(new QRadioButton(toQt(control.caption())), control);
}

QPushButton* button(const Button& control) {
    auto* push = named(new QPushButton(toQt(control.caption())), control);
    push->setAutoDefault(false);
    return push;
}

QGroupBox* frame(const Frame& control) {
    return named(new QGroupBox(toQt(control.caption())), control);
}

/// Fills a grid row by row with a label and its field.
class FieldGrid {
public:
    explicit FieldGrid(QWidget* frame) : grid_(new QGridLayout(frame)) {
        grid_->setContentsMargins(6, 2, 6, 4);
        grid_->setHorizontalSpacing(kGap);
        grid_->setVerticalSpacing(2);
    }
    void add(QLabel* name, QWidget* input) {
        grid_->addWidget(name, row_, 3 * column_);
        grid_->addWidget(input, row_++, 3 * column_ + 1);
    }
    void nextColumn() {
        grid_->setColumnMinimumWidth(3 * column_ + 2, kGap);
        ++column_;
        row_ = 0;
    }
    /// Room that is left goes below the rows and behind the last column.
    void end() {
        grid_->setRowStretch(grid_->rowCount(), 1);
        grid_->setColumnStretch(grid_->columnCount(), 1);
    }

private:
    QGridLayout* grid_;
    int row_ = 0;
    int column_ = 0;
};

template <class... Options>
QGroupBox* optionFrame(const Frame& control, const Options&... options) {
    auto* box = frame(control);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(6, 2, 6, 4);
    column->setSpacing(2);
    (column->addWidget(option(options)), ...);
    column->addStretch();
    return box;
}

QGroupBox* swingFrame(const MainForm& form) {
    auto* box = frame(form.Frame2);
    FieldGrid grid(box);
    grid.add(label(form.Label3), field(form.txtLaunchAngle, "Launch angle, degrees"));
    grid.add(label(form.Label2), field(form.txtBallSpin, "Ball spin, rpm"));
    grid.add(label(form.Label7), field(form.txtLaunchSpeed, "Launch speed, mph"));
    auto* clubs = named(new QComboBox, form.cmbClubNo);
    clubs->setAccessibleName("Club number");
    clubs->setToolTip("Club number");
    clubs->setFocusPolicy(Qt::StrongFocus); // the wheel alone doesn't bring the focus
    clubs->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid.add(label(form.Label8), clubs);
    grid.add(label(form.Label9), field(form.txtHeadSpeed, "Head speed, mph"));
    grid.add(label(form.Label10),
             field(form.txtSpeedIncrement, "Fall of the head speed from club to club, mph"));
    auto* fillIn = named(new QCheckBox(toQt(form.chkBatch.caption())), form.chkBatch);
    fillIn->setToolTip("Auto takes all values of each club from the club tables");
    grid.add(new QLabel, fillIn);
    grid.end();
    return box;
}

QGroupBox* clubFrame(const MainForm& form) {
    auto* box = frame(form.Frame5);
    FieldGrid grid(box);
    grid.add(label(form.Label6), field(form.txtCor, "Coefficient of restitution"));
    grid.add(label(form.Label12), field(form.txtHeadWeight, "Head weight, grams"));
    grid.add(label(form.Label14), field(form.txtLoftAngle, "Loft angle, degrees"));
    grid.add(label(form.Label20), field(form.txtBending, "Bend angle of the shaft, degrees"));
    grid.add(label(form.Label13), field(form.txtAttackAngle, "Attack angle, degrees"));
    grid.end();
    return box;
}

QGroupBox* weatherFrame(const MainForm& form) {
    auto* box = frame(form.Frame7);
    FieldGrid grid(box);
    grid.add(label(form.Label15), field(form.txtAltitude, "Altitude, feet"));
    grid.add(label(form.Label16), field(form.txtWind, "Wind, mph, positive against the ball"));
    grid.add(label(form.Label17), field(form.txtPressure, "Pressure, inches of mercury"));
    grid.nextColumn();
    grid.add(label(form.Label18), field(form.txtTemperature, "Temperature, degrees Fahrenheit"));
    grid.add(label(form.Label19), field(form.txtRelativeHumidity, "Relative humidity, percent"));
    grid.end();
    return box;
}

/// The title, twice: the second a little to the right and below, as its shadow.
QWidget* title(const MainForm& form) {
    auto* box = named(new QFrame, form.Frame3);
    QFont font = box->font();
    font.setPointSizeF(font.pointSizeF() * 1.7);
    font.setBold(true);
    auto* shadow = label(form.Label1);
    auto* face = label(form.Label5);
    shadow->setParent(box);
    face->setParent(box);
    shadow->setFont(font);
    face->setFont(font);
    shadow->setForegroundRole(QPalette::Mid);
    shadow->move(1, 2);
    face->setForegroundRole(QPalette::WindowText);
    face->raise();
    box->setFixedSize(face->sizeHint() + QSize(2, 3));
    return box;
}

QLayout* strip(const MainForm& form) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(title(form));
    row->addStretch();
    row->addWidget(label(form.Label4));
    auto* count = field(form.txtRun, "Number of data sets");
    count->setReadOnly(true);
    count->setMinimumWidth(0);
    count->setMaximumWidth(count->fontMetrics().horizontalAdvance("00000"));
    row->addWidget(count);
    row->addSpacing(4 * kGap);
    row->addWidget(label(form.Label11));
    row->addWidget(field(form.txtRange, "Width of the plot, yards"));
    row->addSpacing(4 * kGap);
    QPushButton* run = button(form.Command1);
    run->setToolTip("Run (F5)");
    row->addWidget(run);
    row->addWidget(button(form.Command2));
    return row;
}

QPlainTextEdit* resultTable(const MainForm& form) {
    auto* table = named(new QPlainTextEdit, form.txtResult);
    QFont font("Courier New");
    // Small, for the many columns, but never much smaller than the rest of the form.
    font.setPointSizeF(std::max(8.25, table->font().pointSizeF() * 0.75));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    table->setFont(font);
    table->setLineWrapMode(QPlainTextEdit::NoWrap);
    table->setUndoRedoEnabled(false);
    table->setTabChangesFocus(true);
    table->setAccessibleName("Results");
    QPalette paper = table->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    table->setPalette(paper);
    return table;
}

/// Tab goes through the inputs as the eye does, then to the buttons and the table.
void orderTabs(const MainForm& form, QWidget* panel) {
    QWidget* last = nullptr;
    for (const Control* control : std::initializer_list<const Control*>{&form.optActual,
                                                                        &form.optManual,
                                                                        &form.optLaunch,
                                                                        &form.optStandard,
                                                                        &form.optAuto,
                                                                        &form.optWood,
                                                                        &form.optIron,
                                                                        &form.txtLaunchAngle,
                                                                        &form.txtBallSpin,
                                                                        &form.txtLaunchSpeed,
                                                                        &form.cmbClubNo,
                                                                        &form.txtHeadSpeed,
                                                                        &form.txtSpeedIncrement,
                                                                        &form.chkBatch,
                                                                        &form.txtCor,
                                                                        &form.txtHeadWeight,
                                                                        &form.txtLoftAngle,
                                                                        &form.txtBending,
                                                                        &form.txtAttackAngle,
                                                                        &form.BallOpt1,
                                                                        &form.BallOpt2,
                                                                        &form.BallOpt3,
                                                                        &form.BallOpt4,
                                                                        &form.txtAltitude,
                                                                        &form.txtWind,
                                                                        &form.txtPressure,
                                                                        &form.txtTemperature,
                                                                        &form.txtRelativeHumidity,
                                                                        &form.txtRange,
                                                                        &form.Command1,
                                                                        &form.Command2,
                                                                        &form.txtResult}) {
        auto* widget = panel->findChild<QWidget*>(toQt(control->name()));
        if (last != nullptr)
            QWidget::setTabOrder(last, widget);
        last = widget;
    }
}

} // namespace

MainLayout layOutMainForm(const MainForm& form, QWidget* parent) {
    auto* panel = new QWidget(parent);
    auto* inputs = new QWidget;
    auto* columns = new QHBoxLayout(inputs);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(kGap);
    auto* choices = new QVBoxLayout;
    choices->setSpacing(kGap);
    choices->addWidget(optionFrame(form.Frame1, form.optActual, form.optManual, form.optLaunch,
                                   form.optStandard, form.optAuto));
    choices->addWidget(optionFrame(form.Frame4, form.optWood, form.optIron));
    columns->addLayout(choices);
    columns->addWidget(swingFrame(form), 1);
    columns->addWidget(clubFrame(form), 1);

    auto* ball =
        optionFrame(form.Frame6, form.BallOpt1, form.BallOpt2, form.BallOpt3, form.BallOpt4);
    auto* weather = weatherFrame(form);
    auto* table = resultTable(form);
    auto* below = new QHBoxLayout;
    below->setSpacing(kGap);
    below->addWidget(ball);
    below->addWidget(weather);
    below->addStretch();

    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(kGap, kGap, kGap, kGap);
    grid->setSpacing(kGap);
    grid->addLayout(strip(form), 0, 0, 1, 2);
    grid->addWidget(inputs, 1, 0, 2, 1);
    grid->addWidget(table, 1, 1, Qt::AlignLeft);
    grid->addLayout(below, 2, 1);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    orderTabs(form, panel);
    return {panel, inputs, ball, table, weather};
}

} // namespace parabolt
