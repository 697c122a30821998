#include "qt/measured_window.h"

#include "fitting/measured_words.h"
#include "mainform/form_shot.h"
#include "qt/chart_view.h"
#include "qt/flow_layout.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <array>
#include <utility>

namespace parabolt {
namespace {

constexpr QSize kUsualMeasuredSize{1440, 860};
constexpr auto kNoChart = "The carries of the clubs come here.";

/// The calm air in which carries are normalised, field by field, with the limits of the main form.
struct AirField {
    const char* name;
    const char* caption;
    const char* accessibleName;
    NumberRange range;
    float CalmAir::*member;
};
constexpr std::array<AirField, 4> kAirFields = {{
    {"measuredAltitude", "&Altitude:", "Altitude of the calm air, feet",
     rangeOf(limits::kAltitude, 100, 0, " ft"), &CalmAir::altitude},
    {"measuredTemperature", "Temperatu&re:", "Temperature of the calm air, degrees Fahrenheit",
     rangeOf(limits::kTemperature, 5, 1, " F"), &CalmAir::temperature},
    {"measuredPressure", "&Pressure:", "Pressure of the calm air at sea level, inches of mercury",
     rangeOf(limits::kPressure, 0.1, 2, " in-Hg"), &CalmAir::pressure},
    {"measuredHumidity", "Hu&midity:", "Relative humidity of the calm air, percent",
     rangeOf(limits::kHumidity, 5, 0, " %"), &CalmAir::humidity},
}};

} // namespace

MeasuredWindow::MeasuredWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                               Printer& printer)
    : FittingWindow(logic, fitting, services, printer, "measuredShots", "Measured Shots",
                    "measured.html"),
      columns_(services.preferences),
      comparison_(fitting),
      shots_(fitting, comparison_),
      clubs_(fitting, comparison_),
      source_(textLabel("measuredSource")),
      weather_(new QComboBox),
      normalise_(new QCheckBox("&Normalise carries to calm air")),
      shotsView_(new TableView(shots_, "measuredTable", "Measured shots")),
      clubsView_(new TableView(clubs_, "measuredClubs", "Measured shots by club")),
      chart_(new ChartView("measuredGaps", "Carries of the clubs",
                           [this](PictureBox& canvas) {
                               drawCarries(canvas, carryLines(), {}, whose(), kNoChart);
                           })),
      halves_(new QSplitter(Qt::Vertical)),
      below_(new QSplitter(Qt::Horizontal)),
      summary_(textLabel("measuredSummary")) {
    setAcceptDrops(true);
    summary_->setAccessibleName("Model against device");
    summary_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    statusBar()->setObjectName("measuredStatus");
    buildCommands();
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(head());
    rows->addWidget(choices());
    rows->addWidget(source_);
    rows->addWidget(parts(), 1);
    rows->addWidget(summary_);
    setCentralWidget(centre);

    memory_.restore(*shotsView_, "Columns");
    memory_.restore(*clubsView_, "ClubColumns");
    memory_.restoreSize(*this, kUsualMeasuredSize);
    memory_.restore(*halves_, "Heights");
    memory_.restore(*below_, "Widths");
    shotsView_->setFocus();
}

MeasuredWindow::~MeasuredWindow() {
    hide(); // while its parts are there, which take what is still being typed, and remember
    delete takeCentralWidget(); // its tables read what goes before it otherwise
}

