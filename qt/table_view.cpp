#include "qt/table_view.h"

#include "qt/text.h"
#include "tables/table_text.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <set>

namespace parabolt {
namespace {

/// Headings that no style draws bold or cuts off: the arrow of the sorting has room of its own.
class Headings : public QHeaderView {
public:
    using QHeaderView::QHeaderView;

protected:
    QSize sectionSizeFromContents(int section) const override {
        return QHeaderView::sectionSizeFromContents(section) + QSize(fontMetrics().height() / 2, 0);
    }
};

} // namespace

void copyTable(const TableSource& table, const TableExtract& extract) {
    auto* data = new QMimeData;
    data->setText(toQt(tableAsTabs(table, extract)));
    data->setHtml(toQt(tableAsHtml(table, extract)));
    data->setData("text/csv", QByteArray::fromStdString(tableAsCsv(table, extract)));
    QApplication::clipboard()->setMimeData(data);
}

TableView::TableView(TableSource& source, const QString& name, const QString& accessibleName,
                     QWidget* parent)
    : QTableView(parent),
      source_(source),
      model_(source),
      sorted_(model_),
      columnsMenu_(new QMenu("&Columns", this)) {
    setObjectName(name);
    setAccessibleName(accessibleName);
    setModel(&sorted_);
    auto* headings = new Headings(Qt::Horizontal, this);
    headings->setSectionsClickable(true);
    headings->setSectionsMovable(true);
    headings->setSortIndicatorClearable(true);
    headings->setHighlightSections(false);
    setHorizontalHeader(headings);
    setSortingEnabled(true);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollMode(ScrollPerPixel);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    buildColumnsMenu();
    headings->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(headings, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { columnsMenu_->popup(horizontalHeader()->mapToGlobal(place)); });
    lay(usualLayout(source_.columns()));
}

void TableView::buildColumnsMenu() {
    for (std::size_t i = 0; i < source_.columns().size(); ++i) {
        QAction* action = columnsMenu_->addAction(toQt(source_.columns()[i].heading));
        action->setCheckable(true);
        connect(action, &QAction::toggled, this, [this, i](bool shown) {
            // Without a column there would be no heading whose menu brings one back.
            if (shown || horizontalHeader()->hiddenSectionCount() + 1 < model_.columnCount())
                setColumnHidden(static_cast<int>(i), !shown);
        });
    }
    columnsMenu_->addSeparator();
    connect(columnsMenu_->addAction("&Usual Columns"), &QAction::triggered, this,
            [this] { lay(usualLayout(source_.columns())); });
    connect(columnsMenu_, &QMenu::aboutToShow, this, [this] {
        for (int i = 0; i < model_.columnCount(); ++i) {
            QAction* action = columnsMenu_->actions()[i];
            action->setText(toQt(source_.columns()[static_cast<std::size_t>(i)].heading));
            action->setChecked(!isColumnHidden(i));
        }
    });
}

void TableView::setLayoutText(std::string_view text) {
    lay(layoutOf(text, source_.columns()));
}

void TableView::lay(const TableLayout& layout) {
    const auto columns = source_.columns();
    sortByColumn(-1, Qt::AscendingOrder);
    int place = 0;
    for (const TableLayout::Column& column : layout.columns)
        for (int i = 0; i < model_.columnCount(); ++i) {
            if (columns[static_cast<std::size_t>(i)].key != column.key)
                continue;
            horizontalHeader()->moveSection(horizontalHeader()->visualIndex(i), place++);
            setColumnHidden(i, false); // a hidden one has no width
            setColumnWidth(i, column.width > 0 ? column.width : usualWidth(i));
            setColumnHidden(i, !column.shown);
            if (column.key == layout.sortedBy)
                sortByColumn(i, layout.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
        }
}

/// Fits the heading and what stands below it; leaves room for names to come, but not for any
/// length.
int TableView::usualWidth(int column) const {
    const int letter = fontMetrics().averageCharWidth();
    const int heading = horizontalHeader()->sectionSizeHint(column);
    const int cells = std::max(sizeHintForColumn(column), heading);
    if (source_.columns()[static_cast<std::size_t>(column)].holds != TableColumn::Holds::Names)
        return cells;
    return std::max(heading, std::clamp(cells, 16 * letter, 32 * letter));
}

void TableView::fitTexts() {
    for (int i = 0; i < model_.columnCount(); ++i)
        if (source_.columns()[static_cast<std::size_t>(i)].holds == TableColumn::Holds::Texts &&
            !isColumnHidden(i))
            setColumnWidth(i, usualWidth(i));
}

std::string TableView::layoutText() const {
    const QHeaderView& headings = *horizontalHeader();
    TableLayout layout;
    for (int place = 0; place < model_.columnCount(); ++place) {
        const int i = headings.logicalIndex(place);
        const std::string& key = source_.columns()[static_cast<std::size_t>(i)].key;
        const bool shown = !headings.isSectionHidden(i);
        layout.columns.push_back({key, shown ? headings.sectionSize(i) : 0, shown});
        if (i == sorted_.sortColumn()) {
            layout.sortedBy = key;
            layout.descending = sorted_.sortOrder() == Qt::DescendingOrder;
        }
    }
    return parabolt::layoutText(layout);
}

std::optional<std::size_t> TableView::currentRow() const {
    const QModelIndex at = sorted_.mapToSource(currentIndex());
    return at.isValid() ? std::optional(static_cast<std::size_t>(at.row())) : std::nullopt;
}

std::vector<std::size_t> TableView::selectedRows() const {
    std::set<std::size_t> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.insert(static_cast<std::size_t>(sorted_.mapToSource(index).row()));
    return {rows.begin(), rows.end()};
}

TableExtract TableView::extract() const {
    TableExtract extract;
    for (int row = 0; row < sorted_.rowCount(); ++row)
        extract.rows.push_back(
            static_cast<std::size_t>(sorted_.mapToSource(sorted_.index(row, 0)).row()));
    for (int place = 0; place < model_.columnCount(); ++place) {
        const int i = horizontalHeader()->logicalIndex(place);
        const auto column = static_cast<std::size_t>(i);
        if (!isColumnHidden(i) && source_.columns()[column].holds != TableColumn::Holds::Ticks)
            extract.columns.push_back(column);
    }
    return extract;
}

void TableView::setHint(const QString& hint) {
    hint_ = hint;
    setAccessibleDescription(sorted_.rowCount() == 0 ? hint : QString());
    viewport()->update();
}

void TableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (sorted_.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

void TableView::keyPressEvent(QKeyEvent* event) {
    const bool names = event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier;
    if (const QModelIndex name = nameIn(currentIndex().row()); names && name.isValid()) {
        setCurrentIndex(name);
        edit(name);
    } else if (event->matches(QKeySequence::Copy)) {
        copy(); // by itself it would copy one cell
    } else {
        QTableView::keyPressEvent(event);
    }
}

void TableView::focusInEvent(QFocusEvent* event) {
    if (!currentIndex().isValid()) // by itself it would begin in the first column
        selectionModel()->setCurrentIndex(nameIn(0), QItemSelectionModel::NoUpdate);
    QTableView::focusInEvent(event);
}

/// The cell of a row in which its name is typed, if the table shows one.
QModelIndex TableView::nameIn(int row) const {
    const auto columns = source_.columns();
    if ((editTriggers() & EditKeyPressed) != 0)
        for (int i = 0; i < model_.columnCount(); ++i)
            if (columns[static_cast<std::size_t>(i)].holds == TableColumn::Holds::Names &&
                !isColumnHidden(i))
                return sorted_.index(row, i);
    return {};
}

void TableView::settle() {
    if (state() != EditingState)
        return;
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

} // namespace parabolt
