#include "files/file_access.h"
#include "measured/measured_codec.h"
#include "results/result_table.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <bit>
#include <functional>
#include <limits>

namespace parabolt::support {
namespace {

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// A user with some work on the desk, in one of the modes, and a note typed into the table.
struct WorkingUser : ScriptedForm {
    explicit WorkingUser(int mode, const std::string& stateFolder = {})
        : ScriptedForm(stateFolder) {
        const std::array<OptionButton*, 5> modes = {
            &form.optLaunch, &form.optStandard, &form.optManual, &form.optAuto, &form.optActual};
        form.clubs.Irons[3].HeadSpeed = 20; // a validator would refuse it
        form.clubs.Comment = "Tr\u00e4ger \"7\"\r\n";
        modes.at(static_cast<std::size_t>(mode))->select();
        form.optIron.select();
        form.BallOpt2.select();
        enter(form.txtWind, "7.3");
        enter(form.txtRange, "250");
        run(2);
        form.Runs.setTag(1, {"Tr\u00e4ger", false, 2});
        form.Runs.setBase(form.Runs.count());
        main.plot.redraw();
        form.reportCaption = "Tuesday";
        form.windows["carryMap"] = "{}";
        auto content = form.txtResult.content();
        content.back().text.insert(4, "note ");
        content.push_back({"\nred", {255, 0, 0}});
        form.txtResult.edited(content, form.txtResult.text().size() - 150);
        type(form.txtTemperature, "fift"); // and isn't through
    }
    Desk desk() const { return takeDesk(form); }
    void lay(const std::string& file) {
        files.choose(file);
        form.mnuOpenSession.Click();
        main.sessions.actionEnded();
    }
};

TEST(Session, ReadsBackToTheSameBits) {
    using Limits = std::numeric_limits<float>;
    Session session{WorkingUser(2).desk(), "2026-11-23 10:32"};
    const std::vector<float> numbers = {-0.0F,
                                        0.1F,
                                        Limits::denorm_min(),
                                        Limits::max(),
                                        -29.92F,
                                        Limits::infinity(),
                                        -Limits::infinity(),
                                        Limits::quiet_NaN()};
    for (const float number : numbers)
        session.desk.runs.front().Path.push_back({number, -number});
    session.desk.shot.WindSpeed = -std::numeric_limits<double>::infinity();
    session.desk.shot.COR = std::bit_cast<float>(0xFFC12345U);
    const auto read = decodeSession(encodeSession(session));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->time, session.time);
    Desk desk = read->desk;
    EXPECT_EQ(std::bit_cast<std::uint32_t>(desk.shot.COR), 0xFFC12345U);
    auto& path = desk.runs.front().Path;
    auto& before = session.desk.runs.front().Path;
    ASSERT_EQ(path.size(), before.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        EXPECT_EQ(std::bit_cast<std::uint32_t>(path[i].x),
                  std::bit_cast<std::uint32_t>(before[i].x));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(path[i].y),
                  std::bit_cast<std::uint32_t>(before[i].y));
    }
    path.pop_back(); // what isn't a number equals nothing
    before.pop_back();
    desk.shot.COR = session.desk.shot.COR = 0;
    EXPECT_EQ(desk, session.desk);
}

TEST(Session, OfAWriterThatKnewNoNamesHasThemAsAtFirst) {
    Session session{WorkingUser(2).desk(), "2026-11-23 10:32"};
    const std::string text = replaced(encodeSession(session), "\"base\":2,", "");
    const std::size_t sets = text.find("\"dataSets\"");
    std::string tail = text.substr(sets);
    for (const char* member :
         {"\"ball\":2,", "\"name\":\"Tr\u00e4ger\",", "\"ball\":2,", "\"name\":\"\","})
        tail = replaced(tail, member, "");
    for (const char* member : {",\"ticked\":false", ",\"ticked\":true"})
        tail = replaced(tail, member, "");
    const auto read = decodeSession(text.substr(0, sets) + tail);
    ASSERT_TRUE(read);
    session.desk.tags = {2, DataSetTag()};
    session.desk.base = 1;
    EXPECT_EQ(read->desk, session.desk);
}

