#include "qt/measured_window.h"

#include "fitting/measured_words.h"
#include "mainform/form_shot.h"
#include "qt/chart_view.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"

#include <QAbstractEventDispatcher>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <array>

namespace parabolt {
namespace {

constexpr QSize kUsualMeasuredSize{1280, 800};
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
    {"measuredAltitude",
     "&Altitude (ft):",
     "Altitude of the calm air, feet",
     {0, 15000, 100, 0},
     &CalmAir::altitude},
    {"measuredTemperature",
     "Temperatu&re (F):",
     "Temperature of the calm air, degrees Fahrenheit",
     {20, 120, 5, 1},
     &CalmAir::temperature},
    {"measuredPressure",
     "&Pressure (in-Hg):",
     "Pressure of the calm air at sea level, inches of mercury",
     {25, 34, 0.1, 2},
     &CalmAir::pressure},
    {"measuredHumidity",
     "Hu&midity (%):",
     "Relative humidity of the calm air, percent",
     {0, 100, 5, 0},
     &CalmAir::humidity},
}};

} // namespace

MeasuredWindow::MeasuredWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                               Printer& printer)
    : logic_(logic),
      fitting_(fitting),
      messages_(services.messages),
      desktop_(services.desktop),
      printer_(printer),
      localTime_(services.sessions.localTime),
      dialogs_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      columns_(services.preferences),
      memory_(services.preferences, "measuredShots"),
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
    setObjectName("measuredShots");
    setWindowTitle(toQt(kApplicationTitle) + " - Measured Shots");
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    setAcceptDrops(true);
    setLocale(QLocale::c());
    summary_->setAccessibleName("Model against device");
    summary_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    buildCommands();
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(head());
    rows->addWidget(choices());
    rows->addWidget(parts(), 1);
    rows->addWidget(summary_);
    setCentralWidget(centre);

    fitting_.Changed.connect([this] { refresh(); });
    // The form changes in this thread alone: before it sleeps, and when it wakes, a look is enough.
    const auto* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &MeasuredWindow::follow);
    connect(loop, &QAbstractEventDispatcher::awake, this, &MeasuredWindow::follow);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { desktop_.openHelpPage("measured.html"); });
    memory_.restore(*shotsView_, "Columns");
    memory_.restore(*clubsView_, "ClubColumns");
    memory_.restoreSize(*this, kUsualMeasuredSize);
    memory_.restore(*halves_, "Heights");
    memory_.restore(*below_, "Widths");
    shotsView_->setFocus();
}

MeasuredWindow::~MeasuredWindow() {
    if (isVisible())
        remember();
    delete takeCentralWidget(); // its tables read what goes before it otherwise
}

QAction* MeasuredWindow::add(QMenu* menu, const QString& name, const QString& text,
                             const QString& meaning, const QKeySequence& key,
                             void (MeasuredWindow::*run)()) {
    QAction* action = command(menu, name, text, meaning, key);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void MeasuredWindow::buildCommands() {
    using Self = MeasuredWindow;
    QMenu* file = menuBar()->addMenu("&File");
    add(file, "measuredImport", "&Import...", "Reads the file of a launch monitor",
        QKeySequence::Open, &Self::importFile);
    add(file, "measuredExport", "&Export...",
        "Writes the table of shots as CSV, or the chart as PNG, SVG or PDF", Qt::CTRL | Qt::Key_E,
        &Self::exportFile);
    add(file, "measuredPrint", "&Print...", "Shows clubs and chart as a page, and prints it",
        QKeySequence::Print, &Self::print);
    file->addSeparator();
    connect(command(file, "measuredClose", "C&lose", "Closes this window", QKeySequence::Close),
            &QAction::triggered, this, &QWidget::close);
    QMenu* edit = menuBar()->addMenu("&Edit");
    add(edit, "measuredCopy", "&Copy Table", "Copies the table that was used last",
        QKeySequence::Copy, &Self::copyTableInUse);
    add(edit, "measuredCopyChart", "Copy C&hart", "Puts a picture of the chart on the clipboard",
        Qt::CTRL | Qt::SHIFT | Qt::Key_C, &Self::copyChart);
    edit->addSeparator();
    add(edit, "measuredStrike", "&Leave Out",
        "Strikes the marked shots through, or takes them in "
        "again",
        QKeySequence::Delete, &Self::strikeSelected);
    add(edit, "measuredCheck", "&Tick", "Ticks the marked shots for the data sets", Qt::Key_Space,
        &Self::checkSelected)
        ->setShortcutContext(Qt::WidgetShortcut); // the table itself answers to it
    add(edit, "measuredCheckAll", "Tick &All or None", "Ticks all shots, or none",
        Qt::CTRL | Qt::SHIFT | Qt::Key_A, &Self::checkAll);
    edit->addSeparator();
    add(edit, "measuredToDataSets", "&Ticked Into Data Sets",
        "Runs the ticked shots on the main form, at most 24", Qt::CTRL | Qt::Key_Return,
        &Self::checkedIntoDataSets);
    add(edit, "measuredMeansToDataSets", "&Means Into Data Sets",
        "Runs the mean launch of each club on the main form", Qt::CTRL | Qt::SHIFT | Qt::Key_Return,
        &Self::meansIntoDataSets);
    QMenu* columns = menuBar()->addMenu("&Columns");
    shotsView_->columnsMenu()->setTitle("Of the &Shots");
    clubsView_->columnsMenu()->setTitle("Of the &Clubs");
    columns->addMenu(shotsView_->columnsMenu());
    columns->addMenu(clubsView_->columnsMenu());
}

/// The commands most wanted, the weather, and where the shots come from.
QWidget* MeasuredWindow::head() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins({});
    for (const char* name :
         {"measuredImport", "measuredToDataSets", "measuredMeansToDataSets", "measuredPrint"})
        row->addWidget(buttonOf(findChild<QAction*>(name)));
    weather_->setObjectName("measuredWeather");
    weather_->setAccessibleName("Weather in which the shots are flown");
    weather_->setToolTip("Weather in which the shots are flown. The file's counts where it brings "
                         "some; the rest is the main form's.");
    weather_->addItems({"of the main form", "of the file"});
    row->addSpacing(12);
    addLabelled(row, "&Weather:", weather_);
    row->addSpacing(12);
    source_->setWordWrap(false);
    source_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    source_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(source_, 1);
    return panel;
}

