#include "tables/table_layout.h"
#include "tables/table_text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace parabolt {
namespace {

/// A table of two columns that are shown and one that isn't.
struct SmallTable : TableSource {
    std::vector<std::vector<TableCell>> rows;
    std::vector<TableColumn> heads = {
        {"on", "On", "", true, TableColumn::Holds::Ticks},
        {"name", "Name, \"own\"", "", true, TableColumn::Holds::Names},
        {"carry", "Carry [yd]", ""},
        {"air", "Air", "", false},
    };
    std::span<const TableColumn> columns() const override { return heads; }
    std::size_t rowCount() const override { return rows.size(); }
    TableCell cell(std::size_t row, std::size_t column) const override {
        return rows.at(row).at(column);
    }
};

SmallTable someTable() {
    SmallTable table;
    table.rows = {
        {{.ticked = true}, {"a<b & \"c\""}, numberCell(0.1F, "0.0"), numberCell(1.0 / 3, "0.00")},
        {{.ticked = false}, {"tab\tand\nline"}, {}, numberCell(-2.0, "0")}};
    return table;
}

TEST(TableText, KeepsNumbersInFullForFilesAndAsShownForPeople) {
    const SmallTable table = someTable();
    EXPECT_EQ(tableAsCsv(table, completeTable(table)),
              "On,\"Name, \"\"own\"\"\",Carry [yd],Air\r\n"
              "1,\"a<b & \"\"c\"\"\",0.1,0.3333333333333333\r\n"
              "0,\"tab\tand\nline\",,-2\r\n");
    EXPECT_EQ(tableAsTabs(table, {{1, 0}, {2, 0, 1}}), "Carry [yd]\tOn\tName, \"own\"\n"
                                                       "\t0\ttab and line\n"
                                                       "0.1\t1\ta<b & \"c\"\n");
    EXPECT_EQ(tableAsHtml(table, {{0}, {1, 3}}),
              "<table>\n<tr><th>Name, \"own\"</th><th>Air</th></tr>\n"
              "<tr><td>a&lt;b &amp; \"c\"</td><td>0.3333333333333333</td></tr>\n</table>\n");
}

TEST(TableCells, SortByWhatTheyMean) {
    std::vector<TableCell> cells = {
        {},        {.ticked = true}, numberCell(9.0, "0"),    {"Zulu"},
        {"alpha"}, {"Beta"},         numberCell(-10.0F, "0"), {.ticked = false}};
    std::vector<std::string> order;
    std::stable_sort(cells.begin(), cells.end(), comesBefore);
    for (const TableCell& cell : cells)
        order.push_back(cell.ticked ? (*cell.ticked ? "on" : "off") : cell.text);
    EXPECT_EQ(order,
              (std::vector<std::string>{"-10", "alpha", "Beta", "Zulu", "9", "", "off", "on"}));
}

TEST(TableLayouts, ReadBackAndBearOtherVersions) {
    const SmallTable table = someTable();
    const TableLayout usual = usualLayout(table.columns());
    ASSERT_EQ(usual.columns.size(), 4U);
    EXPECT_FALSE(usual.columns[3].shown);
    const TableLayout mine{
        {{"carry", 70, true}, {"on", 0, false}, {"air", 44, true}, {"name", 120, true}},
        "air",
        true};
    EXPECT_EQ(layoutOf(layoutText(mine), table.columns()), mine);
    // A column that is gone, one twice, senseless widths, and one that the text doesn't know yet.
    const TableLayout read =
        layoutOf("gone:5> carry:-7< carry:90 -name:1234567 : on:x", table.columns());
    const std::vector<TableLayout::Column> expected = {
        {"carry", 0, true}, {"name", 2000, false}, {"on", 0, true}, {"air", 0, false}};
    EXPECT_EQ(read.columns, expected);
    EXPECT_EQ(read.sortedBy, "carry");
    EXPECT_FALSE(read.descending);
}

} // namespace
} // namespace parabolt
