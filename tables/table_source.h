#pragma once

#include "numbers/rgb.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace parabolt {

/// What stands in a cell of a table.
struct TableCell {
    std::string text{}; ///< as people read it
    /// A figure in full, for sorting and for files; none in a cell that is a text or has no figure.
    std::variant<std::monostate, float, double> number{};
    std::optional<Rgb> colour{};  ///< of a square in front of the text
    std::optional<bool> ticked{}; ///< state of the cell's box, if it has one
    enum class Look { Plain, Struck, Faint } look = Look::Plain;

    bool hasNumber() const { return number.index() != 0; }
};

/// The cell of a figure in a display pattern such as "0.0".
TableCell numberCell(float value, std::string_view pattern);
TableCell numberCell(double value, std::string_view pattern);

/// Whether one cell stands in front of the other in a sorted table: unticked in front of ticked,
/// numbers by their value, texts regardless of the letters' case, and cells without anything last.
bool comesBefore(const TableCell& one, const TableCell& other);

/// A column of a table.
struct TableColumn {
    std::string key;     ///< by which a layout knows it; people never see it
    std::string heading; ///< with its unit: "Carry [yd]"
    std::string meaning; ///< a sentence for those who wonder
    bool shown = true;   ///< until the user chooses
    enum class Holds {
        Numbers,
        Texts,
        Names, ///< texts that the user types
        Ticks, ///< nothing but a box
    } holds = Holds::Numbers;
};

/// A table without widgets: whoever has rows shows them as such a table, which views, files,
/// the clipboard and printed pages read cell by cell. Rows and columns count from 0.
class TableSource {
public:
    virtual ~TableSource() = default;

    virtual std::span<const TableColumn> columns() const = 0;
    virtual std::size_t rowCount() const = 0;
    virtual TableCell cell(std::size_t row, std::size_t column) const = 0;

    /// The user has set or taken away a cell's tick.
    virtual void tick(std::size_t /*row*/, std::size_t /*column*/, bool /*ticked*/) {}
    /// The user has typed a text into a cell of a column of names.
    virtual void enter(std::size_t /*row*/, std::size_t /*column*/, const std::string& /*text*/) {}
};

/// Some rows and columns of a table, in the order in which they are wanted.
struct TableExtract {
    std::vector<std::size_t> rows;
    std::vector<std::size_t> columns;
};

/// All rows and columns.
TableExtract completeTable(const TableSource& table);

} // namespace parabolt