TEST(Session, GoesOnAsIfItHadNeverBeenClosed) {
    const TemporaryFolder folder;
    for (int mode = 0; mode <= 4; ++mode) {
        WorkingUser stays(mode);
        const std::string name = folder.path("work" + std::to_string(mode) + ".pbs");
        stays.files.choose(name);
        stays.form.mnuSaveSession.Click();
        EXPECT_EQ(stays.files.suggestedName, "Session 2026-11-23.pbs");
        EXPECT_EQ(stays.preferences.lastPath(), folder.path());
        const Desk saved = stays.desk();

        WorkingUser comesBack((mode + 1) % 5);
        comesBack.messages.texts.clear();
        comesBack.lay(name);
        EXPECT_EQ(comesBack.messages.texts, Texts()) << mode;
        EXPECT_EQ(comesBack.desk(), saved) << mode;
        stays.messages.texts.clear();
        for (WorkingUser* user : {&stays, &comesBack}) {
            user->messages.answers = {Answer::Yes};
            user->run(); // the unfinished field is judged now
            user->run(2);
            user->form.cmbClubNo.select(2);
            user->run();
            user->form.mnuStyLaunch.Click();
            user->messages.answers.clear();
        }
        EXPECT_EQ(comesBack.desk(), stays.desk()) << mode;
        EXPECT_EQ(comesBack.messages.texts, stays.messages.texts) << mode;
        EXPECT_EQ(comesBack.form.Picture1.drawings(), stays.form.Picture1.drawings()) << mode;
        EXPECT_EQ(comesBack.form.Picture2.drawings(), stays.form.Picture2.drawings()) << mode;
        EXPECT_EQ(comesBack.form.caption, stays.form.caption);
        for (const Control* control : stays.form.controls.all())
            EXPECT_EQ(control->enabled(), controlOf(comesBack.form, control->name()).enabled())
                << control->name() << mode;
    }
}

TEST(Session, IsRefusedWithAWordAndChangesNothing) {
    const TemporaryFolder folder;
    WorkingUser user(2);
    const std::string good = encodeSession({user.desk(), ""});
    const Desk before = user.desk();
    const auto refusal = [&](const std::string& text) {
        putContent(folder.path("x.pbs"), text);
        user.messages.texts.clear();
        user.lay(folder.path("x.pbs"));
        EXPECT_EQ(user.desk(), before) << text.substr(0, 200);
        return user.messages.texts.empty() ? "" : user.messages.texts.back();
    };
    EXPECT_EQ(refusal(replaced(good, "{", "{\"names\":[1,{}],")), "") << "a later member";
    const std::pair<const char*, const char*> broken[] = {
        {"{", ""},
        {"}]", "}"},
        {"\"Parabolt session\"", "\"Parabolt sessions\""},
        {"\"version\":1", "\"version\":0"},
        {"\"version\":1", "\"version\":\"1\""},
        {"\"mode\":2", "\"mode\":5"},
        {"\"mode\":2", "\"mode\":2.5"},
        {"\"club\":0", "\"club\":12"},
        {"\"ball\":2", "\"ball\":0"},
        {"\"caret\":", "\"caret\":-"},
        {"\"Path\":[", "\"Path\":[1,"},
        {"\"Path\":[", "\"Path\":[null,1,"},
        {"\"Path\":[", "\"Path\":[\"7fc0000x\",1,"},
        {"\"Path\":[", "\"Path\":[1e999,1,"},
        {"\"Path\":[", "\"Path\":[],\"Paths\":["},
        {"\"CurveColor\":[", "\"CurveColor\":[256,"},
        {"\"ClubNo\":1,", "\"ClubNo\":40000,"},
        {"\"txtWind\":\"7.3\"", "\"txtWind\":7.3"},
        {"\"reportCaption\"", "\"caption\""},
        {"\"Woods\":[", "\"Woods\":[{},"},
    };
    for (const auto& [from, to] : broken)
        EXPECT_EQ(refusal(replaced(good, from, to)), kFileMismatch) << from << " " << to;
    const std::string newer = refusal(replaced(good, "\"version\":1", "\"version\":2"));
    EXPECT_NE(newer.find("newer version"), std::string::npos) << newer;
    user.lay(folder.path("nowhere.pbs"));
    EXPECT_EQ(user.messages.texts.back(), kFileMismatch);
    EXPECT_EQ(folder.entries(), 1) << "a file that isn't there doesn't come into being";
    putContent(folder.path("mine.pbs"), "kept");
    user.files.choose(folder.path("mine"));
    user.messages.answers = {Answer::No};
    user.form.mnuSaveSession.Click();
    EXPECT_EQ(contentOf(folder.path("mine.pbs")), "kept");
}

/// One whose way back begins here.
struct WayBackUser : WorkingUser {
    WayBackUser() : WorkingUser(0) {
        enter(form.txtTemperature, "55");
        main.sessions.begin();
    }
    void act(const std::function<void()>& action) {
        action();
        main.sessions.actionEnded();
    }
    void goBack() {
        act([this] { form.mnuGoBack.Click(); });
    }
};
struct WayBackTest : testing::Test, WayBackUser {};

