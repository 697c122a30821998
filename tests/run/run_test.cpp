#include "tests/support/golden.h"
#include "tests/support/scripted_form.h"
#include "tests/support/shots.h"

#include <cmath>

namespace parabolt::support {
namespace {

struct RunDriver : testing::Test, ScriptedForm {};

TEST_F(RunDriver, AFullBufferAsksBeforeItLosesAnything) {
    run(24);
    EXPECT_TRUE(messages.texts.empty());
    EXPECT_EQ(rows().size(), 24U);
    const std::string table = form.txtResult.text();
    messages.answers = {Answer::Yes, Answer::No};
    files.cancel("/folder");
    run();
    EXPECT_EQ(messages.texts.back(), "The data buffer is full,\r\nSave data to file before "
                                     "clearing the result window?");
    EXPECT_EQ(files.shows.size(), 1U);
    EXPECT_EQ(form.txtRun.text(), "24");
    EXPECT_EQ(form.txtResult.text(), table);
    run();
    EXPECT_EQ(form.txtRun.text(), "1");
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(curves(), (std::vector<Rgb>{{255, 0, 0}}));
    const auto legend = shapesOf<DrawnText>(form.Picture1);
    EXPECT_EQ(legend.back().text, "Club 1/1");
    EXPECT_EQ(form.txtResult.text().substr(0, 18), table.substr(0, 18)) << "headings again";
}

TEST_F(RunDriver, AFullBufferAsksInAutoToo) {
    run(24);
    form.optAuto.select();
    messages.answers = {Answer::Yes, Answer::No};
    files.cancel("/folder");
    run();
    EXPECT_EQ(form.txtRun.text(), "24");
    run();
    EXPECT_EQ(form.txtRun.text(), "7");
    EXPECT_EQ(messages.texts.size(), 2U);
}

TEST_F(RunDriver, GivesTwelveColoursInTurn) {
    std::vector<Rgb> colours;
    for (const auto& row : goldenRows("curve_colours.txt")) {
        const auto part = [&](std::size_t i) {
            return static_cast<std::uint8_t>(std::stoi(row.at(i)));
        };
        colours.push_back({part(0), part(1), part(2)});
    }
    ASSERT_EQ(colours.size(), 13U);
    std::vector<Rgb> rowColours;
    form.txtResult.onInsert = [&](std::size_t, const std::string&, Rgb colour) {
        rowColours.push_back(colour);
    };
    for (std::size_t i = 0; i < colours.size(); ++i) {
        enter(form.txtCor, std::to_string(0.7 + 0.01 * static_cast<double>(i)));
        run(); // another curve than before
    }
    EXPECT_EQ(curves(), colours);
    EXPECT_EQ(rowColours.front(), kBlack) << "the headings";
    EXPECT_EQ(std::vector<Rgb>(rowColours.begin() + 1, rowColours.end()), colours);
}

TEST_F(RunDriver, ClearAsksAndKeepsTheScale) {
    enter(form.txtRange, "200");
    run(3);
    EXPECT_EQ(curves(), (std::vector<Rgb>{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}}));
    messages.answers = {Answer::No, Answer::Yes};
    press(form.Command2);
    EXPECT_EQ(rows().size(), 3U);
    press(form.Command2);
    EXPECT_EQ(messages.texts.back(), "This will erase all the data now, are you sure?");
    EXPECT_EQ(form.txtRun.text(), "0");
    EXPECT_EQ(rows().size() + curves().size(), 0U);
    for (const auto& text : shapesOf<DrawnText>(form.Picture1))
        EXPECT_FALSE(text.text.starts_with("Club")) << "an old legend";
    EXPECT_EQ(form.Runs.count(), 0);
    EXPECT_FLOAT_EQ(form.sRange, 200);
}

TEST_F(RunDriver, AShotThatFailsIsTold) {
    run();
    for (float ShotInputs::*input : {&ShotInputs::h, &ShotInputs::HeadWeight}) {
        const float before = std::exchange(form.shot.*input, input == &ShotInputs::h ? 200000 : 0);
        run(); // without air, and without a launch
        form.shot.*input = before;
        EXPECT_EQ(form.Runs.count(), 1);
    }
    form.optLaunch.select();
    EXPECT_NEAR(form.shot.LaunchSpeed, 148.4, 0.05) << "a launch that failed is not taken";
    form.shot.RPM = -100; // only a file brings that
    run();
    form.shot.RPM = 1e25F; // flies, and its roll is beyond all numbers
    run();
    EXPECT_EQ(messages.texts.size(), 4U);
    EXPECT_EQ(form.txtRun.text(), "3");
    for (const std::string& text : messages.texts)
        EXPECT_FALSE(text.empty());
    ASSERT_EQ(form.Runs.count(), 3);
    EXPECT_EQ(form.Runs[2].Path.size(), 1U) << "it stays as far as it came";
    EXPECT_GT(form.Runs[3].Path.size(), 1U);
    EXPECT_EQ(rows().at(1).substr(0, 24), "  I-1/2   LM   .00     0");
    EXPECT_EQ(rows().at(2).substr(0, 24), "  I-1/3   LM   .00     0");
}

struct Studies : RunDriver {};

TEST_F(Studies, FindWhatCarriesFurthest) {
    std::vector<bool> shows;
    main.frmProgress.onShow = [&](bool now) { shows.push_back(now); };
    std::string tried;
    std::string bar;
    TextBox* swept = &form.txtLaunchAngle;
    events.meanwhile = [&] {
        if (events.yields % 10 != 0)
            return;
        tried += swept->text() + " ";
        bar += std::to_string(main.frmProgress.ProgressBar1.value()) + " ";
        EXPECT_EQ(form.Timer1.interval(), swept == &form.txtLaunchAngle ? 20 : 10);
    };
    form.mnuStyLaunch.Click();
    EXPECT_EQ(std::exchange(tried, ""), "2 3 4 5 6 7 8 9 10 11 12 13 14 ");
    EXPECT_EQ(bar, "1 2 3 4 5 6 7 8 9 10 0 1 2 ");
    EXPECT_EQ(form.txtLaunchAngle.text(), "14");
    EXPECT_TRUE(form.optLaunch.selected());
    for (const float worse : {13.0F, 15.0F})
        EXPECT_GT(form.Runs[1].CarryDist, flightOf(mildShot(144, worse, 3200)).record.CarryDist);
    EXPECT_EQ(events.yields, 13 * 10); // 2 to 14 degrees, ten ticks each
    EXPECT_EQ(shows, (std::vector<bool>{true, false}));
    swept = &form.txtBallSpin;
    form.mnuStySpin.Click(); // goes on from the first
    EXPECT_TRUE(tried.starts_with("0 100 200 300 ")) << tried;
    EXPECT_TRUE(tried.ends_with(" " + form.txtBallSpin.text() + " ")) << tried;
    EXPECT_GT(form.Runs[2].CarryDist, form.Runs[1].CarryDist);
    EXPECT_EQ(rows().size(), 2U);
    form.shot.LaunchSpeed = 0; // equal carries don't stop the climb
    form.mnuStySpin.Click();
    EXPECT_EQ(form.txtBallSpin.text(), "21900");
    swept = &form.txtLaunchAngle;
    form.mnuStyLaunch.Click();
    EXPECT_EQ(form.txtLaunchAngle.text(), "54");
}

TEST_F(Studies, EndWithoutARunWhereTheyCannotFinish) {
    form.shot.h = 200000;
    form.mnuStySpin.Click();
    EXPECT_EQ(messages.texts.size(), 1U) << "without air there is one message";
    form.shot.h = 0;
    events.meanwhile = [&] {
        if (events.yields == 35)
            main.pause.stop();
    };
    form.mnuStyLaunch.Click();
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(form.txtLaunchAngle.text(), std::to_string(std::lround(form.shot.LaunchAngle)));
    EXPECT_TRUE(form.Command1.enabled());
    form.mnuStyLaunch.Click(); // the next one isn't stopped
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(Studies, HoldBackWhatWouldDisturbThemAndLetGo) {
    form.focus.give(form.txtHeadSpeed);
    events.meanwhile = [&] {
        for (const Control* held : std::initializer_list<const Control*>{
                 &form.Command1, &form.Command2, &form.mnuOpen, &form.mnuDefault, &form.mnuReset,
                 &form.mnuStySpin, &form.mnuPrint, &form.optManual, &form.txtLaunchAngle,
                 &form.txtWind, &form.cmbClubNo})
            ASSERT_FALSE(held->enabled()) << held->name();
        ASSERT_TRUE(form.mnuExit.enabled() && form.txtResult.enabled());
    };
    form.mnuStyLaunch.Click();
    EXPECT_GT(events.yields, 0);
    EXPECT_TRUE(form.Command1.enabled() && form.txtWind.enabled() && form.mnuDefault.enabled());
    EXPECT_FALSE(form.txtHeadSpeed.enabled()); // the mode Launch has it so
}

TEST(FillInBatch, ShootsAWholeSet) {
    // The step, club and head speed of each shot; what speed, loft and weight show afterwards.
    const std::tuple<bool, bool, const char*, const char*, const char*> table[] = {
        {true, false, "1", "1:100 2:99 3:98 4:97 5:96 6:95 7:94 8:93 9:92 10:91 11:90 12:89 ",
         "88 56 298"},
        {false, false, "3", "1:100 2:97 3:94 4:91 5:88 7:85 9:82 ", "79 24 233"},
        {false, true, "1", "1:100 2:99 3:98 4:97 5:96 7:94 9:92 ", "92 24 233"}};
    for (const auto& [iron, fillIn, increment, expected, fields] : table) {
        ScriptedForm user;
        user.run();
        user.form.optAuto.select();
        (iron ? user.form.optIron : user.form.optWood).select();
        user.form.chkBatch.setChecked(fillIn);
        user.enter(user.form.txtSpeedIncrement, increment);
        user.run();
        std::string shots;
        for (int i = 1; i <= user.form.Runs.count(); ++i) {
            const RunRecord& run = user.form.Runs[i];
            shots +=
                std::to_string(run.ClubNo) + ":" + std::to_string(std::lround(run.HeadSpeed)) + " ";
            EXPECT_EQ(run.Mode, 3);
            EXPECT_EQ(run.LoftAngle, playableClub(user.form.clubs, iron, run.ClubNo)->LoftAngle);
            EXPECT_TRUE(fillIn || run.COR == 0.83F) << "the field's, and not the club's";
        }
        EXPECT_EQ(shots, expected);
        EXPECT_EQ(user.form.txtHeadSpeed.text() + " " + user.form.txtLoftAngle.text() + " " +
                      user.form.txtHeadWeight.text(),
                  fields);
        EXPECT_EQ(user.form.focus.active(), &user.form.Command1);
    }
}

TEST(FillInBatch, FliesWhatTheClubsFlySingly) {
    ScriptedForm batch;
    batch.form.clubs.Woods[3].AttackAngle = -2;
    batch.form.clubs.Woods[4].Bending = 1;
    batch.form.clubs.Woods[9] = {25, 234, 93, 0.81F, -1.5F, 0.5F};
    batch.form.optAuto.select();
    batch.form.chkBatch.setChecked(true);
    batch.run();
    ScriptedForm single;
    single.form.clubs = batch.form.clubs;
    single.form.optStandard.select();
    for (int club = 0; club < 7; ++club) {
        single.form.cmbClubNo.select(club);
        single.run();
        EXPECT_EQ(single.form.Runs[club + 1].Path, batch.form.Runs[club + 1].Path);
    }
    for (Control* control : single.form.controls.all()) // and leave the same in the fields
        if (const auto* field = dynamic_cast<TextBox*>(control); field && field->visible()) {
            const auto& same = dynamic_cast<TextBox&>(controlOf(batch.form, field->name()));
            EXPECT_EQ(same.text(), field->text()) << field->name();
        }
}

TEST(FillInBatch, WritesARowBehindItsPauseAndStopsAfterTheShotInHand) {
    ScriptedForm user;
    user.form.Timer1.setInterval(20); // as a study leaves it
    user.form.optAuto.select();
    std::vector<std::size_t> rows;
    user.events.meanwhile = [&] {
        if (user.events.yields % 10 == 1)
            rows.push_back(user.rows().size());
        user.form.focus.give(user.form.txtResult);
        if (user.events.yields == 25) // in the third club's pause
            user.main.pause.stop();
    };
    user.run();
    EXPECT_EQ(rows, (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(user.form.Timer1.interval(), 10);
    EXPECT_EQ(user.rows().size(), 3U);
    EXPECT_TRUE(user.form.Command1.enabled());
    EXPECT_EQ(user.form.focus.active(), &user.form.txtResult) << "where the user has gone";
}

} // namespace
} // namespace parabolt::support
