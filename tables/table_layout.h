#pragma once

#include "tables/table_source.h"

namespace parabolt {

/// How the user has laid out a table.
struct TableLayout {
    struct Column {
        std::string key;
        int width = 0; ///< pixels; 0 for one that fits
        bool shown = true;
        friend bool operator==(const Column&, const Column&) = default;
    };
    std::vector<Column> columns; ///< from left to right
    std::string sortedBy;        ///< key of a column; empty for the order of the rows
    bool descending = false;
    friend bool operator==(const TableLayout&, const TableLayout&) = default;
};

/// The layout that a table has at first.
TableLayout usualLayout(std::span<const TableColumn> columns);

/// A layout as one line of text, for preferences.
std::string layoutText(const TableLayout& layout);

/// The layout of such a text for a table. Columns that the table doesn't have are left out, those
/// that the text lacks come behind the others as they are at first; so the empty text gives the
/// usual layout.
TableLayout layoutOf(std::string_view text, std::span<const TableColumn> columns);

} // namespace parabolt