void MeasuredWindow::buildCommands() {
    QMenu* file = menuBar()->addMenu("&File");
    add(file, "measuredImport", "&Import...", "Reads the file of a launch monitor",
        QKeySequence::Open, [this] { importFile(); });
    add(file, "measuredExport", "&Export...",
        "Writes the table of shots as CSV, or the chart as PNG, SVG or PDF", Qt::CTRL | Qt::Key_E,
        [this] { exportTableOrChart(shots_, *chart_, "measured shots.csv"); });
    add(file, "measuredPrint", "&Print...", "Shows clubs and chart as a page, and prints it",
        QKeySequence::Print, [this] { print(); });
    file->addSeparator();
    add(file, "measuredClose", "C&lose", "Closes this window", QKeySequence::Close,
        [this] { close(); });
    QMenu* edit = menuBar()->addMenu("&Edit");
    add(edit, "measuredCopy", "&Copy Table", "Copies the table that was used last",
        QKeySequence::Copy, [this] { copyTableInUse(); });
    add(edit, "measuredCopyChart", "Copy C&hart", "Puts a picture of the chart on the clipboard",
        Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { copyChart(*chart_); });
    edit->addSeparator();
    QAction* strike = add(edit, "measuredStrike", "&Leave Out",
                          "Strikes the marked shots through, or takes them in again",
                          QKeySequence::Delete, [this] { strikeSelected(); });
    strike->setShortcutContext(Qt::WidgetShortcut); // what is marked elsewhere isn't meant
    shotsView_->addAction(strike);
    add(edit, "measuredCheck", "&Tick", "Ticks the marked shots for the data sets", Qt::Key_Space,
        [this] { checkSelected(); })
        ->setShortcutContext(Qt::WidgetShortcut); // the table itself answers to it
    add(edit, "measuredCheckAll", "Tick &All or None", "Ticks all shots, or none",
        Qt::CTRL | Qt::SHIFT | Qt::Key_A, [this] { checkAll(); });
    edit->addSeparator();
    add(edit, "measuredToDataSets", "T&icked Into Data Sets",
        "Runs the ticked shots on the main form, at most 24", Qt::CTRL | Qt::Key_Return,
        [this] { checkedIntoDataSets(); });
    add(edit, "measuredMeansToDataSets", "&Means Into Data Sets",
        "Runs the mean launch of each club on the main form", Qt::CTRL | Qt::SHIFT | Qt::Key_Return,
        [this] { meansIntoDataSets(); });
    QMenu* columns = menuBar()->addMenu("&Columns");
    shotsView_->columnsMenu()->setTitle("Of the &Shots");
    clubsView_->columnsMenu()->setTitle("Of the &Clubs");
    columns->addMenu(shotsView_->columnsMenu());
    columns->addMenu(clubsView_->columnsMenu());
}

/// The commands most wanted, the weather, and where the shots come from.
QWidget* MeasuredWindow::head() {
    auto* panel = new QWidget;
    auto* row = new FlowLayout(panel);
    for (const char* name : {"measuredImport", "measuredToDataSets", "measuredMeansToDataSets",
                             "measuredExport", "measuredPrint"})
        row->addWidget(buttonOf(findChild<QAction*>(name)));
    weather_->setObjectName("measuredWeather");
    weather_->setAccessibleName("Weather in which the shots are flown");
    weather_->setToolTip("Weather in which the shots are flown. The file's counts where it brings "
                         "some; the rest is the main form's.");
    weather_->addItems({"of the main form", "of the file"});
    row->addWidget(labelledGroup({{"&Weather:", weather_}}));
    return panel;
}

QWidget* MeasuredWindow::choices() {
    auto* panel = new QWidget;
    auto* row = new FlowLayout(panel);
    normalise_->setObjectName("measuredNormalise");
    normalise_->setToolTip(toQt(kNormalisedNote));
    row->addWidget(normalise_);
    for (const AirField& field : kAirFields) {
        air_.push_back(numberField(field.name, field.accessibleName, field.range));
        row->addWidget(labelledGroup({{field.caption, air_.back()}}));
        connect(air_.back(), &QDoubleSpinBox::valueChanged, this, &MeasuredWindow::takeAir);
    }
    connect(weather_, &QComboBox::activated, this, [this](int index) {
        fitting_.change([index](MeasuredSession& session) { session.ownAir = index == 1; });
    });
    connect(normalise_, &QCheckBox::clicked, this, [this](bool on) {
        fitting_.change([on](MeasuredSession& session) { session.normalise = on; });
    });
    return panel;
}

