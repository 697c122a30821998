#include "maps/map_words.h"
#include "qt/main_window.h"
#include "qt/map_view.h"
#include "qt/map_window.h"
#include "qt/text.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

/// The map beside the main form, both in real windows.
struct MapWindowTest : testing::Test {
    MapWindowTest() {
        user.main.showCarryMap = [this] { map.show(); };
        main.show();
        main.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
        QTest::keyClick(&main, Qt::Key_M, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&map));
        map.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&map));
    }

    template <class Widget>
    Widget* find(const char* name) {
        auto* widget = map.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    QString text(const char* label) { return find<QLabel>(label)->text(); }
    bool waitForSummary(const char* part) {
        return QTest::qWaitFor([&] { return text("mapSummary").contains(part); }, 60000);
    }
    void choose(const char* box, int index) {
        auto* combo = find<QComboBox>(box);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
    void press(int key) { QTest::keyClick(view, static_cast<Qt::Key>(key)); }

    ScriptedForm user;
    FormServices services{user.messages, user.files,  user.preferences,
                          user.desktop,  user.events, "/program"};
    MainWindow main{user.main};
    MapWindow map{user.main, services};
    MapView* view = find<MapView>("mapView");
    MainForm& form = user.form;
};

TEST_F(MapWindowTest, FollowsWhatTheFormAccepts) {
    ASSERT_TRUE(waitForSummary("11 to 14 degrees lose less than 1 yard"));
    user.enter(form.txtHeadSpeed, "80");
    EXPECT_TRUE(waitForSummary("swing of 80.0 mph"));
    user.type(form.txtHeadSpeed, "90"); // not accepted yet
    const QString before = text("mapSummary");
    form.shot.h = 5000;
    ASSERT_TRUE(QTest::qWaitFor([&] { return text("mapSummary") != before; }));
    EXPECT_TRUE(text("mapSummary").contains("80.0"));
    form.txtHeadSpeed.KeyUp(keys::kEnter);
    EXPECT_TRUE(waitForSummary("swing of 90.0 mph"));
    map.close();
    user.enter(form.txtHeadSpeed, "70");
    map.show();
    EXPECT_TRUE(waitForSummary("swing of 70.0 mph"));
    EXPECT_GT(find<QTableView>("mapSteps")->model()->rowCount(), 5);
}

TEST_F(MapWindowTest, ComesBackWithTheDesk) {
    choose("mapKind", 1);
    choose("mapOutcome", 2);
    find<QDoubleSpinBox>("mapUpLast")->setValue(20.5);
    const Desk desk = takeDesk(form);
    choose("mapKind", 0);
    choose("mapOutcome", 0);
    find<QDoubleSpinBox>("mapUpLast")->setValue(31);
    layDesk(form, desk);
    EXPECT_TRUE(QTest::qWaitFor([&] { return find<QComboBox>("mapKind")->currentIndex() == 1; }));
    EXPECT_EQ(find<QComboBox>("mapOutcome")->currentIndex(), 2);
    EXPECT_EQ(find<QDoubleSpinBox>("mapUpLast")->value(), 20.5);
    form.windows["carryMap"] = R"({"kind":"swing","shown":7,"swing":{"up":[0,1e999,"x"]}})";
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return find<QComboBox>("mapOutcome")->currentIndex() == 0; }));
    QTest::keyClick(&map, Qt::Key_F1);
    EXPECT_EQ(user.desktop.opened, Texts{"map.html"});
}

