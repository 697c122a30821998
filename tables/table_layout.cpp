#include "tables/table_layout.h"

#include <algorithm>
#include <charconv>

namespace parabolt {
namespace {

// A word for each column: "-" in front of one that is hidden, the key, a colon and the width, and
// behind the column by which the table is sorted "<" or, descending, ">".

constexpr int kWidest = 2000; ///< pixels

TableLayout::Column columnOf(std::string_view word) {
    TableLayout::Column column;
    column.shown = !word.starts_with('-');
    if (!column.shown)
        word.remove_prefix(1);
    const std::size_t colon = std::min(word.find(':'), word.size());
    column.key = word.substr(0, colon);
    if (colon < word.size())
        std::from_chars(word.data() + colon + 1, word.data() + word.size(), column.width);
    column.width = std::clamp(column.width, 0, kWidest);
    return column;
}

template <class Columns>
bool has(const Columns& columns, const std::string& key) {
    return std::any_of(columns.begin(), columns.end(),
                       [&](const auto& column) { return column.key == key; });
}

} // namespace

TableLayout usualLayout(std::span<const TableColumn> columns) {
    return layoutOf({}, columns);
}

std::string layoutText(const TableLayout& layout) {
    std::string text;
    for (const TableLayout::Column& column : layout.columns) {
        text += (text.empty() ? "" : " ") + std::string(column.shown ? "" : "-") + column.key +
                ":" + std::to_string(column.width);
        if (column.key == layout.sortedBy)
            text += layout.descending ? ">" : "<";
    }
    return text;
}

TableLayout layoutOf(std::string_view text, std::span<const TableColumn> columns) {
    TableLayout layout;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        TableLayout::Column column = columnOf(word);
        if (!has(columns, column.key) || has(layout.columns, column.key))
            continue;
        if (word.ends_with('<') || word.ends_with('>')) {
            layout.sortedBy = column.key;
            layout.descending = word.ends_with('>');
        }
        layout.columns.push_back(std::move(column));
    }
    for (const TableColumn& column : columns)
        if (!has(layout.columns, column.key))
            layout.columns.push_back({column.key, 0, column.shown});
    return layout;
}

} // namespace parabolt
