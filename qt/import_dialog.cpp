#include "qt/import_dialog.h"

#include "qt/table_view.h"
#include "qt/text.h"
#include "qt/window_parts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

namespace parabolt {
namespace {

constexpr QSize kPreviewSize{980, 640};
constexpr int kIgnored = -1; ///< as the meaning of a column

QComboBox* quantityBox(std::size_t column, const QString& heading) {
    auto* box = new QComboBox;
    box->setObjectName(QString("importQuantity%1").arg(column));
    box->setAccessibleName("Meaning of the column " + heading);
    box->addItem("(not used)", kIgnored);
    for (const QuantityText& quantity : quantities())
        box->addItem(toQt(quantity.name), static_cast<int>(quantity.quantity));
    return box;
}

} // namespace

ImportDialog::ImportDialog(ImportReview& review, const QString& fileName, const ClubTables& tables,
                           const ClubAnswers& known, Desktop& desktop, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      review_(review),
      tables_(tables),
      known_(known),
      device_(textLabel("importDevice")),
      clubsTitle_(new QLabel("&Which clubs are these? The answer is kept with the shots.")),
      clubsRoom_(new QScrollArea),
      take_(pushButton("importTake", {})) {
    setObjectName("importPreview");
    setWindowTitle("Import " + fileName);
    setLocale(QLocale::c());
    resize(kPreviewSize.boundedTo(screen()->availableSize() * 0.9));
    rows_ = new TableView(review, "importRows", "Rows of the file", this);
    rows_->viewport()->installEventFilter(this);
    device_->setAccessibleName("Device");
    clubsTitle_->setObjectName("importClubsTitle");
    clubsRoom_->setObjectName("importClubs");
    clubsRoom_->setWidgetResizable(true);
    clubsRoom_->setFrameShape(QFrame::NoFrame);

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(device_);
    if (review_.device() == nullptr)
        rows->addWidget(columnsPanel());
    rows->addWidget(rows_, 1);
    rows->addWidget(clubsTitle_);
    rows->addWidget(clubsRoom_);
    auto* foot = new QHBoxLayout;
    auto* cancel = pushButton("importCancel", "&Cancel");
    foot->addStretch();
    foot->addWidget(take_);
    foot->addWidget(cancel);
    rows->addLayout(foot);
    connect(take_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(rows_->model(), &QAbstractItemModel::dataChanged, this, [this] { refresh(); });
    refresh();
    take_->setDefault(true); // for Enter
    take_->setFocus();
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [&desktop] { desktop.openHelpPage("measured.html"); });
}

/// For each column of the file its heading, what it means, its unit, and what stands in it.
QWidget* ImportDialog::columnsPanel() {
    auto* panel = new QWidget;
    auto* lines = new QVBoxLayout(panel);
    lines->setContentsMargins({});
    lines->addWidget(deviceRow());
    auto* grid = new QWidget;
    auto* cells = new QGridLayout(grid);
    cells->setContentsMargins(0, 0, 0, 0);
    const auto titles = review_.columnTitles();
    for (std::size_t i = 0; i < titles.size(); ++i)
        addColumn(*cells, i, toQt(titles[i]));
    cells->setColumnStretch(static_cast<int>(titles.size()), 1);
    showChoice();
    auto* room = new QScrollArea;
    room->setObjectName("importColumns");
    room->setFrameShape(QFrame::NoFrame);
    room->setWidgetResizable(true);
    room->setWidget(grid);
    room->setFixedHeight(grid->sizeHint().height() +
                         room->horizontalScrollBar()->sizeHint().height());
    lines->addWidget(room);
    return panel;
}

/// What the user calls the device, and whether it measures.
QWidget* ImportDialog::deviceRow() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins({});
    name_ = new QLineEdit(toQt(review_.choice().name));
    name_->setObjectName("importName");
    computes_ = new QCheckBox("It c&omputes its carry, at least in part");
    computes_->setObjectName("importComputes");
    computes_->setChecked(review_.choice().computesCarry);
    addLabelled(row, "&Name of the device:", name_);
    row->addWidget(computes_);
    connect(name_, &QLineEdit::textChanged, this, &ImportDialog::nameDevice);
    connect(computes_, &QCheckBox::toggled, this, &ImportDialog::nameDevice);
    return panel;
}

void ImportDialog::addColumn(QGridLayout& cells, std::size_t column, const QString& heading) {
    const ColumnFields fields{quantityBox(column, heading), new QComboBox};
    fields.unit->setObjectName(QString("importUnit%1").arg(column));
    fields.unit->setAccessibleName("Unit of the column " + heading);
    columns_.push_back(fields);
    const int place = static_cast<int>(column);
    int line = 0;
    auto* title = new QLabel(withoutMnemonic(heading));
    title->setTextFormat(Qt::PlainText);
    title->setBuddy(fields.quantity);
    cells.addWidget(title, line++, place);
    cells.addWidget(fields.quantity, line++, place);
    cells.addWidget(fields.unit, line++, place);
    for (const std::string& example : review_.examples(column)) {
        auto* cell = new QLabel(toQt(example));
        cell->setTextFormat(Qt::PlainText);
        cell->setForegroundRole(QPalette::PlaceholderText); // nothing to use
        cells.addWidget(cell, line++, place);
    }
    connect(fields.quantity, &QComboBox::activated, this, [this, column] {
        offerUnits(column);
        chooseColumns();
    });
    connect(fields.unit, &QComboBox::activated, this, &ImportDialog::chooseColumns);
}

/// The choice of the review, in the boxes.
void ImportDialog::showChoice() {
    for (const ChosenColumn& chosen : review_.choice().columns) {
        if (chosen.column >= columns_.size())
            continue;
        const ColumnFields& fields = columns_[chosen.column];
        fields.quantity->setCurrentIndex(
            fields.quantity->findData(static_cast<int>(chosen.quantity)));
        offerUnits(chosen.column);
        fields.unit->setCurrentIndex(
            std::max(0, fields.unit->findData(static_cast<int>(chosen.unit))));
    }
    for (const ColumnFields& fields : columns_)
        fields.unit->setEnabled(fields.unit->count() > 0);
}

/// The units in which a column may be, with the likely one chosen.
void ImportDialog::offerUnits(std::size_t column) {
    const ColumnFields& fields = columns_[column];
    fields.unit->clear();
    const int meaning = fields.quantity->currentData().toInt();
    if (meaning != kIgnored) {
        const QuantityText& text = textOf(static_cast<Quantity>(meaning));
        for (const MeasuredUnit unit : text.units)
            fields.unit->addItem(toQt(nameOf(unit)), static_cast<int>(unit));
        const MeasuredUnit likely = review_.likelyUnit(column, text.quantity);
        fields.unit->setCurrentIndex(std::max(0, fields.unit->findData(static_cast<int>(likely))));
    }
    fields.unit->setEnabled(fields.unit->count() > 0);
}

void ImportDialog::nameDevice() {
    review_.nameDevice(fromQt(name_->text()), computes_->isChecked());
    device_->setText(toQt(review_.summary()));
}

void ImportDialog::chooseColumns() {
    ColumnChoice choice = review_.choice();
    choice.columns.clear();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const int meaning = columns_[i].quantity->currentData().toInt();
        if (meaning == kIgnored)
            continue;
        choice.columns.push_back(
            {i,
             {},
             static_cast<Quantity>(meaning),
             columns_[i].unit->count() == 0
                 ? MeasuredUnit::None
                 : static_cast<MeasuredUnit>(columns_[i].unit->currentData().toInt())});
    }
    review_.choose(std::move(choice));
    rows_->refresh();
    rows_->fitTexts();
    refresh();
}

