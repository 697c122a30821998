#include "printing/drv_printer.h"
#include "printing/matrix_str.h"
#include "printing/report.h"
#include "printing/sheet.h"
#include "tests/support/scripted_services.h"

#include <stdexcept>

namespace parabolt::support {
namespace {

TEST(MatrixStr, LaysFieldsIntoARow) {
    const auto left = clsMatrixStr::Left;
    const auto right = clsMatrixStr::Right;
    const auto centred = clsMatrixStr::Centred;
    using Write = std::tuple<std::int32_t, std::int16_t, std::string>; // alignment, column, text
    const std::pair<std::vector<Write>, std::string> table[] = {
        {{{left, 5, "abc"}}, "    abc"},
        {{{right, 5, "abc"}}, "  abc"},
        {{{centred, 5, "abc"}}, "   abc"},
        {{{centred, 5, "abcd"}}, "  abcd"},
        {{{right, 2, "abc"}}, "ab"},
        {{{centred, 1, "abcd"}}, "ab"},
        {{{left, -2, "abc"}}, ""},
        {{{left, 8, "late"}, {left, 1, "early"}}, "early  late"},
        {{{left, 1, "abcdef"}, {left, 3, "XY"}}, "abXYef"},
        {{{left, 1, "abc  "}}, "abc  "},
        {{{right, 4, "\u00e9\u20ac"}, {left, 6, "x"}}, "  \u00e9\u20ac x"}, // two and three bytes
        {{{right, 2, "\u00e9\u2192\u00e8"}, {left, 2, "\u00df"}}, "\u00e9\u00df"},
    };
    for (const auto& [writes, row] : table) {
        clsMatrixStr matrix;
        for (const auto& [align, column, text] : writes)
            matrix.Field(align, column, 1, text);
        EXPECT_EQ(matrix.GetField(1), row);
    }
    clsMatrixStr matrix;
    matrix.Field(left, 2, 3, "last  ");
    matrix.Field(left, 1, 1, "first");
    matrix.Field(left, 1, 4, "");
    EXPECT_EQ(matrix.OutForm(), "first\r\n\r\n last\r\n\r\n");
    EXPECT_THROW(matrix.Field(left, 32767, 1, "ab"), std::overflow_error);
    EXPECT_THROW(matrix.Field(left, 1, -1, "a"), std::out_of_range);
    matrix.Clear();
    EXPECT_EQ(matrix.OutForm(), "");
}

/// A page that remembers what was drawn on it. Its font is as simple as can be: a character is a
/// hundredth of the font's size wide and a fortieth high.
struct RecordedPage : Page {
    struct Line {
        std::string text;
        double x, y, size;
        bool bold;
        friend bool operator==(const Line&, const Line&) = default;
    };
    struct Rectangle {
        Place corner, size;
        int pen;
        friend bool operator==(const Rectangle&, const Rectangle&) = default;
    };

    bool isPrinter() const override { return true; }
    double Width() const override { return 16000; }
    double ScaleWidth() const override { return 8.55; }
    double ScaleHeight() const override { return 5.9; }
    double TextWidth(std::string_view text) const override {
        return static_cast<double>(text.size()) * FontSize / 100;
    }
    double TextHeight(std::string_view) const override { return FontSize / 40; }
    void Print(std::string_view text) override {
        lines.push_back({std::string(text), CurrentX, CurrentY, FontSize, FontBold});
        CurrentX = 0;
        CurrentY += TextHeight(text);
    }
    void Box(Place corner, Place opposite) override {
        frame = {corner, {opposite.x - corner.x, opposite.y - corner.y}, DrawWidth};
    }
    void PaintPlot(const PlotCanvases&, Place corner, Place size) override {
        plot = {corner, size, DrawWidth};
    }
    void paintPicture(const PictureBox&, Place corner, Place size) override {
        charts.push_back({corner, size, DrawWidth});
    }
    /// What stands below caption and heading.
    Texts table() const {
        Texts texts;
        for (std::size_t i = 2; i < lines.size(); ++i)
            texts.push_back(lines[i].text);
        return texts;
    }

