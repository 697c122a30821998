#include "qt/main_layout.h"

#include "mainform/defaults.h"
#include "mainform/validators.h"
#include "numbers/text_number.h"
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

/// A label that names an input, also to those who don't see where it stands.
QLabel* labelOf(const Label& control, QWidget* input) {
    QLabel* name = label(control);
    name->setBuddy(input);
    return name;
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

/// An option, and what choosing it means.
struct Choice {
    const OptionButton& button;
    QString meaning;
};

QRadioButton* option(const Choice& choice) {
    auto* radio = named(new QRadioButton(toQt(choice.button.caption())), choice.button);
    radio->setToolTip(choice.meaning);
    return radio;
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
    void add(const Label& name, QWidget* input) {
        grid_->addWidget(labelOf(name, input), row_, 3 * column_);
        add(input);
    }
    /// An input that carries its name itself.
    void add(QWidget* input) { grid_->addWidget(input, row_++, 3 * column_ + 1); }
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

QGroupBox* optionFrame(const Frame& control, std::initializer_list<Choice> choices) {
    auto* box = frame(control);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(6, 2, 6, 4);
    column->setSpacing(2);
    for (const Choice& choice : choices)
        column->addWidget(option(choice));
    column->addStretch();
    return box;
}

QGroupBox* modeFrame(const MainForm& form) {
    return optionFrame(
        form.Frame1,
        {{form.optActual,
          "From swing, club and the measured launch angle: computes the attack angle"},
         {form.optManual, "From swing and club: computes the launch"},
         {form.optLaunch, "From launch angle, spin and speed: computes the flight alone"},
         {form.optStandard, "From a club of the club tables: computes the launch"},
         {form.optAuto, "Flies all clubs of a type, one after another"}});
}

QGroupBox* typeFrame(const MainForm& form) {
    return optionFrame(form.Frame4, {{form.optWood, "Club numbers are those of the woods"},
                                     {form.optIron, "Club numbers are those of the irons"}});
}

/// What a ball changes in spin and lift.
QString effect(const BallOption& ball) {
    const auto change = [](float value) {
        return (value > 0 ? "+" : "") + toQt(shortestText(value));
    };
    if (ball.Slope1 != 0)
        return "Spin from the club: " + change(ball.Slope1) +
               " rpm for each degree of loft and mph of head speed";
    if (ball.CD1 != 0)
        return "Lift: " + change(ball.CD1) + " on the exponent of the lift law";
    return "Usual spin and lift";
}

QGroupBox* ballFrame(const MainForm& form) {
    auto* box = optionFrame(
        form.Frame6,
        {{form.BallOpt1, {}}, {form.BallOpt2, {}}, {form.BallOpt3, {}}, {form.BallOpt4, {}}});
    for (const BallOption& ball : ballOptions())
        box->findChild<QWidget*>(toQt((form.*ball.button).name()))->setToolTip(effect(ball));
    return box;
}

QGroupBox* swingFrame(const MainForm& form) {
    auto* box = frame(form.Frame2);
    FieldGrid grid(box);
    grid.add(form.Label3, field(form.txtLaunchAngle, "Launch angle, degrees"));
    grid.add(form.Label2, field(form.txtBallSpin, "Ball spin, rpm"));
    grid.add(form.Label7, field(form.txtLaunchSpeed, "Launch speed, mph"));
    auto* clubs = named(new QComboBox, form.cmbClubNo);
    clubs->setAccessibleName("Club number");
    clubs->setToolTip("Number of the club");
    clubs->setFocusPolicy(Qt::StrongFocus); // the wheel alone doesn't bring the focus
    clubs->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid.add(form.Label8, clubs);
    grid.add(form.Label9, field(form.txtHeadSpeed, "Head speed, mph"));
    grid.add(form.Label10,
             field(form.txtSpeedIncrement, "Fall of the head speed from club to club, mph"));
    auto* fillIn = named(new QCheckBox(toQt(form.chkBatch.caption())), form.chkBatch);
    fillIn->setToolTip("Auto takes all values of each club from the club tables");
    grid.add(fillIn);
    grid.end();
    return box;
}

QGroupBox* clubFrame(const MainForm& form) {
    auto* box = frame(form.Frame5);
    FieldGrid grid(box);
    grid.add(form.Label6, field(form.txtCor, "Coefficient of restitution"));
    grid.add(form.Label12, field(form.txtHeadWeight, "Head weight, grams"));
    grid.add(form.Label14, field(form.txtLoftAngle, "Loft angle, degrees"));
    grid.add(form.Label20, field(form.txtBending, "Bend angle of the shaft, degrees"));
    grid.add(form.Label13, field(form.txtAttackAngle, "Attack angle, degrees"));
    grid.end();
    return box;
}

QGroupBox* weatherFrame(const MainForm& form) {
    auto* box = frame(form.Frame7);
    FieldGrid grid(box);
    grid.add(form.Label15, field(form.txtAltitude, "Altitude, feet"));
    grid.add(form.Label16, field(form.txtWind, "Wind, mph, positive against the ball"));
    grid.add(form.Label17, field(form.txtPressure, "Pressure, inches of mercury"));
    grid.nextColumn();
    grid.add(form.Label18, field(form.txtTemperature, "Temperature, degrees Fahrenheit"));
    grid.add(form.Label19, field(form.txtRelativeHumidity, "Relative humidity, percent"));
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
    auto* count = field(form.txtRun, "Number of data sets");
    count->setToolTip(QString("Number of data sets, at most %1").arg(RunBook::kMost));
    count->setReadOnly(true);
    count->setMinimumWidth(0);
    count->setMaximumWidth(count->fontMetrics().horizontalAdvance("00000"));
    row->addWidget(labelOf(form.Label4, count));
    row->addWidget(count);
    row->addSpacing(4 * kGap);
    auto* range = field(form.txtRange, "Width of the plot, yards");
    row->addWidget(labelOf(form.Label11, range));
    row->addWidget(range);
    row->addSpacing(4 * kGap);
    QPushButton* run = button(form.Command1);
    run->setToolTip("Run (F5)");
    row->addWidget(run);
    QPushButton* clear = button(form.Command2);
    clear->setToolTip("Clear plot and table (Alt+C)");
    row->addWidget(clear);
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

/// Adds to what a field's tool tip says the values that it accepts.
void tellLimits(const MainForm& form, const QWidget* panel) {
    for (const FieldRule& rule : fieldRules()) {
        auto* edit = panel->findChild<QWidget*>(toQt((form.*rule.field).name()));
        edit->setToolTip(edit->accessibleName() + ", " + toQt(shortestText(rule.lowest)) + " to " +
                         toQt(shortestText(rule.highest)));
    }
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
    choices->addWidget(modeFrame(form));
    choices->addWidget(typeFrame(form));
    columns->addLayout(choices);
    columns->addWidget(swingFrame(form), 1);
    columns->addWidget(clubFrame(form), 1);

    auto* ball = ballFrame(form);
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
    tellLimits(form, panel);
    return {panel, inputs, ball, table, weather};
}

} // namespace parabolt