bool ImportDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == rows_->viewport() && event->type() == QEvent::Resize)
        fitNotes();
    return QDialog::eventFilter(watched, event);
}

/// Gives the notes the room that is left, or, where they need more, all that.
void ImportDialog::fitNotes() {
    QHeaderView& headings = *rows_->horizontalHeader();
    const int notes = headings.count() - 1;
    const int left = rows_->viewport()->width() - headings.length() + headings.sectionSize(notes);
    const QAbstractItemView& view = *rows_;
    headings.resizeSection(notes, std::max(left, view.sizeHintForColumn(notes)));
}

void ImportDialog::refresh() {
    fitNotes();
    device_->setText(toQt(review_.summary()));
    const std::size_t count = review_.preview().count();
    take_->setText(count == 1 ? "&Take 1 Shot" : QString("&Take %1 Shots").arg(count));
    take_->setEnabled(review_.canBeTaken());
    askForClubs();
}

/// A question for each text that tells no club.
void ImportDialog::askForClubs() {
    const auto unknown = review_.unknownClubs(tables_, known_);
    const auto sameTexts = [&] {
        return std::equal(unknown.begin(), unknown.end(), clubs_.begin(), clubs_.end(),
                          [](const auto& text, const auto& field) { return text == field.text; });
    };
    if (clubsRoom_->widget() != nullptr && sameTexts())
        return;
    const ClubAnswers said = answers();
    clubs_.clear();
    auto* panel = new QWidget;
    auto* cells = new QGridLayout(panel);
    cells->setContentsMargins({});
    constexpr int kPerRow = 4;
    for (std::size_t i = 0; i < unknown.size(); ++i) {
        auto* box = new QComboBox;
        box->setObjectName(QString("importClub%1").arg(i));
        box->setAccessibleName("Club that is meant by " + toQt(unknown[i]));
        box->addItem("(no club)");
        for (const ClubId club : clubsOfSet())
            box->addItem(toQt(usualName(club)));
        if (const auto answer = said.find(unknown[i]); answer != said.end())
            box->setCurrentText(toQt(usualName(answer->second)));
        auto* label = new QLabel(withoutMnemonic(toQt(unknown[i])));
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(box);
        const int place = static_cast<int>(i);
        cells->addWidget(label, place / kPerRow, place % kPerRow * 2);
        cells->addWidget(box, place / kPerRow, place % kPerRow * 2 + 1);
        clubs_.push_back({unknown[i], box});
    }
    cells->setColumnStretch(2 * kPerRow, 1);
    clubsRoom_->setWidget(panel);
    clubsRoom_->setFixedHeight(std::min(panel->sizeHint().height(), 6 * fontMetrics().height()));
    clubsTitle_->setBuddy(clubs_.empty() ? nullptr : clubs_.front().club);
    clubsTitle_->setVisible(!clubs_.empty());
    clubsRoom_->setVisible(!clubs_.empty());
}

ClubAnswers ImportDialog::answers() const {
    const auto clubs = clubsOfSet();
    ClubAnswers answers;
    for (const ClubField& field : clubs_)
        if (const int index = field.club->currentIndex(); index > 0)
            answers[field.text] = clubs[static_cast<std::size_t>(index - 1)];
    return answers;
}

} // namespace parabolt
