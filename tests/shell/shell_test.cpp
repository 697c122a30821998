#include "shell/build_values.h"
#include "tests/support/scripted_form.h"

namespace parabolt::support {
namespace {

struct FrmMain : testing::Test, ScriptedForm {};

TEST_F(FrmMain, MenusJudgeTheEditedFieldAndOpenTheirForms) {
    type(form.txtWind, "gale");
    form.mnuHelp.Click();
    EXPECT_EQ(messages.texts.size(), 1U);
    EXPECT_EQ(form.focus.active(), &form.txtWind);
    run();
    for (MenuItem* item :
         {&form.mnuPrint, &form.mnuDefault, &form.mnuAbout, &form.mnuSkype, &form.mnuExit})
        item->Click();
    EXPECT_EQ(shown, (Texts{"print view", "club editor", "about", "end"}));
    EXPECT_EQ(desktop.opened, (Texts{"help", "callto:" + std::string(kCallContact)}));
    for (MenuItem* title : {&form.mnuFile, &form.mnuStudies}) {
        type(form.txtWind, "gale");
        title->Click();
        EXPECT_EQ(form.focus.active(), &form.txtWind);
        title->Click(); // the fallback passes
        EXPECT_EQ(form.focus.active(), &form.Picture1);
    }
    EXPECT_EQ(messages.texts.size(), 3U);
}

TEST_F(FrmMain, TheReportHasTheCurvesOfTheScreen) {
    form.mnuPrint.Click();
    EXPECT_TRUE(form.Picture4.drawings().empty());
    run(2);
    enter(form.txtRange, "250");
    form.mnuPrint.Click();
    EXPECT_EQ(form.Picture3.geometry(), form.Picture1.geometry());
    EXPECT_EQ(form.Picture4.geometry(), form.Picture2.geometry());
    EXPECT_EQ(form.Picture4.scale(), form.Picture2.scale());
    EXPECT_EQ(shapesOf<DrawnCurve>(form.Picture4), shapesOf<DrawnCurve>(form.Picture2));
    EXPECT_EQ(curves().size(), 2U);
    EXPECT_EQ(shapesOf<DrawnText>(form.Picture3).back().text, "Club 1/2");
}

TEST_F(FrmMain, ThePlotFollowsTheFormWithItsCurves) {
    run();
    const auto before = form.Picture2.geometry();
    for (const auto& [height, width, minimized] :
         {std::tuple{9000.0, 16000.0, true}, {5000.0, 16000.0, false}, {9000.0, 1000.0, false}})
        main.plot.Form_Resize({width, height, 300}, minimized);
    EXPECT_EQ(form.Picture2.geometry(), before);
    main.plot.Form_Resize({7300, 9000, 300}, false);
    EXPECT_EQ(form.txtResult.width(), 15000 - 5190) << "as it was";
    EXPECT_EQ(form.Frame7.width(), 15000 - 7260);
    main.plot.Form_Resize({16000, 9000, 300}, false);
    EXPECT_EQ(form.txtResult.width(), 16000 - 5190);
    EXPECT_EQ(form.Frame7.width(), 16000 - 7260);
    EXPECT_EQ(curves().size(), 1U);
}

} // namespace
} // namespace parabolt::support