TEST_F(WayBackTest, LeadsBackFromEachWipeAndForthAgain) {
    const TemporaryFolder folder;
    putContent(folder.path("zero.opt"), std::string(16, '\0') + '\1' + std::string(49, '\0'));
    putContent(folder.path("other.pbs"), encodeSession({WorkingUser(4).desk(), ""}));
    using User = WayBackUser;
    const auto fill = [](User& user, Answer answer) {
        while (user.form.Runs.count() < RunBook::kMost)
            user.act([&] { user.run(); });
        user.messages.answers = {answer};
    };
    const auto note = [](User& user) {
        user.press(user.form.Command2);
        user.form.txtResult.edited({{"a note", kBlack}}, 6);
        user.main.plot.DrawPlotFrame();
    };
    const std::tuple<const char*, std::function<void(User&)>, std::function<void(User&)>> wipes[] =
        {
            {"Clear", {}, [](User& user) { user.press(user.form.Command2); }},
            {"Reset", {}, [](User& user) { user.form.mnuReset.Click(); }},
            {"Open Param.", [&](User& user) { user.files.choose(folder.path("zero.opt")); },
             [](User& user) { user.form.mnuOpen.Click(); }},
            {"Open Session", [&](User& user) { user.files.choose(folder.path("other.pbs")); },
             [](User& user) { user.form.mnuOpenSession.Click(); }},
            {"the full buffer", [&](User& user) { fill(user, Answer::No); },
             [](User& user) { user.run(); }},
            {"a study", {}, [](User& user) { user.form.mnuStySpin.Click(); }},
            {"a mode that loads a club", {}, [](User& user) { user.form.optStandard.select(); }},
            {"Auto", [](User& user) { user.form.optAuto.select(); },
             [](User& user) { user.run(); }},
            {"a club type", {}, [](User& user) { user.form.optWood.select(); }},
            {"a club", {}, [](User& user) { user.form.cmbClubNo.select(4); }},
            {"a stray key",
             {},
             [](User& user) {
                 user.form.txtResult.edited({{"x", kBlack}}, 1);
             }},
            {"the first run over a note", note, [](User& user) { user.run(); }},
            {"Auto over a note",
             [&](User& user) {
                 user.form.optAuto.select();
                 note(user);
             },
             [](User& user) { user.run(); }},
            {"Rewrite Table", {}, [](User& user) { user.form.mnuRewriteTable.Click(); }},
        };
    for (const auto& [about, prepare, wipe] : wipes) {
        WayBackUser user;
        user.messages.answers = {Answer::Yes};
        if (prepare)
            prepare(user);
        user.main.sessions.begin();
        const Desk before = user.desk();
        const auto curves = user.curves();
        const std::string status = user.form.StatusBar1.caption();
        user.act([&, &act = wipe] { act(user); });
        const Desk after = user.desk();
        EXPECT_NE(after, before) << about;
        user.goBack();
        EXPECT_EQ(user.desk(), before) << about;
        EXPECT_EQ(user.curves(), curves) << about;
        EXPECT_EQ(user.form.StatusBar1.caption(), status) << about;
        user.goBack();
        EXPECT_EQ(user.desk(), after) << about;
    }
}

TEST_F(WayBackTest, LosesNoNoteThatWasJustTyped) {
    const auto type = [this](const std::string& text) {
        act([&] { form.txtResult.edited({{text, kBlack}}, text.size()); });
    };
    const std::string note = "n\u00f6te";
    for (const std::string& text : {note.substr(0, 1), note.substr(0, 3), note.substr(0, 4), note})
        type(text);
    type("x"); // over all that was selected
    goBack();
    EXPECT_EQ(form.txtResult.text(), note);
    goBack();
    EXPECT_EQ(form.txtResult.text(), "n") << "the letters behind it count as one";
    type(note + "s");
    act([this] { form.optStandard.select(); });
    goBack();
    EXPECT_EQ(form.txtResult.text(), note + "s");
    EXPECT_TRUE(form.optLaunch.selected());
    for (const char* text : {"four", "fou", "fo", "f"})
        type(text);
    goBack();
    EXPECT_EQ(form.txtResult.text(), "four") << "so do letters taken away one by one";
}

