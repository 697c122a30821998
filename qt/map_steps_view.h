#pragma once

#include "maps/map_search.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace parabolt {

/// What one step of each input does to the carry, as a model: a row for each input.
class MapStepsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Input, Less, More, Bar, kColumns };
    enum Role { LessGain = Qt::UserRole, MoreGain, Greatest }; ///< of the column `Bar`, yards

    using QAbstractTableModel::QAbstractTableModel;
    void show(std::vector<StepEffect> effects);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant textOf(const StepEffect& effect, int column) const;

    std::vector<StepEffect> effects_;
};

/// The table of them, with a bar for each input.
class MapStepsView : public QTableView {
    Q_OBJECT

public:
    explicit MapStepsView(QWidget* parent = nullptr);

    void show(const std::vector<StepEffect>& effects);
    QSize sizeHint() const override;
    using QWidget::show;

private:
    MapStepsModel model_;
};

} // namespace parabolt
