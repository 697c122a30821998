#pragma once

#include "qt/table_model.h"
#include "tables/table_layout.h"

#include <QTableView>

class QMenu;

namespace parabolt {

/// Puts a part of a table on the clipboard: as text between tabs, as a table of a web page and as
/// comma-separated values, from which a spreadsheet takes cells.
void copyTable(const TableSource& table, const TableExtract& extract);

/// Shows a table without widgets. Its columns can be moved, sorted by a click on their headings
/// (the third click gives back the order of the rows), and chosen in the menu of the headings or in
/// `columnsMenu`, which a window puts where the keys reach it. Ctrl+C copies what is seen. F2 types
/// the name of the row with the cursor, in whichever column that is.
class TableView : public QTableView {
    Q_OBJECT

public:
    /// The source must outlive the view.
    TableView(TableSource& source, const QString& name, const QString& accessibleName,
              QWidget* parent = nullptr);

    /// The source holds something else now. What is selected stays so.
    void refresh() { model_.refresh(); }
    /// Gives columns of texts the room that what stands in them now needs.
    void fitTexts();
    /// Shows only those rows of the source for which this says yes; all, if it is empty.
    void setFilter(std::function<bool(std::size_t)> shown) { sorted_.setFilter(std::move(shown)); }

    /// What stands in its middle while there are no rows.
    void setHint(const QString& hint);

    /// The layout as it was left, and its text for preferences.
    void setLayoutText(std::string_view text);
    std::string layoutText() const;
    /// An action for each column, with a tick where it is shown, and one for the usual layout.
    QMenu* columnsMenu() const { return columnsMenu_; }

    /// Rows of the source: that with the cursor, if any, and all that have a selected cell.
    std::optional<std::size_t> currentRow() const;
    std::vector<std::size_t> selectedRows() const;
    /// What is seen, in the order in which it is.
    TableExtract extract() const;
    void copy() const { copyTable(source_, extract()); }

    /// Takes what is being typed into a cell, as if the cell were left.
    void settle();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QModelIndex nameIn(int row) const;
    void lay(const TableLayout& layout);
    void buildColumnsMenu();
    int usualWidth(int column) const;

    TableSource& source_;
    TableModel model_;
    SortedTable sorted_;
    QMenu* columnsMenu_;
    QString hint_;
};

} // namespace parabolt
