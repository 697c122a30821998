#include "results/result_table.h"
#include "tests/support/golden.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

namespace parabolt::support {
namespace {

struct ResultTable : testing::Test, ScriptedForm {};

TEST_F(ResultTable, ShowsEachValueInItsColumn) {
    RunRecord run;
    float value = -10.74F;
    for (float RunRecord::*const field :
         {&RunRecord::CarryTime, &RunRecord::CarryDist, &RunRecord::LaunchSpeed,
          &RunRecord::ImpactSpeed, &RunRecord::LaunchAngle, &RunRecord::RPM, &RunRecord::ImpactSpin,
          &RunRecord::GreenRoll, &RunRecord::HeadSpeed, &RunRecord::HeadWeight,
          &RunRecord::LoftAngle, &RunRecord::AttackAngle, &RunRecord::Bending, &RunRecord::COR,
          &RunRecord::WindSpeed, &RunRecord::BaroPressure, &RunRecord::Temperature, &RunRecord::RH})
        run.*field = value++;
    std::string table = composeResultHeader();
    for (run.Mode = 0; run.Mode <= 5; ++run.Mode) {
        run.IsWood = run.Mode % 2 == 1;
        table += composeResultRow(run, static_cast<std::int16_t>(run.Mode + 1),
                                  std::to_string(run.Mode + 7));
    }
    std::erase(table, '\r');
    EXPECT_EQ(table, goldenText("result_table.txt"));
    run.CarryTime = 0.5F;
    run.CarryDist = 0.4F;
    run.COR = 0.8F;
    run.WindSpeed = 3.4F;
    const std::string row = composeResultRow(run, 123, "24"); // cut to its column
    EXPECT_EQ(row.substr(0, 24), "W-123/2        .50     0");
    EXPECT_EQ(row.substr(101, 7), "0.80  3");
    // A shot that flies reaches the table.
    form.optLaunch.select();
    this->run();
    EXPECT_EQ(rows().at(0).substr(0, 64),
              "  W-1/1   LM  6.91   228  144.0   47.0    9.5  3200   2304 23.1 ");
}

TEST_F(ResultTable, TheCaretDecidesWhereARowGoes) {
    run(3);
    // The caret's line and column before a run, and the place of its row.
    for (const auto& [line, column, place] :
         {std::tuple{0U, 0U, 0U}, {4U, 0U, 1U}, {8U, 20U, 5U}}) {
        form.txtResult.setCaret(form.txtResult.lineStart(line).value() + column);
        run();
        EXPECT_TRUE(rows().at(place).starts_with("  W-1/" + form.txtRun.text())) << line;
    }
    run();
    EXPECT_TRUE(rows().at(6).starts_with("  W-1/7"));
}

TEST_F(ResultTable, StaysInView) {
    std::vector<int> scrolls;
    form.txtResult.onScroll = [&](int lines) { scrolls.push_back(lines); };
    run(8);
    EXPECT_EQ(scrolls, (std::vector<int>{1, 2})); // from the eleventh line on
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
