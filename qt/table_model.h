#pragma once

#include "tables/table_source.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <functional>

namespace parabolt {

/// A table without widgets as a model of Qt. Rows and columns are those of the source.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit TableModel(TableSource& source, QObject* parent = nullptr);

    /// The source holds something else now.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    TableCell cell(const QModelIndex& index) const;
    /// Whether a cell of a column has nothing to sort by, as words in a column of numbers.
    bool lacksValue(const TableCell& cell, int section) const;

private:
    const TableColumn& column(int section) const;
    QString tipOf(const QModelIndex& index) const;

    TableSource& source_;
    int rows_ = 0; ///< as the views know them
};

/// The rows of such a model in the order of a column's figures, rising or falling; those without
/// come last.
class SortedTable : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit SortedTable(TableModel& model, QObject* parent = nullptr);

    /// Shows only those rows of the source for which this says yes; all, if it is empty.
    void setFilter(std::function<bool(std::size_t)> shown);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    TableModel& model_;
    std::function<bool(std::size_t)> shown_;
};

} // namespace parabolt
