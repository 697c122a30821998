#include "qt/bag_window.h"

#include "mainform/form_shot.h"
#include "qt/chart_view.h"
#include "qt/fitting_sheet.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"
#include "tables/table_text.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <array>
#include <variant>

namespace parabolt {
namespace {

constexpr QSize kUsualBagSize{1180, 760};
constexpr std::size_t kDayLetters = 10; ///< of "2026-11-23 10:32"
constexpr auto kUnflown = "Fly the bag to see its carries and gaps.";

} // namespace

/// A number that the user chooses.
struct BagWindow::BagField {
    const char* name;
    const char* caption;
    const char* accessibleName;
    NumberRange range;
    std::variant<float BagChoice::*, double BagChoice::*> member;
    bool ofFalling; ///< counts for falling speeds alone
};

std::span<const BagWindow::BagField> BagWindow::bagFields() {
    static constexpr std::array<BagField, 4> kFields = {{
        {"bagFirstSpeed",
         "&first (mph):",
         "Head speed of the first wood and of the first iron, mph",
         {50, 165, 1, 1},
         &BagChoice::firstSpeed,
         true},
        {"bagFall",
         "f&all (mph):",
         "Fall of the head speed from club to club, mph",
         {0, 5, 0.5, 1},
         &BagChoice::fall,
         true},
        {"bagNarrowest",
         "Gaps from (&yd):",
         "Narrowest good gap, yards",
         {0, 100, 1, 1},
         &BagChoice::narrowest,
         false},
        {"bagWidest",
         "&to (yd):",
         "Widest good gap, yards",
         {0, 100, 1, 1},
         &BagChoice::widest,
         false},
    }};
    return kFields;
}

BagWindow::BagWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                     Printer& printer)
    : logic_(logic),
      fitting_(fitting),
      messages_(services.messages),
      desktop_(services.desktop),
      printer_(printer),
      localTime_(services.sessions.localTime),
      dialogs_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      memory_(services.preferences, "bag"),
      bag_(fitting),
      speeds_(new QComboBox),
      table_(new TableView(bag_, "bagTable", "Clubs of the bag")),
      chart_(new ChartView("bagGaps", "Carries of the bag and the gaps between them",
                           [this](PictureBox& canvas) {
                               drawCarries(canvas, carryLines(), bag_.gaps(), whose(), kUnflown);
                           })),
      halves_(new QSplitter(Qt::Horizontal)),
      summary_(textLabel("bagSummary")) {
    setObjectName("bag");
    setWindowTitle(toQt(kApplicationTitle) + " - Bag");
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    setLocale(QLocale::c());
    summary_->setAccessibleName("What the gaps say");
    summary_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    buildCommands();
    const int line = fontMetrics().height();
    table_->setMinimumSize(20 * line, 8 * line);
    table_->installEventFilter(this);
    chart_->setMinimumSize(18 * line, 14 * line);
    halves_->addWidget(table_);
    halves_->addWidget(chart_);
    halves_->setStretchFactor(0, 3);
    halves_->setStretchFactor(1, 2);
    halves_->setChildrenCollapsible(false);
    halves_->setSizes({3, 2});
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(choices());
    rows->addWidget(halves_, 1);
    rows->addWidget(summary_);
    setCentralWidget(centre);

    fitting_.Changed.connect([this] { refresh(); });
    // The form changes in this thread alone: before it sleeps, and when it wakes, a look is enough.
    const auto* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &BagWindow::follow);
    connect(loop, &QAbstractEventDispatcher::awake, this, &BagWindow::follow);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { desktop_.openHelpPage("bag.html"); });
    memory_.restore(*table_, "Columns");
    memory_.restoreSize(*this, kUsualBagSize);
    memory_.restore(*halves_, "Widths");
    table_->setFocus();
}

BagWindow::~BagWindow() {
    if (isVisible())
        remember();
    delete takeCentralWidget(); // its tables read what goes before it otherwise
}

void BagWindow::buildCommands() {
    QMenu* menu = menuBar()->addMenu("&Bag");
    const auto add = [&](const char* name, const char* text, const char* meaning,
                         const QKeySequence& key, auto run) {
        connect(command(menu, name, text, meaning, key), &QAction::triggered, this, run);
    };
    add("bagFlyCommand", "&Fly the Bag",
        "Computes a flight for each club owned, in the weather of the main form", Qt::Key_F5,
        &BagWindow::fly);
    menu->addSeparator();
    add("bagExport", "&Export...", "Writes the table as CSV, or the chart as PNG, SVG or PDF",
        Qt::CTRL | Qt::Key_E, &BagWindow::exportFile);
    add("bagCopy", "&Copy Table", "Puts what the table shows on the clipboard", QKeySequence::Copy,
        [this] { table_->copy(); });
    add("bagCopyChart", "Copy C&hart", "Puts a picture of the chart on the clipboard",
        Qt::CTRL | Qt::SHIFT | Qt::Key_C, &BagWindow::copyChart);
    add("bagPrint", "&Print...", "Shows table and chart as a page, and prints it",
        QKeySequence::Print, &BagWindow::print);
    menu->addSeparator();
    menu->addMenu(table_->columnsMenu());
    menu->addSeparator();
    add("bagClose", "C&lose", "Closes this window", QKeySequence::Close, &QWidget::close);
}

