#include "results/result_table.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

namespace parabolt::support {
namespace {

struct ResultTable : testing::Test, ScriptedForm {};

TEST_F(ResultTable, ShowsTheWorkedShotToTheCharacter) {
    form.optLaunch.select();
    form.shot.AttackAngle = 1.5F;
    form.shot.Bending = -0.5F;
    run();
    EXPECT_EQ(form.txtResult.text(), "             Carry Carry Launch Horiz. Launch  Ball "
                                     "Impact Green  Head   Head  Loft Attack "
                                     "Bending COR  Wind  Baro\n"
                                     "   Club      Time  Dist  Speed Impact  Angle  Spin   "
                                     "Spin  Roll  Speed Weight Angle Angle   "
                                     "Angle      Speed Pres. Temp. RH\n"
                                     "    No. Mode (sec) (Yrd)  (mph) (mph)  (deg.) (rpm)  "
                                     "(rpm)  (ft) (mph)   (gm) (deg)  (deg) "
                                     "  (deg)     (mph) In-Hg (deg) (%)\n"
                                     "  W-1/1   LM  6.91   228  144.0   47.0    9.5  3200   "
                                     "2304 23.1  100.0  198.0  10.0    1.5 "
                                     "   -0.5   0.83  0  29.9    70  50\n");
}

TEST_F(ResultTable, CellsKeepTheirColumnsForUnusualValues) {
    RunRecord run;
    run.GreenRoll = -16;
    run.CarryTime = 0.5F;
    run.CarryDist = 0.4F;
    run.COR = 0.8F;
    run.WindSpeed = 3.4F;
    run.Mode = 7;
    const std::string row = composeResultRow(run, 12, "24");
    EXPECT_EQ(row.substr(0, 24), "I-12/24        .50     0");
    EXPECT_EQ(row.substr(58, 5), "-16.0");
    EXPECT_EQ(row.substr(101, 7), "0.80  3");
    EXPECT_EQ(composeResultRow(run, 123, "24").substr(0, 7), "I-123/2");
}

TEST_F(ResultTable, TheCaretDecidesWhereARowGoes) {
    run(3);
    // The caret's line and column before a run, and the place of its row.
    for (const auto& [line, column, place] :
         {std::tuple{0U, 0U, 0U}, {4U, 0U, 1U}, {8U, 20U, 5U}}) {
        form.txtResult.setCaret(*form.txtResult.lineStart(line) + column);
        run();
        EXPECT_TRUE(rows().at(place).starts_with("  W-1/" + form.txtRun.text())) << line;
    }
    run();
    EXPECT_TRUE(rows().back().starts_with("  W-1/7"));
}

TEST_F(ResultTable, RowsHaveTheColourOfTheirCurveAndStayInView) {
    std::vector<Rgb> colours;
    form.txtResult.onInsert = [&](std::size_t, const std::string&, Rgb colour) {
        colours.push_back(colour);
    };
    std::vector<int> scrolls;
    form.txtResult.onScroll = [&](int lines) { scrolls.push_back(lines); };
    run(8);
    EXPECT_EQ(scrolls, (std::vector<int>{1, 2})); // from the eleventh line on
    run(5);
    EXPECT_EQ(colours.at(0), kBlack); // the headings
    EXPECT_EQ(colours.at(1), (Rgb{255, 0, 0}));
    EXPECT_EQ(colours.at(12), (Rgb{160, 82, 45}));
}

TEST_F(ResultTable, IsSavedWithWindowsLineEndsAndAnEmptyLine) {
    const TemporaryFolder folder;
    const std::string name = folder.path("table.TXT");
    files.choose(name);
    const std::pair<const char*, std::string> table[] = {
        {"head\nrow 1\n", "head\r\nrow 1\r\n\r\n"},
        {"no end", "no end\r\n"},
        {"", "\r\n"},
        {"5 \u20AC \u2192 typed\n", "5 \x80 ? typed\r\n\r\n"}};
    for (const auto& [box, content] : table) {
        form.txtResult.edited({{box, kBlack}}, 0);
        form.mnuSResult.Click();
        EXPECT_EQ(contentOf(name), content);
    }
    files.choose(folder.path("gone/table.txt"));
    form.mnuSResult.Click();
    EXPECT_EQ(messages.texts, Texts{"No such file or directory"});
}

} // namespace
} // namespace parabolt::support