    std::vector<Line> lines;
    std::optional<Rectangle> frame, plot;
    std::vector<Rectangle> charts;
};

TEST(DrvPrinter, LaysTextIntoTheCellsOfTheStandardSize) {
    RecordedPage page;
    page.FontSize = 20; // "abcd" is 0.8 wide
    clsDrvPrinter driver;
    driver.PntObject(page);
    driver.StdFontSize(10); // a cell of 0.1 by 0.25
    EXPECT_EQ(driver.MaxCols(), 85);
    EXPECT_EQ(driver.MaxLines(), 23);
    driver.LineNo(2);
    driver.ColNo(10);
    for (const auto& [alignment, x] :
         {std::pair{0, 1.0}, {1, 0.6}, {2, 0.2}, {7, 0.2}, {-1, 0.2}}) {
        driver.PrintText(alignment, "abcd");
        ASSERT_FALSE(page.lines.empty());
        EXPECT_NEAR(page.lines.back().x, x, 1e-12) << alignment;
        EXPECT_EQ(page.lines.back().y, 0.5) << "each on the same line";
    }
}

struct Report : testing::Test {
    RecordedPage compose(double Ratio = 1, double PicRatio = 2) {
        RecordedPage page;
        ComposeReport(page, Ratio, PicRatio, {caption, table, {outer, inner}});
        if (!page.frame || page.lines.size() < 2)
            throw std::logic_error("a report without frame, caption or heading");
        return page;
    }

