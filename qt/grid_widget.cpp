#include "qt/grid_widget.h"

#include "qt/text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <algorithm>

namespace parabolt {
namespace {

constexpr int kCellMargin = 6; ///< pixels on each side of a cell's text
constexpr int kRowSpace = 8;   ///< pixels by which a row is higher than its text

/// Leaves the current cell in its own colour, which is its mark.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
    }
};

/// The code under which handlers know a key; 0 if none asks for it.
int keyCode(int key) {
    switch (key) {
    case Qt::Key_Backspace:
        return keys::kBackspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keys::kEnter;
    case Qt::Key_Escape:
        return keys::kEscape;
    case Qt::Key_Left:
        return keys::kLeft;
    case Qt::Key_Up:
        return keys::kUp;
    case Qt::Key_Right:
        return keys::kRight;
    case Qt::Key_Down:
        return keys::kDown;
    case Qt::Key_F2:
        return keys::kF2;
    default:
        return 0;
    }
}

bool isCommand(const QKeyEvent& key) {
    const auto held = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // The key that reaches third characters counts as Control and Alt together on some systems.
    return held != 0 && held != (Qt::ControlModifier | Qt::AltModifier);
}

/// The character that a key sends; neither code nor text if it sends none.
KeyStroke strokeOf(const QKeyEvent& key) {
    const int code = keyCode(key.key());
    if (code == keys::kBackspace || code == keys::kEnter || code == keys::kEscape)
        return {code, {}};
    const QString text = key.text();
    if (!text.isEmpty() && (text.at(0).isPrint() || text.at(0).isSurrogate()))
        return {0, fromQt(text)};
    return {};
}

bool isCharacter(const KeyStroke& stroke) {
    return stroke.code != 0 || !stroke.text.empty();
}

} // namespace

GridBinding::GridBinding(Grid& grid, QTableWidget& table, TextBox& editBox, QLineEdit& edit)
    : grid_(grid),
      table_(table),
      editBox_(editBox),
      edit_(edit),
      corner_(*new QLabel(&table)) {
    layOut();
    grid_.onCellChange = [this](int row, int col) { showCell(row, col); };
    grid_.onViewChange = [this] { showCurrent(); };
    showCurrent();

    table_.installEventFilter(this);
    edit_.installEventFilter(this);
    connect(&table_, &QTableWidget::currentCellChanged, this, [this](int row, int col) {
        if (row >= 0 && col >= 0)
            grid_.moveTo(row + Grid::kFixed, col + Grid::kFixed);
    });
    const auto doubleClick = [this](int row) {
        grid_.setMouseRow(row);
        grid_.DblClick();
    };
    connect(&table_, &QTableWidget::cellDoubleClicked, this,
            [doubleClick](int row) { doubleClick(row + Grid::kFixed); });
    connect(table_.verticalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [doubleClick](int row) { doubleClick(row + Grid::kFixed); });
    connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this, [this] { placeEdit(); });
}

GridBinding::~GridBinding() {
    grid_.onCellChange = nullptr;
    grid_.onViewChange = nullptr;
}

void GridBinding::layOut() {
    table_.setRowCount(grid_.rows() - Grid::kFixed);
    table_.setColumnCount(grid_.cols() - Grid::kFixed);
    table_.setSelectionMode(QAbstractItemView::NoSelection);
    table_.setItemDelegate(new CellDelegate(&table_));
    table_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_.setTabKeyNavigation(false);
    table_.setWordWrap(false);
    table_.setCornerButtonEnabled(false);
    for (int row = 0; row < grid_.rows(); ++row)
        for (int col = 0; col < grid_.cols(); ++col)
            showCell(row, col);

    const QFontMetrics metrics = table_.fontMetrics();
    int least = 0;
    for (int col = Grid::kFixed; col < grid_.cols(); ++col)
        least = std::max(least, metrics.horizontalAdvance(toQt(grid_.leastWidthText(col))));
    QHeaderView& headings = *table_.horizontalHeader();
    headings.setMinimumSectionSize(least + 2 * kCellMargin);
    headings.setSectionResizeMode(QHeaderView::Stretch);
    headings.setSectionsClickable(false);
    headings.setHighlightSections(false);

    int labels = metrics.horizontalAdvance(toQt(grid_.leastWidthText(0)));
    for (int row = 0; row < grid_.rows(); ++row)
        labels = std::max(labels, metrics.horizontalAdvance(toQt(grid_.text(row, 0))));
    QHeaderView& rows = *table_.verticalHeader();
    rows.setFixedWidth(labels + 3 * kCellMargin);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(metrics.height() + kRowSpace);
    rows.setSectionsClickable(false);
    rows.setHighlightSections(false);
    rows.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    // The table has no text of its own where its headers meet.
    const int frame = table_.frameWidth();
    const int height = headings.sizeHint().height();
    const int margin = table_.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &rows);
    corner_.setGeometry(frame + margin, frame, rows.width() - margin, height);
    corner_.setAttribute(Qt::WA_TransparentForMouseEvents);

    // As large as the cells at least: no bar ever has to scroll them.
    table_.setFixedHeight(height + rows.length() + 2 * frame);
    table_.setMinimumWidth(rows.width() + headings.minimumSectionSize() * table_.columnCount() +
                           2 * frame);
}

