#pragma once

#include "controls/control.h"
#include "controls/text_box.h"
#include "numbers/rgb.h"

#include <optional>

namespace parabolt {

/// A table of texts with one current cell. Row 0 and column 0 are fixed: they hold headings and
/// can't be made current by the user. Rows and columns count from 0, the fixed ones included.
class Grid : public Control {
public:
    static constexpr int kFixed = 1; ///< number of fixed rows and of fixed columns

    Grid(ControlSet& form, std::string_view name, int rows, int cols);

    int rows() const { return rows_; }
    int cols() const { return cols_; }

    int row() const { return row_; } ///< of the current cell
    int col() const { return col_; }
    /// Makes a cell that the grid has current. Raises `LeaveCell` on the old one and `EnterCell` on
    /// the new one if it is another.
    void moveTo(int row, int col);

    const std::string& text() const { return text(row_, col_); } ///< of the current cell
    void setText(std::string_view text) { setText(row_, col_, text); }
    /// Text of any cell, fixed ones included. Both throw std::out_of_range where there is none.
    const std::string& text(int row, int col) const;
    void setText(int row, int col, std::string_view text);

    /// Background of the current cell; nothing stands for the system's window colour.
    void setCellBackColor(std::optional<Rgb> colour);
    std::optional<Rgb> cellBackColor(int row, int col) const;

    /// Texts of row 0, separated by bars. A caret in front of a text centres its column. The width
    /// of an entry, blanks included, is the least width of its column.
    void setFormatString(std::string_view format);
    bool centred(int col) const;
    const std::string& leastWidthText(int col) const;

    const std::string& tag() const { return tag_; } ///< a text of the owner's choice
    void setTag(std::string_view tag) { tag_ = tag; }

    int mouseRow() const { return mouseRow_; } ///< the row under the mouse
    void setMouseRow(int row) { mouseRow_ = row; }

    bool takesFocus() const override { return true; }
    void focusLost() const override { LostFocus(); }
    void focusGained() const override { GotFocus(); }

    Event<> EnterCell;
    Event<> LeaveCell;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<int> KeyDown; ///< the key code
    Event<KeyStroke&> KeyPress;
    Event<> DblClick;
    Event<const std::string&> Paste; ///< cells from elsewhere, between tabs and line ends

    /// Set by the view: text or colour of this cell have changed.
    std::function<void(int row, int col)> onCellChange;

private:
    struct Cell {
        std::string text;
        std::optional<Rgb> background;
    };
    struct Column {
        std::string leastWidth;
        bool centred = false;
    };
    std::size_t at(int row, int col) const;
    void cellChanged(int row, int col) const;

    int rows_;
    int cols_;
    int row_ = kFixed;
    int col_ = kFixed;
    int mouseRow_ = 0;
    std::string tag_;
    std::vector<Cell> cells_;
    std::vector<Column> columns_;
};

} // namespace parabolt