QWidget* MeasuredWindow::parts() {
    const int line = fontMetrics().height();
    shotsView_->setMinimumHeight(6 * line);
    clubsView_->setMinimumSize(16 * line, 5 * line);
    chart_->setMinimumSize(16 * line, 8 * line);
    for (TableView* table : {shotsView_, clubsView_})
        table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    shotsView_->installEventFilter(this);
    below_->addWidget(clubsView_);
    below_->addWidget(chart_);
    halves_->addWidget(shotsView_);
    halves_->addWidget(below_);
    halves_->setStretchFactor(0, 3);
    halves_->setStretchFactor(1, 2);
    for (QSplitter* splitter : {halves_, below_})
        splitter->setChildrenCollapsible(false);
    below_->setSizes({1, 1});
    return halves_;
}

void MeasuredWindow::hideEvent(QHideEvent* event) {
    FittingWindow::hideEvent(event);
    background_.cancel();
}

void MeasuredWindow::remember() {
    memory_.remember(*shotsView_, "Columns");
    memory_.remember(*clubsView_, "ClubColumns");
    memory_.rememberSize(*this);
    memory_.remember(*halves_, "Heights");
    memory_.remember(*below_, "Widths");
}

/// Computes what is no longer true.
void MeasuredWindow::look() {
    const bool formRuns = !logic_.form.Command1.enabled();
    const bool changed = comparison_.follow(acceptedShot(logic_.form, logic_.form.clubs));
    if (changed || (!comparison_.isCurrent() && computing_ != comparison_.generation()))
        compute();
    if (changed || std::exchange(formRuns_, formRuns) != formRuns)
        refresh();
}

void MeasuredWindow::compute() {
    computing_ = comparison_.generation();
    background_.begin([this, request = comparison_.request(),
                       generation = computing_](const std::stop_token& stop) {
        auto result = computeComparison(request, stop);
        if (!result)
            return;
        QMetaObject::invokeMethod(
            this,
            [this, generation, result = std::move(*result)]() mutable {
                if (comparison_.accept(std::move(result), generation) && isVisible())
                    refresh();
            },
            Qt::QueuedConnection);
    });
}

/// Shows the session and what is known of its flights.
void MeasuredWindow::refresh() {
    shots_.refresh();
    clubs_.refresh();
    shotsView_->refresh();
    clubsView_->refresh();
    if (otherClubs_ && clubs_.rowCount() > 0) {
        otherClubs_ = false;
        clubsView_->fitTexts();
    }
    chart_->redraw();
    chart_->setAccessibleDescription(toQt(carriesInWords(carryLines(), whose())));
    showChoices();
    showTexts();
}

void MeasuredWindow::showChoices() {
    const MeasuredSession& session = fitting_.session();
    weather_->setCurrentIndex(session.ownAir ? 1 : 0);
    normalise_->setChecked(session.normalise);
    for (std::size_t i = 0; i < kAirFields.size(); ++i) {
        showNumber(*air_[i], double{session.air.*kAirFields[i].member});
        air_[i]->setEnabled(session.normalise);
    }
    for (const char* name : {"measuredExport", "measuredPrint", "measuredCopy", "measuredCopyChart",
                             "measuredStrike", "measuredCheck", "measuredCheckAll"})
        findChild<QAction*>(name)->setEnabled(!session.entries.empty());
    for (const char* name : {"measuredToDataSets", "measuredMeansToDataSets"})
        findChild<QAction*>(name)->setEnabled(!session.entries.empty() && !formRuns_);
}

void MeasuredWindow::showTexts() {
    source_->setText(toQt(sourceInWords(fitting_.session())));
    summary_->setText(toQt(comparisonInWords(fitting_.session(), comparison_)));
}

void MeasuredWindow::takeAir() {
    fitting_.change([this](MeasuredSession& session) {
        for (std::size_t i = 0; i < kAirFields.size(); ++i)
            session.air.*kAirFields[i].member = static_cast<float>(air_[i]->value());
    });
}

std::vector<CarryLine> MeasuredWindow::carryLines() const {
    std::vector<CarryLine> lines;
    for (const ClubStatistics& club : clubs_.clubs())
        lines.push_back({shownClub(club.club),
                         club.modelCarry ? std::optional(club.modelCarry->mean) : std::nullopt,
                         club.deviceCarry});
    return lines;
}

} // namespace parabolt
