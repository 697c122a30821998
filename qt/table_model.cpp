#include "qt/table_model.h"

#include "qt/text.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QTextDocument>

namespace parabolt {
namespace {

constexpr int kSwatch = 12; ///< pixels

/// A square with a rim, which shows on a light and on a dark ground.
QIcon swatchOf(Rgb colour) {
    QPixmap square(kSwatch, kSwatch);
    square.fill(QColor(colour.red, colour.green, colour.blue));
    QPainter painter(&square);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(0, 0, kSwatch - 1, kSwatch - 1);
    return square;
}

} // namespace

TableModel::TableModel(TableSource& source, QObject* parent)
    : QAbstractTableModel(parent),
      source_(source),
      rows_(static_cast<int>(source.rowCount())) {}

void TableModel::refresh() {
    const int rows = static_cast<int>(source_.rowCount());
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (rows_ > 0)
        emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(source_.columns().size());
}

const TableColumn& TableModel::column(int section) const {
    return source_.columns()[static_cast<std::size_t>(section)];
}

TableCell TableModel::cell(const QModelIndex& index) const {
    // Between a change of the source and its refreshing, rows of the model may be no more.
    const auto row = static_cast<std::size_t>(index.row());
    return row < source_.rowCount() ? source_.cell(row, static_cast<std::size_t>(index.column()))
                                    : TableCell();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return toQt(cell(index).text);
    case Qt::ToolTipRole:
        return tipOf(index);
    case Qt::TextAlignmentRole:
        return QVariant(column(index.column()).holds == TableColumn::Holds::Numbers
                            ? Qt::AlignRight | Qt::AlignVCenter
                            : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::DecorationRole:
        if (const auto colour = cell(index).colour)
            return swatchOf(*colour);
        return {};
    case Qt::CheckStateRole:
        if (const auto ticked = cell(index).ticked)
            return *ticked ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::FontRole:
        if (cell(index).look == TableCell::Look::Struck) {
            QFont font; // takes its family and size from the view
            font.setStrikeOut(true);
            return font;
        }
        return {};
    case Qt::ForegroundRole:
        if (cell(index).look != TableCell::Look::Plain)
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    default:
        return {};
    }
}

/// A text, which may be cut off; else the meaning of the column.
QString TableModel::tipOf(const QModelIndex& index) const {
    const TableColumn& section = column(index.column());
    const bool holdsText =
        section.holds == TableColumn::Holds::Texts || section.holds == TableColumn::Holds::Names;
    const QString text = holdsText ? toQt(cell(index).text) : QString();
    if (text.isEmpty())
        return toQt(section.meaning);
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const auto row = static_cast<std::size_t>(index.row());
    const auto section = static_cast<std::size_t>(index.column());
    if (row >= source_.rowCount())
        return false;
    if (role == Qt::CheckStateRole)
        source_.tick(row, section, value.toInt() == Qt::Checked);
    else if (role == Qt::EditRole)
        source_.enter(row, section, fromQt(value.toString()));
    else
        return false;
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    return true;
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (column(index.column()).holds == TableColumn::Holds::Names)
        flags |= Qt::ItemIsEditable;
    if (cell(index).ticked)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole) // the unit below the name keeps the column narrow
        return toQt(column(section).heading).replace(" [", "\n[");
    if (role == Qt::ToolTipRole)
        return toQt(column(section).meaning);
    return {};
}

bool TableModel::lacksValue(const TableCell& cell, int section) const {
    switch (column(section).holds) {
    case TableColumn::Holds::Numbers:
        return !cell.hasNumber();
    case TableColumn::Holds::Ticks:
        return !cell.ticked;
    default:
        return cell.text.empty();
    }
}

SortedTable::SortedTable(TableModel& model, QObject* parent)
    : QSortFilterProxyModel(parent),
      model_(model) {
    setSourceModel(&model);
    setDynamicSortFilter(true);
}

void SortedTable::setFilter(std::function<bool(std::size_t)> shown) {
    shown_ = std::move(shown);
    invalidateFilter();
}

bool SortedTable::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    return !shown_ || shown_(static_cast<std::size_t>(row));
}

bool SortedTable::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const TableCell one = model_.cell(left);
    const TableCell other = model_.cell(right);
    const bool lacks = model_.lacksValue(one, left.column());
    if (lacks == model_.lacksValue(other, right.column()))
        return comesBefore(one, other);
    return lacks == (sortOrder() == Qt::DescendingOrder); // last, either way
}

} // namespace parabolt