TEST_F(MapWindowTest, TakesAPointIntoTheFormAndRunsIt) {
    ASSERT_TRUE(waitForSummary("yd of carry"));
    press(Qt::Key_Up); // from the present setting
    const QPoint middle = view->rect().center();
    QTest::mouseClick(view, Qt::LeftButton, {}, middle);
    EXPECT_TRUE(form.optLaunch.selected());
    EXPECT_NEAR(form.shot.RPM, 3300, 300);
    EXPECT_NEAR(form.shot.LaunchAngle, 15, 2);
    EXPECT_NEAR(form.shot.LaunchSpeed, 148.4, 0.05) << "what the swing gives";
    EXPECT_EQ(form.txtBallSpin.text(), fromQt(QString::number(double{form.shot.RPM})));
    EXPECT_TRUE(
        text("mapReadout").contains(toQt(words(acrossInput(MapKind::Launch), form.shot.RPM))));
    EXPECT_EQ(form.Runs.count(), 0);
    QTest::mouseDClick(view, Qt::LeftButton, {}, middle);
    ASSERT_EQ(form.Runs.count(), 1);
    EXPECT_EQ(form.Runs[1].LaunchAngle, form.shot.LaunchAngle);
    choose("mapKind", 1);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(form.optManual.selected());
    EXPECT_FLOAT_EQ(form.shot.AttackAngle, 0.2F);
    EXPECT_FLOAT_EQ(form.shot.LoftAngle, 9.5F);
    EXPECT_EQ(form.Runs.count(), 1);
    // What is being edited is judged first; a study is left alone.
    user.type(form.txtHeadSpeed, "20");
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(user.messages.texts.size(), 1U);
    EXPECT_FLOAT_EQ(form.shot.LoftAngle, 9.5F);
    const LongRun study(user.main.pause);
    press(Qt::Key_F5);
    press(Qt::Key_Return);
    EXPECT_EQ(form.Runs.count(), 1);
    EXPECT_FLOAT_EQ(form.shot.LoftAngle, 9.5F);
}

TEST_F(MapWindowTest, IsKeptAsPictureAndTable) {
    const TemporaryFolder folder;
    const auto save = [&](const char* action, const std::string& name) {
        user.files.choose(folder.path(name));
        find<QAction>(action)->trigger();
        return contentOf(folder.path(name));
    };
    ASSERT_TRUE(waitForSummary("Best for a ball"));
    for (const auto& [axis, last] : {std::pair("mapAcrossLast", 4000.0), {"mapUpLast", 20.0}})
        find<QDoubleSpinBox>(axis)->setValue(last);
    const std::string heading = "Spin [rpm],Launch angle [deg],Carry [yd],Total [yd],";
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const std::string table = save("mapExportTable", "map.csv");
            return table.starts_with(heading) &&
                   std::count(table.begin(), table.end(), '\n') == 1 + 41 * 41;
        },
        60000));
    EXPECT_TRUE(save("mapSavePicture", "map.png").starts_with("\x89PNG"));
    EXPECT_NE(save("mapSavePicture", "map.svg").find("<svg"), std::string::npos);
    EXPECT_TRUE(save("mapSavePicture", "map.pdf").starts_with("%PDF"));
    EXPECT_EQ(user.preferences.lastPath(), folder.path());
    user.files.choose(folder.path("map.gif"));
    find<QAction>("mapSavePicture")->trigger();
    EXPECT_EQ(user.messages.texts.size(), 1U);
    {
        const FailingDisk disk(100);
        user.files.choose(folder.path("map.csv"));
        find<QAction>("mapExportTable")->trigger();
        EXPECT_EQ(user.messages.texts.size(), 2U);
    }
    find<QAction>("mapCopyPicture")->trigger();
    const QImage copied = QApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), view->size() * 2);
    EXPECT_EQ(copied.pixelColor(0, 0), QColor(Qt::white)) << "on paper, whatever the desktop";
    // The screen shows the same colours, the best ones in its middle.
    const QImage shown = view->grab().toImage();
    const QPoint spot(shown.width() / 2, shown.height() / 5);
    EXPECT_EQ(shown.pixelColor(spot), copied.pixelColor(spot * 2));
    choose("mapOutcome", 4);
    EXPECT_NE(view->grab().toImage(), shown);
}

} // namespace
} // namespace parabolt::support
