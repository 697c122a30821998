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
    for (MenuItem* item : {&form.mnuPrint, &form.mnuAbout, &form.mnuSkype})
        item->Click();
    EXPECT_EQ(shown, (Texts{"print view", "about"}));
    EXPECT_EQ(desktop.opened.at(1).substr(0, 7), "callto:");
    // The twin is drawn for the report.
    EXPECT_EQ(form.Picture4.scale(), form.Picture2.scale());
    EXPECT_FALSE(form.Picture3.drawings().empty());
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
