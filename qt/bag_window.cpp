#include "qt/bag_window.h"

#include "mainform/form_shot.h"
#include "qt/chart_view.h"
#include "qt/flow_layout.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"
#include "tables/table_text.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QSplitter>
#include <QToolButton>
#include <array>
#include <variant>

namespace parabolt {
namespace {

constexpr QSize kUsualBagSize{1440, 800};
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
        {"bagFirstSpeed", "&first",
         "Head speed of wood 1 and of iron 1 of the set, owned or not, mph",
         rangeOf(limits::kHeadSpeed, 1, 1, " mph"), &BagChoice::firstSpeed, true},
        {"bagFall", "f&all", "Fall of the head speed from each club of the set to the next, mph",
         rangeOf(limits::kBagFall, 0.5, 1, " mph"), &BagChoice::fall, true},
        {"bagNarrowest", "&Gaps from", "Narrowest good gap, yards",
         rangeOf(limits::kBagGap, 1, 1, " yd"), &BagChoice::narrowest, false},
        {"bagWidest", "&to", "Widest good gap, yards", rangeOf(limits::kBagGap, 1, 1, " yd"),
         &BagChoice::widest, false},
    }};
    return kFields;
}

BagWindow::BagWindow(frmMain& logic, Fitting& fitting, const FormServices& services,
                     Printer& printer)
    : FittingWindow(logic, fitting, services, printer, "bag", "Bag", "bag.html"),
      bag_(fitting, logic.form.clubs),
      speeds_(new QComboBox),
      table_(new TableView(bag_, "bagTable", "Clubs of the bag")),
      chart_(new ChartView("bagGaps", "Carries of the bag and the gaps between them",
                           [this](PictureBox& canvas) {
                               drawCarries(canvas, bag_.carryLines(), bag_.gaps(), whose(),
                                           kUnflown);
                           })),
      halves_(new QSplitter(Qt::Horizontal)),
      summary_(textLabel("bagSummary")) {
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
    halves_->setSizes({600, 400});
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->addWidget(choices());
    rows->addWidget(halves_, 1);
    rows->addWidget(summary_);
    setCentralWidget(centre);

    memory_.restore(*table_, "Columns");
    memory_.restoreSize(*this, kUsualBagSize);
    memory_.restore(*halves_, "Widths");
    table_->setFocus();
}

BagWindow::~BagWindow() {
    hide(); // while its parts are there, which take what is still being typed, and remember
    delete takeCentralWidget(); // its tables read what goes before it otherwise
}

void BagWindow::buildCommands() {
    QMenu* menu = menuBar()->addMenu("&Bag");
    add(menu, "bagFlyCommand", "&Fly the Bag",
        "Computes a flight for each club owned, in the weather of the main form", Qt::Key_F5,
        [this] { fly(); });
    menu->addSeparator();
    add(menu, "bagExport", "&Export...", "Writes the table as CSV, or the chart as PNG, SVG or PDF",
        Qt::CTRL | Qt::Key_E, [this] { exportTableOrChart(bag_, *chart_, "bag.csv"); });
    add(menu, "bagCopy", "&Copy Table", "Puts what the table shows on the clipboard",
        QKeySequence::Copy, [this] { table_->copy(); });
    add(menu, "bagCopyChart", "Copy C&hart", "Puts a picture of the chart on the clipboard",
        Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { copyChart(*chart_); });
    add(menu, "bagPrint", "&Print...", "Shows table and chart as a page, and prints it",
        QKeySequence::Print, [this] { print(); });
    menu->addSeparator();
    menu->addMenu(table_->columnsMenu());
    menu->addSeparator();
    add(menu, "bagClose", "C&lose", "Closes this window", QKeySequence::Close, [this] { close(); });
}