    ControlSet form;
    PictureBox outer{form, "outer", kWhite, kBlack};
    PictureBox inner{form, "inner", kWhite, kBlack};
    std::string caption = "A caption";
    std::string table = "one\ntwo\n";
};

TEST_F(Report, FillsThePageInProportion) {
    const RecordedPage page = compose(1);
    using Line = RecordedPage::Line;
    EXPECT_EQ(page.lines, (std::vector<Line>{{"A caption", 0.3, 0.35, 16, true},
                                             {"Parameters:", 0.4, 4.4, 14, true},
                                             {"one", 0.4, 4.7, 9, false},
                                             {"two", 0.4, 4.7 + 9.0 / 40, 9, false}}));
    EXPECT_EQ(page.frame, (RecordedPage::Rectangle{{0.2, 0.2}, {11 - 0.2, 7.5 - 0.2}, 5}));
    EXPECT_EQ(page.plot, (RecordedPage::Rectangle{{0.3, 0.6}, {7.4, 3.7}, 1}));
    EXPECT_EQ(page.FontName, "Courier New");
    const PreviewScale half{0.5, 5.5, 4.25, -0.25, -0.25};
    EXPECT_EQ(ScalePreviewToPage({11, 8.5, 10.5, 8}, 5.5, 9), half);
    const RecordedPage preview = compose(0.5); // the page with smaller letters
    EXPECT_EQ(preview.frame, page.frame);
    EXPECT_EQ(preview.plot, page.plot);
    EXPECT_EQ(preview.lines.back().size * 2, page.lines.back().size);
    for (const double PicRatio : {0.8, 2.86, 3.0}) {
        const auto [corner, size, pen] = compose(1, PicRatio).plot.value();
        EXPECT_NEAR(size.x / size.y, PicRatio, 1e-9);
        EXPECT_LT(corner.x + size.x, page.frame->corner.x + page.frame->size.x) << PicRatio;
        EXPECT_EQ(size.y == compose(1, 1).plot.value().size.y, PicRatio < 2.9) << PicRatio;
    }
    EXPECT_FALSE(compose(1, 0).plot) << "a plot that was never laid out";
    caption.assign(200, 'x'); // shrinks into the frame
    const RecordedPage narrow = compose();
    EXPECT_LT(narrow.lines[0].x + 200 * narrow.lines[0].size / 100,
              page.frame->corner.x + page.frame->size.x);
    EXPECT_EQ(narrow.lines[1], page.lines[1]) << "what follows has its own size";
}

TEST_F(Report, PrintsEighteenLinesAndWrapsFrom126CharactersOn) {
    table = "a\r\n\r\nb\nc";
    EXPECT_EQ(compose().table(), (Texts{"a", "", "b", "c"}));
    const std::string widest(125, 'x');
    table = widest + "\n" + widest + "y\nlast";
    EXPECT_EQ(compose().table(), (Texts{widest, widest, "y", "", "last"}));
    table = "\u00e9" + std::string(124, 'x'); // the first is one character of two bytes
    EXPECT_EQ(compose().table().size(), 1U);
    for (int i = 1; i < 30; ++i)
        table += "\n" + std::to_string(i);
    EXPECT_EQ(compose().table().size(), 18U);
    EXPECT_EQ(compose().table().at(17), "17");
}

TEST_F(Report, TellsHowManyRowsItLoses) {
    const auto rows = [](int count, const std::string& row) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += row + "\n";
        return text;
    };
    const std::string wide = std::string(126, 'x'); // two lines and an empty one
    const std::pair<std::string, int> cases[] = {
        {"", 0},
        {rows(18, "row"), 0},
        {rows(19, "row"), 1},
        {rows(18, "row") + "\n  \n" + rows(5, "row") + "last", 6},
        {wide + "\n" + rows(16, "row"), 0},
        {wide + "\n" + rows(17, "row"), 1},
        {rows(17, "row") + wide, 0},
        {rows(6, wide) + rows(3, "row"), 2},
        {rows(8, wide), 2},
    };
    for (const auto& [text, lost] : cases)
        EXPECT_EQ(rowsLeftOut(text), lost) << text;
}

TEST_F(Report, ASheetOfOurOwnFitsWhateverStandsOnIt) {
    for (const int rows : {1, 7, 24})
        for (const int columns : {3, 20, 40}) {
            SheetContent sheet;
            sheet.title = "Comparison";
            sheet.fields = {"Ann", "", "2026-11-23", std::string(300, 'n')};
            sheet.charts = {[](PictureBox&) {}, [](PictureBox&) {}};
            sheet.table.emplace_back(columns, "Carry [yd]");
            for (int row = 0; row < rows; ++row)
                sheet.table.emplace_back(columns, row == 0 ? "9.5" : "141.25");
            const std::string name = "Ann's driver" + std::string(36, '-') + "low spin, wet";
            sheet.table[0][1] = "Name";
            for (int row = 1; row <= rows; ++row)
                sheet.table[static_cast<std::size_t>(row)][1] = name;
            sheet.remark = "Remark";
            RecordedPage page;
            composeSheet(page, 1, sheet);
            const std::string at = std::to_string(rows) + " by " + std::to_string(columns);
            EXPECT_EQ(page.lines.at(0).text + page.lines.at(1).text,
                      "ComparisonPlayer: Ann     Date: 2026-11-23");
            double foot = 0; // of the pictures
            ASSERT_EQ(page.charts.size(), 2U);
            for (const auto& [corner, size, pen] : {page.charts[0], page.charts[1]}) {
                EXPECT_GT(size.x, 1) << at;
                EXPECT_GT(size.y, 1) << at;
                EXPECT_LT(corner.x + size.x, 11.01) << at;
                EXPECT_GT(corner.y, page.lines.at(2).y) << at;
                foot = std::max(foot, corner.y + size.y);
            }
            EXPECT_EQ(page.charts[1].corner.y > page.charts[0].corner.y, rows == 1) << at;
            double edge = 0; // of the first column
            for (std::size_t i = 3; i < page.lines.size(); ++i) {
                const RecordedPage::Line& line = page.lines[i];
                EXPECT_GT(line.x, 0.19) << at;
                EXPECT_LT(line.x + static_cast<double>(line.text.size()) * line.size / 100, 11.01);
                EXPECT_LE(line.y + line.size / 40, 7.51) << at;
                EXPECT_GT(line.y, foot) << at;
                EXPECT_GE(line.size, columns == 40 ? 3 : 6) << at;
                if (line.text.starts_with("Ann")) {
                    EXPECT_EQ(line.text == name, columns == 3) << line.text;
                    EXPECT_TRUE(line.text.ends_with("et")) << line.text;
                }
                if (line.text == "9.5" && edge == 0)
                    edge = line.x + 3 * line.size / 100;
                if (line.text == "141.25" && i < 5U + static_cast<unsigned>(rows)) {
                    EXPECT_NEAR(line.x + 6 * line.size / 100, edge, 1e-9) << "numbers end in line";
                }
            }
            EXPECT_EQ(page.lines.back().text, "Remark");
            EXPECT_EQ(page.lines.size(), 3U + static_cast<unsigned>((rows + 2) * columns) + 1);
        }
    const SheetFields fields{"Ann", "Bob", "", "a note"};
    EXPECT_EQ(fieldsOf(fieldsText(fields)), fields);
    EXPECT_EQ(fieldsOf("{}").note + fieldsOf("").player, "");
}

TEST(SplitSentence, CutsAtBlanksInTheSecondHalf) {
    const std::tuple<std::string, std::int16_t, Texts> table[] = {
        {"abcd", 4, {"abcd"}},
        {"abcdefghij", 4, {"abcd", "efgh", "ij"}}, // no blank at all
        {"aaa bbb ccc", 8, {"aaa bbb ", "ccc"}},   // a blank at the very end of the piece
        {"aaa bbbbbb", 6, {"aaa ", "bbbbbb"}},     // the first blank that is late enough
        {"aa bbbbbb", 6, {"aa bbb", "bbb"}},       // one too early
        {"aaaa   bb", 4, {"aaaa", "bb"}},          // blanks after the cut are dropped
        {"ab cd", 2, {"ab", " c", "d"}},           // too short to mind blanks
        {"a\xC3\xA9 \xC3\xA9\xC3\xA9", 3, {"a\xC3\xA9 ", "\xC3\xA9\xC3\xA9"}},
    };
    for (const auto& [text, length, expected] : table) {
        Texts pieces = SplitSentence(text, length);
        ASSERT_TRUE(!pieces.empty() && pieces.back().empty()) << text;
        pieces.pop_back();
        EXPECT_EQ(pieces, expected) << text;
    }
}

} // namespace
} // namespace parabolt::support
