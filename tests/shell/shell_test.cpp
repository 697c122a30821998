#include "shell/frm_splash.h"
#include "tests/support/scripted_form.h"

namespace parabolt::support {
namespace {

struct FrmMain : testing::Test, ScriptedForm {};

TEST_F(FrmMain, EveryEventHasAHandler) {
    std::string silent; // what only opens a list, or shows the state of something else
    for (Control* control : form.controls.all()) {
        bool connected = true;
        if (const auto* item = dynamic_cast<MenuItem*>(control))
            connected = item->Click.connected();
        else if (const auto* button = dynamic_cast<Button*>(control))
            connected = button->Click.connected();
        else if (const auto* option = dynamic_cast<OptionButton*>(control))
            connected = option->Click.connected();
        else if (const auto* field = dynamic_cast<TextBox*>(control))
            connected = field->LostFocus.connected() && field->KeyUp.connected();
        silent += connected ? "" : control->name() + " ";
    }
    EXPECT_EQ(silent, "txtRun txtMode txtType Help ");
}

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

TEST(Splash, GoesOnceByItselfOrAtAnyOfItsEvents) {
    for (const bool byItself : {true, false}) {
        RecordingDesktop desktop;
        frmSplash frm(desktop);
        SplashForm& form = frm.form;
        int unloads = 0;
        form.Unload.connect([&] { ++unloads; });
        frm.handlers.Label1_Click(); // opens its page, and the splash stays
        EXPECT_EQ(desktop.opened, Texts{form.Label1.caption()});
        EXPECT_EQ(unloads, 0);
        int milliseconds = 0;
        for (; byItself && unloads == 0 && milliseconds < 10000;
             milliseconds += form.Timer1.interval())
            form.Timer1.Tick();
        EXPECT_EQ(milliseconds, byItself ? 5100 : 0);
        frm.handlers.Form_KeyPress();
        frm.handlers.Frame1_Click();
        EXPECT_EQ(unloads, 1) << "a second main form would come up";
        EXPECT_FALSE(form.Timer1.enabled());
    }
}

} // namespace
} // namespace parabolt::support