QWidget* BagWindow::choices() {
    auto* panel = new QWidget;
    auto* row = new FlowLayout(panel);
    QToolButton* button = buttonOf(findChild<QAction*>("bagFlyCommand"));
    button->setObjectName("bagFly");
    row->addWidget(button);
    for (const char* name : {"bagExport", "bagPrint"})
        row->addWidget(buttonOf(findChild<QAction*>(name)));
    speeds_->setObjectName("bagSpeeds");
    speeds_->setAccessibleName("Head speeds");
    speeds_->setToolTip("Where the head speeds come from");
    speeds_->addItems({"of the set", "falling from club to club"});
    for (const BagField& field : bagFields()) {
        fields_.push_back(numberField(field.name, field.accessibleName, field.range));
        connect(fields_.back(), &QDoubleSpinBox::valueChanged, this, &BagWindow::takeChoices);
    }
    const auto captioned = [this](std::size_t field) {
        return std::pair<QString, QWidget*>(bagFields()[field].caption, fields_[field]);
    };
    row->addWidget(labelledGroup({{"&Head speeds:", speeds_}, captioned(0), captioned(1)}));
    row->addWidget(labelledGroup({captioned(2), captioned(3)}));
    connect(speeds_, &QComboBox::activated, this, &BagWindow::takeChoices);
    return panel;
}

void BagWindow::remember() {
    memory_.remember(*table_, "Columns");
    memory_.rememberSize(*this);
    memory_.remember(*halves_, "Widths");
}

/// Looks whether what was flown is still what stands on the form and in the bag.
void BagWindow::look() {
    const bool current =
        !bag_.isFlown() || bag_.isCurrent(acceptedShot(logic_.form, logic_.form.clubs));
    if (current != current_) {
        current_ = current;
        refresh();
    }
}

void BagWindow::refresh() {
    bag_.refresh();
    table_->refresh();
    chart_->redraw();
    chart_->setAccessibleDescription(toQt(carriesInWords(bag_.carryLines(), whose())));
    showChoices();
    summary_->setText(toQt(bag_.summary()) +
                      (current_ ? "" : " The form or the bag has changed since: fly it again."));
}

void BagWindow::showChoices() {
    const BagChoice& bag = fitting_.session().bag;
    speeds_->setCurrentIndex(bag.speeds == HeadSpeeds::OfSet ? 0 : 1);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const BagField& field = bagFields()[i];
        showNumber(*fields_[i],
                   std::visit([&bag](auto member) { return double{bag.*member}; }, field.member));
        fields_[i]->setEnabled(!field.ofFalling || bag.speeds == HeadSpeeds::Falling);
    }
}

void BagWindow::takeChoices() {
    fitting_.change([this](MeasuredSession& session) {
        BagChoice& bag = session.bag;
        const double widest = bag.widest;
        bag.speeds = speeds_->currentIndex() == 0 ? HeadSpeeds::OfSet : HeadSpeeds::Falling;
        for (std::size_t i = 0; i < fields_.size(); ++i)
            std::visit(
                [&](auto member) {
                    bag.*member = static_cast<std::remove_reference_t<decltype(bag.*member)>>(
                        fields_[i]->value());
                },
                bagFields()[i].member);
        // A limit that passes the other one takes it along.
        if (bag.narrowest > bag.widest)
            (bag.widest == widest ? bag.widest : bag.narrowest) =
                bag.widest == widest ? bag.narrowest : bag.widest;
    });
}

void BagWindow::fly() {
    bag_.fly(acceptedShot(logic_.form, logic_.form.clubs));
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

void BagWindow::print() {
    const MeasuredSession& session = fitting_.session();
    SheetContent content;
    content.title = "Bag";
    const std::vector<BagGap> gaps(bag_.gaps().begin(), bag_.gaps().end());
    content.charts = {[lines = bag_.carryLines(), gaps, figures = whose()](PictureBox& canvas) {
        drawCarries(canvas, lines, gaps, figures, kUnflown);
    }};
    TableExtract extract = table_->extract();
    std::erase_if(extract.rows, [&](std::size_t row) { return !session.bag.clubs[row].owned; });
    content.table = tableAsCells(bag_, extract);
    content.remark = fromQt(summary_->text());
    printSheet(std::move(content));
}

} // namespace parabolt
