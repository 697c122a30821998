#include "qt/map_window.h"

#include "mainform/form_shot.h"
#include "maps/map_table.h"
#include "maps/map_words.h"
#include "qt/map_steps_view.h"
#include "qt/map_view.h"
#include "qt/picture_file.h"
#include "qt/text.h"
#include "qt/window_parts.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

namespace parabolt {
namespace {

constexpr QSize kMapStartSize{1180, 760};
constexpr auto kMapWindow = "carryMap";
constexpr auto kDoubleNote = "Wind and altitude count about double in this model.";
constexpr auto kKey = "<p><b>Key</b><br>"
                      "Cross: the best point. Outline around it: less than 1 yard behind.<br>"
                      "Line with dots: what this swing reaches, by degrees of loft.<br>"
                      "Ring: the present setting.<br>"
                      "Discs: the data sets, by number and colour.<br>"
                      "Grey: no value; the text under the map says why.</p>";

QComboBox* comboBox(const QString& name, const QString& accessibleName, const QStringList& items) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->addItems(items);
    return box;
}

} // namespace

MapWindow::MapWindow(frmMain& logic, const FormServices& services)
    : logic_(logic),
      desktop_(services.desktop),
      dialogs_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      kind_(comboBox("mapKind", "Map",
                     {"Launch: spin and launch angle", "Swing: attack angle and loft"})),
      outcome_(comboBox("mapOutcome", "Shown", {})),
      axes_{axisFields("mapAcross"), axisFields("mapUp")},
      view_(new MapView(map_)),
      readout_(textLabel("mapReadout")),
      summary_(textLabel("mapSummary")),
      steps_(new MapStepsView),
      worker_([this](std::shared_ptr<const MapResult> result) {
          QMetaObject::invokeMethod(
              this, [this, result] { accept(result); }, Qt::QueuedConnection);
      }) {
    setObjectName(kMapWindow);
    setWindowTitle(toQt(kApplicationTitle) + " - Carry Map");
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    setLocale(QLocale::c());
    resize(kMapStartSize.boundedTo(screen()->availableSize() * 0.95));
    for (const MapOutcome outcome : mapOutcomes())
        outcome_->addItem(toQt(heading(outcome)));
    readout_->setAccessibleName("Under the cross hair");
    summary_->setAccessibleName("What the map says");

    auto* centre = new QWidget;
    setCentralWidget(centre);
    auto* left = new QVBoxLayout;
    left->addWidget(view_, 1);
    left->addWidget(readout_);
    auto* middle = new QHBoxLayout;
    middle->addLayout(left, 1);
    middle->addWidget(stepsPanel());
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(choices());
    rows->addWidget(summary_);
    rows->addLayout(middle, 1);
    // Room for its longest text, so that the map below doesn't jump.
    summary_->setMinimumHeight(3 * fontMetrics().lineSpacing());
    readout_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    buildMenu();

    connect(kind_, &QComboBox::activated, this, [this](int index) {
        map_.setKind(index == 0 ? MapKind::Launch : MapKind::Swing);
        keepChoices();
        follow();
        showRanges();
        compute();
    });
    connect(outcome_, &QComboBox::activated, this, [this](int index) {
        map_.show(mapOutcomes()[static_cast<std::size_t>(index)]);
        keepChoices();
        view_->redraw();
        showTexts();
    });
    connect(view_, &MapView::crossMoved, this, &MapWindow::showReadout);
    connect(view_, &MapView::taken, this, &MapWindow::takeValues);
    connect(view_, &MapView::runAsked, this, &MapWindow::runShot);
    // The form changes in this thread alone: before it sleeps, and when it wakes, a look is enough.
    const auto* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &MapWindow::follow);
    connect(loop, &QAbstractEventDispatcher::awake, this, &MapWindow::follow);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { desktop_.openHelpPage("map.html"); });
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this, &MapWindow::runShot);
    showRanges();
    showReadout();
    view_->setFocus();
}

MapWindow::~MapWindow() = default;