void GridBinding::showCurrent() {
    const int row = grid_.row() - Grid::kFixed;
    const int col = grid_.col() - Grid::kFixed;
    if (table_.currentRow() != row || table_.currentColumn() != col)
        table_.setCurrentCell(row, col);
}

void GridBinding::showCell(int row, int col) {
    const bool heading = row == 0;
    if (heading && col == 0)
        return corner_.setText(toQt(grid_.text(0, 0)));
    const int tableRow = row - Grid::kFixed;
    const int tableCol = col - Grid::kFixed;
    QTableWidgetItem* item = heading    ? table_.horizontalHeaderItem(tableCol)
                             : col == 0 ? table_.verticalHeaderItem(tableRow)
                                        : table_.item(tableRow, tableCol);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        if (heading)
            table_.setHorizontalHeaderItem(tableCol, item);
        else if (col == 0)
            table_.setVerticalHeaderItem(tableRow, item);
        else
            table_.setItem(tableRow, tableCol, item);
    }
    item->setText(toQt(grid_.text(row, col)));
    if (heading || col == 0)
        return;
    item->setTextAlignment(Qt::AlignVCenter |
                           (grid_.centred(col) ? Qt::AlignHCenter : Qt::AlignLeft));
    const auto colour = grid_.cellBackColor(row, col);
    item->setBackground(colour ? QBrush(QColor(colour->red, colour->green, colour->blue))
                               : QBrush());
    // A coloured cell is light: its text must be dark whatever the theme.
    item->setForeground(colour ? QBrush(Qt::black) : QBrush());
}

void GridBinding::placeEdit() {
    if (editBox_.visible())
        edit_.setGeometry(table_.visualItemRect(table_.currentItem()));
}

bool GridBinding::eventFilter(QObject* watched, QEvent* event) {
    const bool ofEdit = watched == &edit_;
    switch (event->type()) {
    case QEvent::Show:
        if (ofEdit)
            placeEdit();
        return false;
    case QEvent::Hide:
        // Qt would pass the focus of a hidden widget on to any neighbour.
        if (ofEdit && !editBox_.visible())
            edit_.clearFocus();
        return false;
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.matches(QKeySequence::Paste) && pasteCells(ofEdit))
            return true;
        return !isCommand(key) && (ofEdit ? editKey(key) : gridKey(key));
    }
    default:
        return false;
    }
}

/// Pastes cells of a spreadsheet; a text without tabs or lines goes into an open edit box (false).
bool GridBinding::pasteCells(bool ofEdit) {
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty() ||
        (ofEdit && !text.trimmed().contains('\t') && !text.trimmed().contains('\n')))
        return false;
    grid_.Paste(fromQt(text));
    return true;
}

/// True if the table must not see the key: it would search for what is typed.
bool GridBinding::gridKey(const QKeyEvent& key) {
    if (const int code = keyCode(key.key()); code != 0)
        grid_.KeyDown(code);
    KeyStroke stroke = strokeOf(key);
    if (isCharacter(stroke))
        grid_.KeyPress(stroke);
    return isCharacter(stroke) || key.key() == Qt::Key_F2;
}

/// True if the line edit must not see the key: it was swallowed, or has moved the current cell, or
/// would go on to the table and the window.
bool GridBinding::editKey(const QKeyEvent& key) {
    const int code = keyCode(key.key());
    if (code != 0)
        editBox_.KeyDown(code);
    KeyStroke stroke = strokeOf(key);
    if (editBox_.visible() && isCharacter(stroke))
        editBox_.KeyPress(stroke);
    return stroke.swallowed || !editBox_.visible() || code == keys::kEscape || code == keys::kUp ||
           code == keys::kDown || code == keys::kF2;
}

} // namespace parabolt
