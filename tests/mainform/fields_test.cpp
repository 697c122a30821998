#include "mainform/modes.h"
#include "mainform/validators.h"
#include "tests/support/scripted_form.h"

namespace parabolt::support {
namespace {

struct Modes : testing::Test, ScriptedForm {
    /// The inputs that are enabled, of those that the mode switches, in the order of the form.
    std::string inputs() const {
        std::string names;
        for (const Control* control : std::initializer_list<const Control*>{
                 &form.txtLaunchAngle, &form.txtBallSpin, &form.txtLaunchSpeed, &form.cmbClubNo,
                 &form.txtHeadSpeed, &form.txtSpeedIncrement, &form.chkBatch, &form.optIron,
                 &form.txtCor, &form.txtHeadWeight, &form.txtLoftAngle, &form.txtBending,
                 &form.txtAttackAngle, &form.BallOpt2})
            names += control->enabled() ? control->name() + " " : "";
        return names;
    }
};

TEST_F(Modes, EnableWhatTheUserGives) {
    const std::string manual = "cmbClubNo txtHeadSpeed optIron txtCor txtHeadWeight txtLoftAngle "
                               "txtBending txtAttackAngle BallOpt2 ";
    EXPECT_EQ(inputs(), manual);
    const std::pair<OptionButton*, std::string> table[] = {
        {&form.optLaunch, "txtLaunchAngle txtBallSpin txtLaunchSpeed BallOpt2 "},
        {&form.optStandard, "cmbClubNo txtHeadSpeed optIron BallOpt2 "},
        {&form.optAuto, "cmbClubNo txtHeadSpeed txtSpeedIncrement chkBatch optIron BallOpt2 "},
        {&form.optActual, "txtLaunchAngle cmbClubNo txtHeadSpeed optIron txtCor txtHeadWeight "
                          "txtLoftAngle txtBending BallOpt2 "},
        {&form.optManual, manual}};
    for (const auto& [option, names] : table) {
        option->select();
        EXPECT_EQ(inputs(), names) << option->name();
    }
}

TEST_F(Modes, EachFliesWithItsOwnSources) {
    enter(form.txtLoftAngle, "12");
    run();
    form.optStandard.select(); // loads wood 1
    run();
    form.optActual.select();
    enter(form.txtLaunchAngle, "12.3");
    run();
    form.optLaunch.select();
    run();
    ASSERT_EQ(form.Runs.count(), 4);
    EXPECT_FLOAT_EQ(form.Runs[1].LoftAngle, 12);
    EXPECT_FLOAT_EQ(form.Runs[2].LoftAngle, 10);
    EXPECT_FLOAT_EQ(form.Runs[3].LaunchAngle, 12.3F);
    EXPECT_FLOAT_EQ(form.Runs[3].AttackAngle, 3.5F);
    EXPECT_EQ(form.txtAttackAngle.text(), "3.5");
    EXPECT_EQ(form.txtLaunchSpeed.text(), "148.4"); // the field alone is rounded
    EXPECT_NE(form.Runs[4].LaunchSpeed, 148.4F);
}

TEST_F(Modes, ClubsFillTheListByTypeAndTheFieldsInDefaultModeOnly) {
    form.optIron.select();
    EXPECT_EQ(form.cmbClubNo.items().size(), 12U);
    EXPECT_EQ(form.shot.ClubNo, 1);
    EXPECT_EQ(form.txtLoftAngle.text(), "10"); // Manual keeps the fields
    form.optStandard.select();
    EXPECT_EQ(form.txtCor.text(), "0.76");
    form.txtHeadSpeed.setText("120");
    form.optStandard.select(); // active already: hand changes stay
    EXPECT_EQ(form.txtHeadSpeed.text(), "120");
    // An edited club that a field refuses is told and not taken.
    form.clubs.Irons[2].HeadSpeed = 40;
    form.clubs.Irons[2].LoftAngle = 70;
    form.cmbClubNo.select(1);
    EXPECT_EQ(messages.texts.size(), 2U);
    EXPECT_EQ(form.txtHeadSpeed.text(), "100");
    EXPECT_EQ(form.focus.active(), &form.txtHeadSpeed); // loft is disabled
    EXPECT_FLOAT_EQ(form.shot.LoftAngle, 16);
}

TEST_F(Modes, ResetRestoresInputsAndKeepsModeDataAndScale) {
    form.clubs.Woods[1].COR = 0.71F;
    form.optStandard.select();
    form.optIron.select();
    form.BallOpt1.select();
    form.BallOpt2.select();
    EXPECT_EQ(form.shot.Slope1, 0) << "balls replace each other";
    enter(form.txtRange, "200");
    enter(form.txtWind, "12");
    run();
    messages.answers = {Answer::No, Answer::Yes, Answer::Yes};
    form.mnuReset.Click();
    EXPECT_EQ(form.txtWind.text(), "12");
    form.mnuReset.Click(); // irons turn to woods last, and wood 1 replaces the club's defaults
    EXPECT_EQ(form.txtCor.text(), "0.71");
    form.mnuReset.Click();
    EXPECT_EQ(form.txtWind.text() + form.txtCor.text() + form.txtMode.text(), "00.831");
    EXPECT_TRUE(form.optWood.selected() && form.BallOpt4.selected());
    EXPECT_FLOAT_EQ(form.shot.CD1, 0);
    EXPECT_FLOAT_EQ(form.sRange, 200);
}

struct Validators : Modes {};

TEST_F(Validators, AcceptLimitsAndRefuseWhatLiesBeyond) {
    const struct {
        TextBox InputControls::*field;
        const char *text, *message, *after; ///< how the message begins; the text afterwards
    } table[] = {
        {&InputControls::txtRange, "99.99", "The value must between 100 - 500, restore", "300"},
        {&InputControls::txtRange, "wide", "You must input a number, restore", "300"},
        {&InputControls::txtCor, "0.9", "", "0.9"},
        {&InputControls::txtCor, "0.69", "Enter values between 0.7 and 0.9! Try again!", "0.80"},
        {&InputControls::txtCor, "x", "Enter a value between 0.7 and 0.9! Defaults to 0.8", "0.80"},
        {&InputControls::txtHeadSpeed, "1e999", "Enter a head speed", "100"},
        {&InputControls::txtHeadSpeed, "  1.2e2 ", "", "  1.2e2 "},
        {&InputControls::txtWind, "-35", "", "-35"},
        {&InputControls::txtWind, "36", "Enter a value between -35 and 35 mph", "0"},
        {&InputControls::txtWind, "calm", "Enter a value between 0 and 35 mph", "0"},
        {&InputControls::txtRelativeHumidity, "-1", "Enter a value between 0 and 100 % for rel",
         "50"},
        {&InputControls::txtRelativeHumidity, "wet", "Enter a value between 0 and 100 % for Rel",
         "50"},
        {&InputControls::txtLaunchAngle, "55.5", "The comb", "9.5"},
    };
    for (const auto& row : table) {
        ScriptedForm user;
        TextBox& field = user.form.*row.field;
        if (!field.enabled())
            user.form.optLaunch.select();
        user.enter(field, row.text);
        const bool refused = *row.message != '\0';
        ASSERT_EQ(user.messages.texts.size(), refused ? 1U : 0U) << row.text;
        EXPECT_TRUE(!refused || user.messages.texts[0].starts_with(row.message)) << row.message;
        EXPECT_EQ(field.text(), row.after);
        EXPECT_EQ(field.selLength(), field.text().size());
        EXPECT_EQ(user.form.focus.active(), refused ? static_cast<Control*>(&field)
                                                    : static_cast<Control*>(&user.form.Picture1));
    }
    for (const FieldRule& rule : fieldRules()) { // none refuses its own fallback
        (form.*rule.field).setText("?");
        (form.*rule.field).LostFocus();
        (form.*rule.field).LostFocus();
    }
    EXPECT_EQ(messages.texts.size(), fieldRules().size());
}

TEST_F(Validators, EachFieldHasItsVariableAndItsMessage) {
    const std::tuple<TextBox InputControls::*, float ShotInputs::*, float, const char*> table[] = {
        {&InputControls::txtLaunchAngle, &ShotInputs::LaunchAngle, 11, "The combined launch angle"},
        {&InputControls::txtBallSpin, &ShotInputs::RPM, 2100,
         "Enter a value between 0 and 22000 RPM"},
        {&InputControls::txtLaunchSpeed, &ShotInputs::LaunchSpeed, 133,
         "Enter a value between 30 and"},
        {&InputControls::txtHeadSpeed, &ShotInputs::HeadSpeed, 91,
         "Enter a head speed between 50 and"},
        {&InputControls::txtSpeedIncrement, &ShotInputs::SpeedIncrement, 2,
         "Enter a value between 1 an"},
        {&InputControls::txtCor, &ShotInputs::COR, 0.75F,
         "Enter a value between 0.7 and 0.9! Defau"},
        {&InputControls::txtHeadWeight, &ShotInputs::HeadWeight, 201,
         "Enter values between 180 and 320"},
        {&InputControls::txtAttackAngle, &ShotInputs::AttackAngle, 4,
         "Enter a value between -5 and +20"},
        {&InputControls::txtBending, &ShotInputs::Bending, 3,
         "Enter a value between -10 and 10 degrees"},
        {&InputControls::txtLoftAngle, &ShotInputs::LoftAngle, 22,
         "Enter values between 0 and 65 degre"},
        {&InputControls::txtAltitude, &ShotInputs::h, 1200,
         "Enter a value between 0 and 15000 feet"},
        {&InputControls::txtPressure, &ShotInputs::BaroPressure, 28,
         "Enter a value between 25 and 34 in"},
        {&InputControls::txtRelativeHumidity, &ShotInputs::RH, 44,
         "Enter a value between 0 and 100 % f"},
        {&InputControls::txtTemperature, &ShotInputs::Temperature, 66,
         "Enter a value between 20 and 12"},
    };
    for (const auto& [field, variable, value, message] : table) {
        (form.*field).setText(std::to_string(value));
        (form.*field).LostFocus();
    }
    for (const auto& [field, variable, value, message] : table) {
        EXPECT_EQ(form.shot.*variable, value) << message;
        (form.*field).setText("?");
        (form.*field).LostFocus();
        EXPECT_TRUE(messages.texts.back().starts_with(message)) << messages.texts.back();
    }
}

TEST_F(Validators, ARefusedValueReachesNothingUntilTheFallbackPasses) {
    form.optLaunch.select();
    enter(form.txtBallSpin, "2000");
    type(form.txtBallSpin, "-1");
    run(); // refused: nothing flies
    EXPECT_EQ(form.txtRun.text(), "0");
    EXPECT_FLOAT_EQ(form.shot.RPM, 2000);
    run(); // the fallback passes
    EXPECT_FLOAT_EQ(form.Runs[1].RPM, 3200);
    for (const char* range : {"250", "50"}) { // the second is refused
        enter(form.txtRange, range);
        EXPECT_DOUBLE_EQ(form.Picture2.scale().width, 250);
        EXPECT_EQ(curves().size(), 1U);
    }
    EXPECT_FLOAT_EQ(form.sRange, 250);
}

} // namespace
} // namespace parabolt::support