void MapWindow::buildMenu() {
    QMenu* menu = menuBar()->addMenu("&Map");
    connect(command(menu, "mapSavePicture", "&Save Picture...",
                    "Writes the map as PNG, SVG or PDF, on white", QKeySequence::Save),
            &QAction::triggered, this, &MapWindow::savePicture);
    connect(command(menu, "mapCopyPicture", "&Copy Picture", "Puts it on the clipboard",
                    QKeySequence::Copy),
            &QAction::triggered, this, &MapWindow::copyPicture);
    connect(command(menu, "mapExportTable", "&Export Table...",
                    "Writes a row for each point of the map", Qt::CTRL | Qt::Key_E),
            &QAction::triggered, this, &MapWindow::exportTable);
    menu->addSeparator();
    connect(command(menu, "mapClose", "C&lose", "Closes this window", QKeySequence::Close),
            &QAction::triggered, this, &QWidget::close);
}

MapWindow::AxisFields MapWindow::axisFields(const QString& name) {
    AxisFields fields{new QLabel, new QDoubleSpinBox, new QDoubleSpinBox, new QDoubleSpinBox};
    const std::pair<QDoubleSpinBox*, const char*> boxes[] = {
        {fields.first, "First"}, {fields.last, "Last"}, {fields.step, "Step"}};
    for (const auto& [box, role] : boxes) {
        box->setObjectName(name + role);
        box->setLocale(QLocale::c());
        box->setKeyboardTracking(false);
        connect(box, &QDoubleSpinBox::valueChanged, this, &MapWindow::takeRanges);
    }
    return fields;
}

QWidget* MapWindow::choices() {
    auto* panel = new QWidget;
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins({});
    auto* what = new QHBoxLayout;
    addLabelled(what, "&Map:", kind_);
    what->addSpacing(12);
    addLabelled(what, "Sho&wn:", outcome_);
    what->addStretch();
    rows->addLayout(what);
    auto* ranges = new QHBoxLayout;
    for (const AxisFields& axis : axes_) {
        ranges->addWidget(axis.name);
        ranges->addWidget(axis.first);
        addLabelled(ranges, "to", axis.last);
        addLabelled(ranges, "step", axis.step);
        ranges->addSpacing(16);
    }
    auto* usual = pushButton("mapUsualRanges", "&Usual ranges");
    connect(usual, &QPushButton::clicked, this, [this] {
        map_.setUsualRanges();
        keepChoices();
        showRanges();
        compute();
    });
    ranges->addWidget(usual);
    ranges->addStretch();
    rows->addLayout(ranges);
    return panel;
}

QWidget* MapWindow::stepsPanel() {
    auto* panel = new QWidget;
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins({});
    auto* title = new QLabel("What one step changes in the &carry");
    title->setBuddy(steps_);
    rows->addWidget(title);
    rows->addWidget(steps_);
    for (const char* text : {kDoubleNote, kKey}) {
        auto* note = new QLabel(text);
        note->setWordWrap(true);
        rows->addWidget(note);
    }
    rows->addStretch();
    panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return panel;
}

void MapWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    follow();
    compute();
}

void MapWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    worker_.cancel();
    if (!map_.isCurrent() || !map_.result()->complete)
        started_ = 0;
}

/// Looks at what the form stands for now.
void MapWindow::follow() {
    if (!isVisible())
        return;
    followChoices();
    const MainForm& form = logic_.form;
    if (!map_.follow(acceptedShot(form, form.clubs), form.Runs.records()))
        return;
    showRanges();
    view_->redraw(); // the data sets
    compute();
}

/// A desk that was laid on the form brings the choices of its map.
void MapWindow::followChoices() {
    const auto& windows = logic_.form.windows;
    const auto kept = windows.find(kMapWindow);
    const std::string choices = kept == windows.end() ? std::string() : kept->second.text();
    if (choices == keptChoices_)
        return;
    keptChoices_ = choices;
    map_.choose(readMapChoices(choices));
    kind_->setCurrentIndex(map_.kind() == MapKind::Launch ? 0 : 1);
    const auto outcomes = mapOutcomes();
    outcome_->setCurrentIndex(static_cast<int>(
        std::find(outcomes.begin(), outcomes.end(), map_.shown()) - outcomes.begin()));
    showRanges();
    view_->redraw();
    showTexts();
    compute();
}

