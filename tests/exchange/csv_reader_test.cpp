#include "exchange/csv_reader.h"
#include "exchange/csv_writer.h"

#include <gtest/gtest.h>

namespace parabolt {
namespace {

/// All rows of a text that comes in pieces of a length.
std::vector<CsvRow> rowsOf(std::string_view text, std::size_t piece, char delimiter = ',') {
    CsvReader reader(delimiter);
    std::vector<CsvRow> rows;
    CsvRow row;
    const auto takeRows = [&] {
        while (*reader.next(row))
            rows.push_back(row);
    };
    for (; !text.empty(); text.remove_prefix(std::min(piece, text.size()))) {
        reader.feed(text.substr(0, piece));
        takeRows();
    }
    reader.finish();
    takeRows();
    return rows;
}

TEST(CsvReader, ReadsTheSameRowsHoweverTheTextComes) {
    const std::pair<std::string, std::vector<CsvRow>> cases[] = {
        {"", {}},
        {"a,b\r\nc,\r\n", {{1, {"a", "b"}}, {2, {"c", ""}}}},
        {"a\rb\n\nc", {{1, {"a"}}, {2, {"b"}}, {3, {""}}, {4, {"c"}}}},
        {"\"a,\"\"b\"\"\r\nc\",d\r\ne", {{1, {"a,\"b\"\r\nc", "d"}}, {3, {"e"}}}},
        {"5\" shaft,\"x\"y,\"\"", {{1, {"5\" shaft", "xy", ""}}}},
        {"a,", {{1, {"a", ""}}}}};
    for (const auto& [text, rows] : cases)
        for (const std::size_t piece : {1U, 2U, 3U, 100U})
            EXPECT_EQ(rowsOf(text, piece), rows) << text << " by " << piece;
}

TEST(CsvReader, ReadsBackWhatTheWriterWrites) {
    const std::vector<std::string> cells = {"plain", "a;b", "a,b", "say \"x\"", "two\r\nlines", ""};
    CsvWriter writer;
    for (const std::string& cell : cells)
        writer.field(cell);
    writer.endRow();
    EXPECT_EQ(rowsOf(writer.text(), 7), (std::vector<CsvRow>{{1, cells}}));
}

TEST(CsvReader, SaysWhereATextIsNoTable) {
    using Kind = CsvFault::Kind;
    const std::string longRow = "\"" + std::string(CsvReader::kLongestRow, 'x');
    for (const auto& [text, kind] : {std::pair(std::string("\"open"), Kind::QuoteNotClosed),
                                     std::pair(longRow, Kind::RowTooLong)}) {
        CsvReader reader;
        CsvRow row;
        reader.feed("fine\r\n" + text);
        EXPECT_TRUE(*reader.next(row));
        reader.finish();
        const auto read = reader.next(row);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.why().kind, kind);
        EXPECT_EQ(read.why().line, 2U);
    }
}

TEST(CsvReader, FindsTheDelimiter) {
    const std::pair<const char*, char> cases[] = {
        {"a,b;c,d\n", ','},       {"a;b\n1,5;2,5\n3,5;4,5\n", ';'},
        {"a\tb\n1,5\t2\n", '\t'}, {"\"a;b;c;d\",e\n", ','},
        {"sep=;\na,b,c\n", ';'},  {"\xEF\xBB\xBFsep=|\na,b,c\n", '|'},
        {"alone\n", ','}};
    for (const auto& [text, delimiter] : cases)
        EXPECT_EQ(delimiterOf(text), delimiter) << text;
    struct Comma {
        const char* cell;
        char delimiter;
        const char* text;
    };
    for (const Comma& each : {Comma{"9,5", ';', "9.5"},
                              {"9,5", ',', "9,5"},
                              {"1,234.5", ';', "1,234.5"},
                              {"1,2,3", '\t', "1,2,3"},
                              {"9.5", ';', "9.5"},
                              {"", ';', ""}})
        EXPECT_EQ(withDecimalPoint(each.cell, each.delimiter), each.text);
    EXPECT_TRUE(namesDelimiter({1, {"sep=", ""}}));
    EXPECT_FALSE(namesDelimiter({2, {"sep=;"}}));
}

} // namespace
} // namespace parabolt