TEST_F(WayBackTest, KeepsTenWipesWhateverSmallChangesLieBetween) {
    EXPECT_FALSE(form.mnuGoBack.enabled());
    for (int i = 0; i < 10; ++i) {
        enter(form.txtWind, std::to_string(i));
        act([this] { form.cmbClubNo.select(form.cmbClubNo.listIndex() == 2 ? 3 : 2); });
        messages.answers = {Answer::Yes};
        act([this] { form.mnuReset.Click(); });
    }
    for (int i = 9; i >= 0; --i)
        for (int both = 0; both < 2; ++both) {
            goBack();
            EXPECT_EQ(form.txtWind.text(), std::to_string(i));
        }
    enter(form.txtWind, "33");
    act([this] { form.cmbClubNo.select(3); });
    const std::string lead = form.mnuGoBack.caption();
    time = "2026-11-23 11:45";
    for (const int club : {4, 5, 6})
        act([this, club] { form.cmbClubNo.select(club); });
    EXPECT_EQ(form.mnuGoBack.caption(), lead) << "a string of small changes";
    enter(form.txtHeadSpeed, "88");
    act([this] { form.optStandard.select(); });
    EXPECT_EQ(form.mnuGoBack.caption(), "Go &Back: 2 data sets, 11:45") << "a new string";
    goBack();
    EXPECT_EQ(form.txtHeadSpeed.text(), "88");
    EXPECT_EQ(form.cmbClubNo.listIndex(), 6);
}

TEST(RewriteTable, WritesTheRowsOfAllDataSetsInOrder) {
    WorkingUser user(0);
    ScriptedForm clean;
    user.form.txtResult.setCaret(0);
    user.type(user.form.txtTemperature, "50");
    user.form.cmbClubNo.select(8);
    user.run(2);
    user.form.mnuRewriteTable.Click();
    layDesk(clean.form, user.desk());
    WriteResultHeader(clean.form.txtResult);
    const auto records = user.form.Runs.records();
    for (std::size_t i = 1; i < records.size(); ++i)
        WriteResultRow(clean.form.txtResult, records[i], i < 3 ? 1 : 9, std::to_string(i));
    EXPECT_EQ(user.form.txtResult.content(), clean.form.txtResult.content());
    ASSERT_EQ(user.rows().size(), 4U);
}

TEST(Recovery, AsksOnceForTheDeskOfAProgramThatDidNotEndProperly) {
    const TemporaryFolder folder;
    Desk crashed;
    {
        WorkingUser user(0, folder.path("state"));
        user.main.sessions.actionEnded();
        crashed = user.desk();
        ScriptedForm beside(folder.path("state"));
        beside.main.sessions.recover(); // whose program lives
        EXPECT_EQ(beside.messages.texts, Texts());
    }
    {
        const FailingDisk full(1000);
        ScriptedForm never(folder.path("state"));
        never.messages.answers = {Answer::Yes};
        never.main.sessions.recover();
        EXPECT_EQ(takeDesk(never.form), crashed);
    } // whose desk was never safe: the next start asks for the old one
    for (const auto& [answer, day, when] : {std::tuple{Answer::Yes, "2026-11-23", "10:32"},
                                            {Answer::No, "2026-11-24", "2026-11-23 10:32"}}) {
        ScriptedForm next(folder.path("state"));
        ScriptedForm beside(folder.path("state"));
        next.time = day + std::string(" 10:32");
        next.messages.answers = {answer};
        next.main.sessions.recover();
        EXPECT_EQ(next.messages.texts,
                  Texts{std::string("Parabolt did not end properly. Reopen 2 data sets of ") +
                        when + "?"});
        EXPECT_EQ(takeDesk(next.form) == crashed, answer == Answer::Yes);
        beside.main.sessions.recover();
        EXPECT_EQ(beside.messages.texts, Texts()) << "another has it";
    } // the first has crashed again
    ScriptedForm after(folder.path("state"));
    after.main.sessions.recover();
    EXPECT_EQ(after.messages.texts, Texts()) << "the No is remembered";
    after.form.mnuReopenSession.Click();
    EXPECT_EQ(takeDesk(after.form), crashed) << "and nothing is lost by it";
}

TEST(Recovery, AsksForTheNewestOfSeveralDesks) {
    const TemporaryFolder folder;
    {
        ScriptedForm users[] = {ScriptedForm(folder.path("state")),
                                ScriptedForm(folder.path("state")),
                                ScriptedForm(folder.path("state"))};
        for (const auto& [user, runs] : {std::pair{1, 3}, {2, 1}, {0, 2}}) {
            users[user].run(runs);
            users[user].main.sessions.actionEnded();
            EXPECT_TRUE(users[user].main.sessions.isSafe());
        }
    }
    for (const char* desk : {"2 data sets", "1 data set", "3 data sets"}) {
        ScriptedForm next(folder.path("state"));
        next.messages.answers = {Answer::No};
        next.main.sessions.recover();
        EXPECT_EQ(next.messages.texts, Texts{"Parabolt did not end properly. Reopen " +
                                             std::string(desk) + " of 10:32?"});
    }
}

