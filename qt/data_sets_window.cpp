#include "qt/data_sets_window.h"

#include "qt/chart_view.h"
#include "qt/flow_layout.h"
#include "qt/sheet_dialog.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"
#include "sets/data_set_words.h"
#include "sets/landing_chart.h"
#include "sets/path_chart.h"
#include "tables/table_text.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>

namespace parabolt {
namespace {

constexpr QSize kUsualSize{1180, 720};
constexpr int kBaseLetters = 24; ///< of the list of bases
constexpr std::string_view kWindow = "dataSets";

} // namespace

DataSetsWindow::DataSetsWindow(frmMain& logic, const FormServices& services, Printer& printer)
    : logic_(logic),
      book_(logic.form.Runs),
      printer_(printer),
      messages_(services.messages),
      memory_(services.preferences, kWindow),
      desktop_(services.desktop),
      localTime_(services.sessions.localTime),
      dialogs_(services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder),
      sets_(book_),
      base_(new QComboBox),
      count_(new QLabel),
      table_(new TableView(sets_, "dataSetsTable", "Data sets")),
      landing_(new ChartView(
          "dataSetsLanding", "Landings of the ticked data sets",
          [this](PictureBox& canvas) { drawLandings(canvas, book_, book_.ticked()); })),
      halves_(new QSplitter(Qt::Vertical)) {
    setObjectName(toQt(kWindow));
    setWindowTitle(toQt(kApplicationTitle) + " - Data Sets");
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    setLocale(QLocale::c());
    base_->setObjectName("dataSetsBase");
    base_->setAccessibleName("Base set");
    base_->setToolTip("The set with which the others are compared");
    base_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    base_->setMinimumContentsLength(kBaseLetters);
    table_->setMinimumHeight(6 * fontMetrics().height());
    table_->installEventFilter(this);
    sets_.onTicks = [this] { logic_.plot.redraw(); };
    buildCommands();

    auto* choices = new QWidget;
    auto* row = new FlowLayout(choices);
    for (QAction* action : {all_, onlyTicked_, take_, print_})
        row->addWidget(buttonOf(action));
    row->addWidget(labelledGroup({{"&Base:", base_}}));
    row->addWidget(count_);
    halves_->addWidget(table_);
    auto* closeUp = new QScrollArea;
    closeUp->setWidgetResizable(true);
    closeUp->setWidget(landing_);
    closeUp->setMinimumHeight(8 * fontMetrics().height());
    halves_->addWidget(closeUp);
    halves_->setStretchFactor(0, 3);
    halves_->setStretchFactor(1, 2);
    halves_->setChildrenCollapsible(false);
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(choices);
    rows->addWidget(halves_, 1);
    setCentralWidget(centre);

    connect(base_, &QComboBox::activated, this, [this](int index) {
        book_.setBase(index + 1);
        follow();
    });
    connect(table_->model(), &QAbstractItemModel::dataChanged, this, &DataSetsWindow::follow);
    // The form changes in this thread alone: before it sleeps, and when it wakes, a look is enough.
    const auto* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &DataSetsWindow::follow);
    connect(loop, &QAbstractEventDispatcher::awake, this, &DataSetsWindow::follow);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { desktop_.openHelpPage("data_sets.html"); });
    restore();
    showState();
    table_->setFocus();
}

DataSetsWindow::~DataSetsWindow() {
    hide();                     // while its parts are there, which are to be remembered
    delete takeCentralWidget(); // before what it shows
}

void DataSetsWindow::buildCommands() {
    QMenu* menu = menuBar()->addMenu("&Data Sets");
    menu->setToolTipsVisible(true);
    all_ = command(menu, "dataSetsAll", "&All", "Ticks all data sets and shows them",
                   Qt::CTRL | Qt::SHIFT | Qt::Key_A);
    onlyTicked_ =
        command(menu, "dataSetsOnlyTicked", "&Only Ticked",
                "Shows the ticked data sets alone, here as in the plot", Qt::CTRL | Qt::Key_T);
    onlyTicked_->setCheckable(true);
    take_ = command(menu, "dataSetsTake", "&Take into Fields",
                    "Brings club, ball, weather and launch or swing of the marked set back into "
                    "the fields, while no study or batch runs",
                    Qt::CTRL | Qt::Key_Return);
    print_ = command(menu, "dataSetsPrint", "&Print...",
                     "Shows the ticked data sets as a page, and prints it", QKeySequence::Print);
    connect(all_, &QAction::triggered, this, [this] {
        onlyTicked_->setChecked(false);
        sets_.tickAll();
        follow();
    });
    connect(onlyTicked_, &QAction::toggled, this, &DataSetsWindow::showOnlyTicked);
    connect(take_, &QAction::triggered, this, &DataSetsWindow::takeIntoFields);
    connect(print_, &QAction::triggered, this, &DataSetsWindow::print);
    menu->addSeparator();
    connect(command(menu, "dataSetsCopy", "&Copy Table",
                    "Puts what the table shows on the clipboard", QKeySequence::Copy),
            &QAction::triggered, this, [this] {
                table_->settle();
                table_->copy();
            });
    connect(command(menu, "dataSetsCopyLanding", "Copy C&lose-up",
                    "Puts a picture of the landings on the clipboard"),
            &QAction::triggered, this, [this] {
                table_->settle();
                QApplication::clipboard()->setImage(pictureImage(landing_->onPaper()));
            });
    connect(command(menu, "dataSetsExport", "&Export Table...",
                    "Writes what the table shows as "
                    "comma-separated values",
                    Qt::CTRL | Qt::Key_E),
            &QAction::triggered, this, &DataSetsWindow::exportTable);
    menu->addSeparator();
    menu->addMenu(table_->columnsMenu());
    menu->addSeparator();
    connect(command(menu, "dataSetsClose", "Clo&se", "Closes this window", QKeySequence::Close),
            &QAction::triggered, this, &QWidget::close);
}

void DataSetsWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    showState();
}

void DataSetsWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    remember();
}

/// Space ticks, or takes the ticks from, all that is marked.
bool DataSetsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        tickSelected();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void DataSetsWindow::tickSelected() {
    const auto rows = table_->selectedRows();
    if (rows.empty())
        return;
    sets_.tickRows(rows, !book_.tag(static_cast<int>(rows.front()) + 1).ticked);
    follow();
}

/// Looks at what the form holds now.
void DataSetsWindow::follow() {
    if (!isVisible())
        return;
    take_->setEnabled(book_.count() > 0 && logic_.form.Command1.enabled());
    if (book_.revision() != shownRevision_)
        showState();
}

void DataSetsWindow::showState() {
    shownRevision_ = book_.revision();
    table_->refresh();
    landing_->setMinimumHeight(static_cast<int>((book_.ticked().size() + 5) *
                                                static_cast<unsigned>(fontMetrics().height())));
    landing_->redraw();
    showBases();
    const auto ticked = book_.ticked();
    count_->setText(QString("%1 of %2 ticked").arg(ticked.size()).arg(book_.count()));
    all_->setEnabled(book_.count() > 0);
    table_->setHint(book_.count() == 0
                        ? "There are no data sets yet. Run a shot in the main window."
                        : "No data set is ticked. \"All\" ticks them.");
    print_->setEnabled(!ticked.empty());
    QStringList words;
    for (const int number : ticked)
        words << toQt(wordsOf(book_, number));
    landing_->setAccessibleDescription(words.join(". "));
}

void DataSetsWindow::showBases() {
    base_->clear();
    for (int number = 1; number <= book_.count(); ++number)
        base_->addItem(toQt(dataSetName(book_, number)));
    base_->setCurrentIndex(book_.count() > 0 ? book_.base() - 1 : -1);
    base_->setEnabled(book_.count() > 0);
    base_->view()->setMinimumWidth(base_->view()->sizeHintForColumn(0) + fontMetrics().height());
}

void DataSetsWindow::showOnlyTicked(bool only) {
    table_->setFilter(
        only ? [this](std::size_t row) { return book_.tag(static_cast<int>(row) + 1).ticked; }
             : std::function<bool(std::size_t)>());
}

void DataSetsWindow::takeIntoFields() {
    if (const auto row = table_->currentRow())
        logic_.shotEntry.enterShot(shotOf(book_, static_cast<int>(*row) + 1));
    else
        messages_.show("Mark the data set first that is to be taken.");
}

void DataSetsWindow::exportTable() {
    table_->settle();
    dialogs_.save(DialogPurpose::ExportTable, "data sets.csv",
                  [this](std::string_view) { return tableAsCsv(sets_, table_->extract()); });
}

void DataSetsWindow::print() {
    table_->settle();
    SharedText& kept = logic_.form.windows[std::string(kWindow)];
    SheetContent content;
    content.title = "Comparison of Data Sets";
    content.fields = fieldsOf(kept.text());
    content.charts = {[this](PictureBox& canvas) { drawPaths(canvas, book_, book_.ticked()); },
                      [this](PictureBox& canvas) { drawLandings(canvas, book_, book_.ticked()); }};
    content.table = tableAsCells(sets_, sets_.ticked());
    content.remark = "Base: " + dataSetName(book_, book_.base()) +
                     ". In this model wind and altitude count about double.";
    SheetDialog dialog(std::move(content), localTime_(), printer_, messages_, this);
    dialog.exec();
    activateWindow();
    kept = fieldsText(dialog.fields());
}

/// As it was left.
void DataSetsWindow::restore() {
    memory_.restore(*table_, "Columns");
    memory_.restoreSize(*this, kUsualSize);
    memory_.restore(*halves_, "Heights");
    memory_.restore(*onlyTicked_, "OnlyTicked");
}

void DataSetsWindow::remember() {
    memory_.remember(*table_, "Columns");
    memory_.rememberSize(*this);
    memory_.remember(*halves_, "Heights");
    memory_.remember(*onlyTicked_, "OnlyTicked");
}

} // namespace parabolt
