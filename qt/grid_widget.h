#pragma once

#include "controls/grid.h"

#include <QObject>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace parabolt {

/// Ties a grid and the edit box over its current cell to a table widget and a line edit inside
/// that. The grid's fixed row and column are the table's headers, so they stay in place, and its
/// current cell is the table's. Texts, focus and visibility of the edit box belong to the form's
/// binding; here it gets its place and its keys. Must be made after the form's binding, and die
/// before it.
class GridBinding : public QObject {
    Q_OBJECT

public:
    GridBinding(Grid& grid, QTableWidget& table, TextBox& editBox, QLineEdit& edit);
    ~GridBinding() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void showCurrent();
    void showCell(int row, int col);
    void placeEdit();
    bool pasteCells(bool ofEdit);
    bool gridKey(const QKeyEvent& key);
    bool editKey(const QKeyEvent& key);

    Grid& grid_;
    QTableWidget& table_;
    TextBox& editBox_;
    QLineEdit& edit_;
    QLabel& corner_; ///< text of the cell where row and column labels meet
};

} // namespace parabolt