TEST(Recovery, AnOrderlyEndLeavesTheDeskAndNoEmptyOneReplacesIt) {
    const TemporaryFolder folder;
    const auto visit = [&](const std::function<void(ScriptedForm&)>& use) {
        ScriptedForm user(folder.path("state"));
        user.main.sessions.recover();
        EXPECT_EQ(user.messages.texts, Texts());
        use(user);
        user.main.sessions.actionEnded();
        user.main.sessions.finish();
    };
    visit([](ScriptedForm&) {}); // leaves nothing
    visit([](ScriptedForm& user) {
        user.form.mnuReopenSession.Click();
        EXPECT_EQ(user.messages.texts.size(), 1U) << "there is none yet";
        user.enter(user.form.txtWind, "5");
    });
    visit([](ScriptedForm& user) {
        user.form.mnuReopenSession.Click();
        EXPECT_EQ(user.form.txtWind.text(), "5");
        user.run(3);
    });
    visit([](ScriptedForm&) {});
    visit([](ScriptedForm& user) { user.enter(user.form.txtWind, "6"); });
    const auto reopens = [&](int runs) {
        visit([runs](ScriptedForm& user) {
            user.form.mnuReopenSession.Click();
            EXPECT_EQ(user.form.Runs.count(), runs);
        });
    };
    reopens(3);
    visit([](ScriptedForm& user) {
        for (int i = 0; i < 4; ++i) { // the later ones wait while the first is written
            user.run();
            user.main.sessions.actionEnded();
        }
        user.messages.answers = {Answer::Yes};
        user.press(user.form.Command2);
        user.messages.texts.clear();
    });
    reopens(4);
    EXPECT_EQ(decodeSession(contentOf(folder.path("state/previous.pbs")))->desk.runs.size(), 4U)
        << "each visit leaves its desk, and the one before stays";
    visit([](ScriptedForm& user) {
        user.run(RunBook::kMost);
        user.main.sessions.actionEnded();
        user.messages.answers = {Answer::No};
        user.run(1);
        user.messages.texts.clear();
    });
    EXPECT_EQ(decodeSession(contentOf(folder.path("state/previous.pbs")))->desk.runs.size(), 24U)
        << "No to the full buffer wipes, and flies, in one action";
    visit([](ScriptedForm& user) {
        MeasuredSession measured;
        measured.entries.resize(2, {.shot = {1, "7i", 120, 16, 6000, {}, {}}});
        user.form.windows[kMeasuredKey] = encodeMeasured(measured);
        user.form.Wiping();
        EXPECT_EQ(user.form.mnuGoBack.caption(), "Go &Back: 2 measured shots, 10:32");
    });
    reopens(0); // measured shots are work too
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path("state")), {}), 2);
}

TEST(Recovery, TellsAFullDiskAndAFolderThatCannotBeWritten) {
    const TemporaryFolder folder;
    putContent(folder.path("file"), "");
    std::string trouble;
    const auto told = [&](const std::string& why) { trouble = why; };
    const Session work{WorkingUser(0).desk(), "2026-11-23 10:32"};
    {
        Recovery nowhere(folder.path("file/state"), told);
        nowhere.keep(work);
        EXPECT_FALSE(nowhere.flush());
        EXPECT_FALSE(trouble.empty());
    }
    Recovery recovery(folder.path("state"), told);
    recovery.keep(work);
    EXPECT_TRUE(recovery.flush());
    EXPECT_TRUE(trouble.empty());
    EXPECT_EQ(std::filesystem::status(folder.path("state")).permissions(),
              std::filesystem::perms::owner_all);
    {
        const FailingDisk full(1000);
        recovery.keep({{}, ""});
        EXPECT_FALSE(recovery.flush());
        EXPECT_FALSE(trouble.empty());
    }
    std::filesystem::remove_all(folder.path("state"));
    recovery.keep(work);
    EXPECT_TRUE(recovery.flush()) << "the folder is made anew";
    {
        const FailingDisk room(10000); // for the empty desk alone
        recovery.keep({{}, ""});
        EXPECT_TRUE(recovery.flush());
        EXPECT_EQ(decodeSession(*recovery.last())->desk, work.desk);
    }
    const FailingDisk full(1000);
    recovery.finish({WorkingUser(1).desk(), ""});
    EXPECT_EQ(decodeSession(*recovery.last())->desk, work.desk) << "the last that could be kept";
    EXPECT_FALSE(Recovery(folder.path("state"), told).abandoned()) << "it was an orderly end";
}

} // namespace
} // namespace parabolt::support