void MapWindow::keepChoices() {
    keptChoices_ = composeMapChoices(map_.choices());
    logic_.form.windows[kMapWindow] = keptChoices_;
}

void MapWindow::compute() {
    if (!isVisible() || started_ == map_.generation())
        return;
    started_ = map_.generation();
    worker_.begin(map_.request(), started_);
}

void MapWindow::accept(const std::shared_ptr<const MapResult>& result) {
    if (!map_.accept(result))
        return;
    view_->redraw();
    showTexts();
    showReadout();
}

void MapWindow::showTexts() {
    const std::string summary = map_.summary();
    if (!summary.empty())
        summary_->setText(toQt(summary));
    if (map_.result() != nullptr && !(map_.result()->steps.empty() && !map_.result()->complete))
        steps_->show(map_.result()->steps);
}

void MapWindow::showReadout() {
    const QString text = toQt(map_.readout());
    readout_->setText(text);
    view_->setAccessibleDescription(text);
}

void MapWindow::showRanges() {
    const MapRanges& ranges = map_.ranges();
    const auto showAxis = [](const AxisFields& fields, const MapInput& input, const MapAxis& axis) {
        const int decimals = input.grain < 1 ? 1 : 0;
        const auto name = toQt(std::string(input.name));
        fields.name->setText(name + " (" + toQt(std::string(input.unit)) + ") from");
        fields.name->setBuddy(fields.first);
        const std::tuple<QDoubleSpinBox*, const char*, double, double, double> boxes[] = {
            {fields.first, " from", input.lowest, input.highest, axis.first},
            {fields.last, " to", input.lowest, input.highest, axis.last},
            {fields.step, " step", input.grain, input.highest, axis.step}};
        for (const auto& [box, role, lowest, highest, value] : boxes) {
            const QSignalBlocker quiet(box);
            box->setAccessibleName(name + role);
            if (box->decimals() != decimals)
                box->setDecimals(decimals);
            box->setRange(lowest, highest);
            box->setSingleStep(box == fields.step ? input.grain : axis.step);
            if (box->value() != value) // leaves alone what is being typed
                box->setValue(value);
        }
    };
    showAxis(axes_[0], acrossInput(map_.kind()), ranges.across);
    showAxis(axes_[1], upInput(map_.kind()), ranges.up);
}

void MapWindow::takeRanges() {
    const auto axis = [](const AxisFields& fields) {
        return MapAxis{fields.first->value(), fields.last->value(), fields.step->value()};
    };
    map_.setRanges({axis(axes_[0]), axis(axes_[1])});
    keepChoices();
    showRanges();
    view_->redraw();
    compute();
}

bool MapWindow::takeValues() {
    const auto shot = map_.shotAtCross();
    if (!shot)
        return false;
    return map_.kind() == MapKind::Launch ? logic_.shotEntry.enterLaunch(*shot)
                                          : logic_.shotEntry.enterSwing(*shot);
}

void MapWindow::runShot() {
    if (takeValues())
        logic_.form.Command1.Click();
}

void MapWindow::savePicture() {
    dialogs_.save(DialogPurpose::SaveMapPicture, "carry map.png", [this](std::string_view ending) {
        return pictureFile(view_->onPaper(), ending);
    });
}

void MapWindow::copyPicture() {
    QApplication::clipboard()->setImage(pictureImage(view_->onPaper()));
}

void MapWindow::exportTable() {
    dialogs_.save(DialogPurpose::SaveMapTable, "carry map.csv", [this](std::string_view) {
        // What is being computed still is computed on the spot: no table lacks cells.
        return map_.isCurrent() && map_.result()->complete
                   ? composeMapTable(*map_.result())
                   : composeMapTable(completeMap(map_.request()));
    });
}

} // namespace parabolt
