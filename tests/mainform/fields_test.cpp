#include "mainform/modes.h"
#include "mainform/parameter_handlers.h"
#include "mainform/validators.h"
#include "measured/measured_shot.h"
#include "tests/support/golden.h"
#include "tests/support/scripted_form.h"

#include <cstring>

namespace parabolt::support {
namespace {

struct Modes : testing::Test, ScriptedForm {};

TEST_F(Modes, EnableWhatTheUserGives) {
    OptionButton* const options[] = {&form.optLaunch, &form.optStandard, &form.optManual,
                                     &form.optAuto, &form.optActual};
    // From each mode into each other.
    for (const std::size_t mode : {0U, 1U, 2U, 3U, 4U, 3U, 2U, 1U, 0U, 3U, 1U, 4U, 0U, 4U, 2U}) {
        options[mode]->select();
        for (const auto& row : goldenRows("modes.txt")) {
            std::istringstream names(row.at(0)), states(row.at(1));
            std::string state;
            for (std::size_t column = 0; column <= mode; ++column)
                states >> state;
            for (std::string name; names >> name;)
                EXPECT_EQ(controlOf(form, name).enabled(), state == "on") << name << mode;
        }
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
    form.cmbClubNo.select(4);
    const std::tuple<OptionButton*, float, float, int> balls[] = {{&form.BallOpt1, 0.5F, 0, 1},
                                                                  {&form.BallOpt2, 0, -0.1F, 2},
                                                                  {&form.BallOpt4, 0, 0, 4},
                                                                  {&form.BallOpt3, -0.5F, 0, 3}};
    for (const auto& [ball, slope, lift, type] : balls) { // they replace each other
        ball->select();
        EXPECT_EQ(form.shot.Slope1, slope);
        EXPECT_EQ(form.shot.CD1, lift);
        EXPECT_EQ(form.shot.BallType, type);
    }
    enter(form.txtRange, "200");
    enter(form.txtWind, "12");
    run();
    messages.answers = {Answer::No, Answer::Yes, Answer::Yes};
    form.mnuReset.Click();
    EXPECT_EQ(messages.texts, Texts{"Do you want to replace the current Swing, Club, and "
                                    "Environment parameters?"});
    EXPECT_EQ(form.txtWind.text() + form.cmbClubNo.text(), "125");
    form.mnuReset.Click(); // irons turn to woods last, and wood 1 replaces the club's defaults
    EXPECT_EQ(form.txtCor.text() + form.cmbClubNo.text(), "0.711");
    form.cmbClubNo.select(3);
    form.mnuReset.Click();
    EXPECT_EQ(form.txtWind.text() + form.txtCor.text() + form.txtMode.text(), "00.831");
    EXPECT_TRUE(form.optWood.selected() && form.BallOpt4.selected());
    EXPECT_FLOAT_EQ(form.shot.Slope1, 0);
    EXPECT_EQ(form.cmbClubNo.text() + std::to_string(form.shot.ClubNo), "11");
    EXPECT_FLOAT_EQ(form.sRange, 200);
}

struct Validators : Modes {};

TEST_F(Validators, JudgeEachFieldByItsLimits) {
    const auto rows = goldenRows("fields.txt");
    EXPECT_EQ(rows.size(), fieldRules().size());
    for (const auto& row : rows) {
        SCOPED_TRACE(row.at(0));
        ScriptedForm user;
        auto& field = dynamic_cast<TextBox&>(controlOf(user.form, row.at(0)));
        field.setEnabled(true);
        const auto variable = [&] {
            float value = user.form.sRange;
            const Bytes file = encodeParameters(collectParameters(user.form));
            if (row.at(1) != "plot")
                std::memcpy(&value, &file.at(std::stoul(row.at(1))), sizeof value);
            return value;
        };
        for (const std::string& limit : {row.at(2), row.at(3)}) {
            user.enter(field, limit);
            EXPECT_EQ(variable(), std::stof(limit));
            EXPECT_EQ(field.text(), limit);
        }
        EXPECT_EQ(user.messages.texts, Texts());
        const std::pair<std::string, std::string> refused[] = {
            {std::to_string(std::stod(row.at(2)) - 0.01), row.at(5)},
            {std::to_string(std::stod(row.at(3)) + 0.01), row.at(5)},
            {"12x", row.at(6)},
            {"", row.at(6)}};
        for (const auto& [text, message] : refused) {
            user.messages.texts.clear();
            user.enter(field, text);
            EXPECT_EQ(user.messages.texts, Texts{message});
            EXPECT_EQ(field.text(), row.at(4));
            EXPECT_EQ(field.selLength(), row.at(4).size());
            EXPECT_EQ(user.form.focus.active(), &field);
            EXPECT_EQ(variable(), std::stof(row.at(3))) << "as it was";
        }
        field.KeyUp(keys::kEnter); // the fallback passes
        EXPECT_EQ(variable(), std::stof(row.at(4)));
        EXPECT_EQ(user.messages.texts.size(), 1U);
    }
}

TEST_F(Validators, AcceptWhatIsTakenOfMeasuredShots) {
    for (const LaunchLimit& limit : launchLimits())
        for (const FieldRule& rule : fieldRules())
            if (const auto* input = std::get_if<float ShotInputs::*>(&rule.variable);
                input != nullptr && *input == limit.input) {
                EXPECT_EQ(limit.lowest, rule.lowest) << limit.name;
                EXPECT_EQ(limit.highest, rule.highest) << limit.name;
            }
    EXPECT_EQ(launchLimits().size(), 3U);
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

TEST(ShotEntry, EntersNothingWhereOneValueWouldBeRefused) {
    ScriptedForm user;
    ShotInputs shot = user.form.shot;
    shot.LaunchAngle = 20;
    shot.LaunchSpeed = 272.5F; // a swing can give it, the field doesn't take it
    EXPECT_FALSE(user.main.shotEntry.enterLaunch(shot));
    EXPECT_EQ(user.messages.texts.size(), 1U);
    EXPECT_TRUE(user.form.optManual.selected());
    EXPECT_FLOAT_EQ(user.form.shot.LaunchAngle, 9.5F);
}

} // namespace
} // namespace parabolt::support