QWidget* MeasuredWindow::choices() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins({});
    normalise_->setObjectName("measuredNormalise");
    normalise_->setToolTip(toQt(kNormalisedNote));
    row->addWidget(normalise_);
    for (const AirField& field : kAirFields) {
        air_.push_back(numberField(field.name, field.accessibleName, field.range));
        addLabelled(row, field.caption, air_.back());
        connect(air_.back(), &QDoubleSpinBox::valueChanged, this, &MeasuredWindow::takeAir);
    }
    row->addStretch();
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

void MeasuredWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    fitting_.follow();
    follow();
    refresh();
}

void MeasuredWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    background_.cancel();
    remember();
}

void MeasuredWindow::remember() {
    memory_.remember(*shotsView_, "Columns");
    memory_.remember(*clubsView_, "ClubColumns");
    memory_.rememberSize(*this);
    memory_.remember(*halves_, "Heights");
    memory_.remember(*below_, "Widths");
}

/// Looks at what the form stands for now, and computes what is no longer true.
void MeasuredWindow::follow() {
    if (!isVisible())
        return;
    fitting_.follow();
    const bool changed = comparison_.follow(acceptedShot(logic_.form, logic_.form.clubs));
    if (!changed && (comparison_.isCurrent() || computing_ == comparison_.generation()))
        return;
    computing_ = comparison_.generation();
    background_.begin([this, request = comparison_.request(),
                       generation = computing_](const std::stop_token& stop) {
        auto result = computeComparison(request, stop);
        if (!result)
            return;
        QMetaObject::invokeMethod(
            this,
            [this, generation, result = std::move(*result)]() mutable {
                if (comparison_.accept(std::move(result), generation))
                    refresh();
            },
            Qt::QueuedConnection);
    });
}

/// Shows the session and what is known of its flights.
void MeasuredWindow::refresh() {
    if (!isVisible())
        return;
    shots_.refresh();
    clubs_.refresh();
    shotsView_->refresh();
    clubsView_->refresh();
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
        const QSignalBlocker quiet(air_[i]);
        const double value = double{session.air.*kAirFields[i].member};
        if (air_[i]->value() != value) // leaves alone what is being typed
            air_[i]->setValue(value);
        air_[i]->setEnabled(session.normalise);
    }
    for (const char* name :
         {"measuredExport", "measuredPrint", "measuredCopy", "measuredCopyChart", "measuredStrike",
          "measuredCheckAll", "measuredToDataSets", "measuredMeansToDataSets"})
        findChild<QAction*>(name)->setEnabled(!session.entries.empty());
}

void MeasuredWindow::showTexts() {
    source_->setText(toQt(sourceInWords(fitting_.session())));
    source_->setToolTip(source_->text());
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
        lines.push_back({club.club.empty() ? "(no club)" : club.club,
                         club.modelCarry ? std::optional(club.modelCarry->mean) : std::nullopt,
                         club.deviceCarry});
    return lines;
}

} // namespace parabolt