QWidget* BagWindow::choices() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins({});
    QToolButton* button = buttonOf(findChild<QAction*>("bagFlyCommand"));
    button->setObjectName("bagFly");
    row->addWidget(button);
    row->addSpacing(12);
    speeds_->setObjectName("bagSpeeds");
    speeds_->setAccessibleName("Head speeds");
    speeds_->setToolTip("Where the head speeds come from");
    speeds_->addItems({"of the set", "falling from club to club"});
    addLabelled(row, "&Head speeds:", speeds_);
    for (const BagField& field : bagFields()) {
        if (&field == &bagFields()[2])
            row->addSpacing(16);
        fields_.push_back(numberField(field.name, field.accessibleName, field.range));
        addLabelled(row, field.caption, fields_.back());
        connect(fields_.back(), &QDoubleSpinBox::valueChanged, this, &BagWindow::takeChoices);
    }
    row->addStretch();
    connect(speeds_, &QComboBox::activated, this, &BagWindow::takeChoices);
    return panel;
}

void BagWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    fitting_.follow();
    refresh();
}

void BagWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    remember();
}

void BagWindow::remember() {
    memory_.remember(*table_, "Columns");
    memory_.rememberSize(*this);
    memory_.remember(*halves_, "Widths");
}

/// Looks whether what was flown is still what stands on the form and in the bag.
void BagWindow::follow() {
    if (!isVisible())
        return;
    fitting_.follow();
    const MainForm& form = logic_.form;
    const bool current =
        !bag_.isFlown() || bag_.isCurrent(form.clubs, acceptedShot(form, form.clubs));
    if (current != current_) {
        current_ = current;
        refresh();
    }
}

void BagWindow::refresh() {
    if (!isVisible())
        return;
    bag_.refresh();
    table_->refresh();
    chart_->redraw();
    chart_->setAccessibleDescription(toQt(carriesInWords(carryLines(), whose())));
    showChoices();
    summary_->setText(toQt(bag_.summary()) +
                      (current_ ? "" : " The form or the bag has changed since: fly it again."));
}

void BagWindow::showChoices() {
    const BagChoice& bag = fitting_.session().bag;
    speeds_->setCurrentIndex(bag.speeds == HeadSpeeds::OfSet ? 0 : 1);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const BagField& field = bagFields()[i];
        const QSignalBlocker quiet(fields_[i]);
        const double value =
            std::visit([&bag](auto member) { return double{bag.*member}; }, field.member);
        if (fields_[i]->value() != value) // leaves alone what is being typed
            fields_[i]->setValue(value);
        fields_[i]->setEnabled(!field.ofFalling || bag.speeds == HeadSpeeds::Falling);
    }
}

void BagWindow::takeChoices() {
    fitting_.change([this](MeasuredSession& session) {
        BagChoice& bag = session.bag;
        bag.speeds = speeds_->currentIndex() == 0 ? HeadSpeeds::OfSet : HeadSpeeds::Falling;
        for (std::size_t i = 0; i < fields_.size(); ++i)
            std::visit(
                [&](auto member) {
                    bag.*member = static_cast<std::remove_reference_t<decltype(bag.*member)>>(
                        fields_[i]->value());
                },
                bagFields()[i].member);
    });
}

std::vector<CarryLine> BagWindow::carryLines() const {
    std::vector<CarryLine> lines;
    for (const BagFlight& flight : bag_.flights())
        lines.push_back({bag_.nameOf(flight),
                         flight.flight.fault ? std::nullopt : std::optional(flight.carry()),
                         flight.measuredCarry});
    return lines;
}

void BagWindow::fly() {
    const MainForm& form = logic_.form;
    bag_.fly(form.clubs, acceptedShot(form, form.clubs));
    current_ = true;
    refresh();
}

/// Space sets or clears the boxes of all marked clubs.
bool BagWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        ownSelected();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void BagWindow::ownSelected() {
    const auto rows = table_->selectedRows();
    if (rows.empty())
        return;
    fitting_.change([&rows](MeasuredSession& session) {
        const bool owned = !session.bag.clubs[rows.front()].owned;
        for (const std::size_t row : rows)
            session.bag.clubs[row].owned = owned;
    });
}

void BagWindow::exportFile() {
    const auto compose = [this](std::string_view ending) -> std::optional<std::string> {
        return ending == "csv" ? tableAsCsv(bag_, wholeTable(bag_))
                               : pictureFile(chart_->onPaper(), ending);
    };
    dialogs_.save(DialogPurpose::ExportTableOrChart, "bag.csv", compose);
}

void BagWindow::copyChart() {
    QApplication::clipboard()->setImage(pictureImage(chart_->onPaper()));
}

void BagWindow::print() {
    const MeasuredSession& session = fitting_.session();
    SheetContent content;
    content.title = "Bag";
    const std::vector<BagGap> gaps(bag_.gaps().begin(), bag_.gaps().end());
    content.charts = {[lines = carryLines(), gaps, figures = whose()](PictureBox& canvas) {
        drawCarries(canvas, lines, gaps, figures, kUnflown);
    }};
    TableExtract extract = table_->extract();
    std::erase_if(extract.rows, [&](std::size_t row) { return !session.bag.clubs[row].owned; });
    content.table = tableAsCells(bag_, extract);
    content.remark = fromQt(summary_->text());
    showSheet(fitting_, std::move(content), localTime_().substr(0, kDayLetters), printer_,
              messages_, *this);
}

} // namespace parabolt
