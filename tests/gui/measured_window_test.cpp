#include "clubs/frm_club_params.h"
#include "measured/shot_import.h"
#include "qt/bag_window.h"
#include "qt/chart_view.h"
#include "qt/club_editor_window.h"
#include "qt/main_window.h"
#include "qt/measured_window.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

constexpr auto kFiveShots =
    "Club,Ball speed [mph],Launch angle [deg],Spin [rpm],Carry [yd],Total [yd]\n"
    "7i,120,17,6500,158,166\n7i,118,18,6400,154,161\nGamer,140,13,4000,199,215\n"
    "Driver,160,12,2600,243,266\n7i,12,18,6400,15,16\n";

/// Keeps the pages that were printed, as far as their titles go.
struct CountingPrinter : Printer {
    Texts titles;
    PageSize paper() override { return {11, 8.5, 10.5, 8}; }
    Outcome<std::string, std::string> print(std::string_view title,
                                            const std::function<void(Page&)>&) override {
        titles.emplace_back(title);
        return std::string("Printed on paper.");
    }
};

/// The windows of measured shots and of the bag beside the main form, with a file to import.
struct MeasuredWindowTest : testing::Test {
    MeasuredWindowTest() {
        user.main.showMeasured = [this] { window.show(); };
        user.main.showBag = [this] { bag.show(); };
        main.show();
        main.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
        QTest::keyClick(&main, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&main, Qt::Key_B, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&bag));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    template <class Widget>
    Widget* find(const char* name) {
        auto* widget = window.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    std::string put(const char* name, const std::string& content) {
        putContent(folder.path(name), content);
        return folder.path(name);
    }
    /// Uses the next modal dialog, once it is there, and closes what is still open then.
    void inDialog(const std::function<void(QDialog&)>& use) {
        asSoonAs(
            dialogs,
            [] { return qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr; },
            [use] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                use(*dialog);
                dialog->close();
            });
    }
    static void takeShots(QDialog& dialog) {
        dialog.findChild<QPushButton*>("importTake")->click();
    }
    void bringIn(const std::string& fileName,
                 const std::function<void(QDialog&)>& use = takeShots) {
        user.files.choose(fileName);
        inDialog(use);
        find<QAction>("measuredImport")->trigger();
    }
    bool waitForFlights() {
        return QTest::qWaitFor(
            [&] { return find<QLabel>("measuredSummary")->text().startsWith("Model less"); });
    }
    QString at(const char* table, int row, const QString& heading) {
        const auto* model = find<TableView>(table)->model();
        for (int i = 0; i < model->columnCount(); ++i)
            if (model->headerData(i, Qt::Horizontal).toString() == heading)
                return model->index(row, i).data().toString();
        ADD_FAILURE() << "no column " << fromQt(heading);
        return {};
    }
    std::string exported(QWidget& from, const char* action, const char* name) {
        user.files.choose(folder.path(name));
        from.findChild<QAction*>(action)->trigger();
        return contentOf(folder.path(name));
    }

    const TemporaryFolder folder;
    QObject dialogs;
    ScriptedForm user;
    FormServices services{user.messages, user.files,  user.preferences,
                          user.desktop,  user.events, "/program"};
    CountingPrinter printer;
    Fitting fitting{user.form};
    MainWindow main{user.main};
    MeasuredWindow window{user.main, fitting, services, printer};
    BagWindow bag{user.main, fitting, services, printer};
    MainForm& form = user.form;
};

TEST_F(MeasuredWindowTest, ShowsWhatAFileBringsBeforeItIsTaken) {
    const std::string file = put("five.csv", kFiveShots);
    bringIn(file, [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "importPreview");
        EXPECT_EQ(dialog.findChild<QLabel*>("importDevice")->text(),
                  "Recognised as Parabolt: 4 of 5 rows will be taken.");
        auto* rows = dialog.findChild<TableView*>("importRows")->model();
        EXPECT_EQ(rows->index(4, 8).data().toString(), "ball speed 12 mph is below 30");
        for (const int row : {0, 4})
            rows->setData(rows->index(row, 0), Qt::Unchecked, Qt::CheckStateRole);
        rows->setData(rows->index(4, 0), Qt::Checked, Qt::CheckStateRole);
        auto* take = dialog.findChild<QPushButton*>("importTake");
        EXPECT_EQ(take->text(), "&Take 3 Shots");
        EXPECT_EQ(dialog.findChild<QComboBox*>("importClub1"), nullptr) << "one text is unknown";
        dialog.findChild<QComboBox*>("importClub0")->setCurrentText("5W");
        dialog.findChild<TableView*>("importRows")->setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(fitting.session().entries.size(), 3U);
    EXPECT_EQ(fitting.session().answers, (ClubAnswers{{"Gamer", {false, 5}}}));
    EXPECT_EQ(user.preferences.lastPath(), folder.path());
    bringIn(file, [](QDialog& dialog) { // the club isn't asked again; a cancel takes nothing
        EXPECT_EQ(dialog.findChild<QComboBox*>("importClub0"), nullptr);
        dialog.findChild<QPushButton*>("importCancel")->click();
    });
    user.files.choose(put("bad.csv", "Club\n\"7i\n"));
    find<QAction>("measuredImport")->trigger();
    ASSERT_EQ(user.messages.texts.size(), 1U);
    EXPECT_NE(user.messages.texts[0].find("Line 2"), std::string::npos) << user.messages.texts[0];
    EXPECT_EQ(fitting.session().entries.size(), 3U);
    // A file that is dropped goes the same way.
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(toQt(file))});
    QDragEnterEvent enter({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    inDialog(takeShots);
    QDropEvent drop({}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fitting.session().entries.size() == 4; }));
}

TEST_F(MeasuredWindowTest, LetsTheUserChooseTheColumnsOfAnUnknownFile) {
    const std::string file = put("radar.txt", "Stick;V ball;Loft out;Spin\nSeven;50;17,5;6000\n");
    bringIn(file, [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QPushButton*>("importTake")->isEnabled());
        const auto choose = [&](const char* box, const char* text) {
            auto* combo = dialog.findChild<QComboBox*>(box);
            combo->setCurrentText(text);
            EXPECT_EQ(combo->currentText(), text);
            emit combo->activated(combo->currentIndex());
        };
        choose("importQuantity0", "Club");
        choose("importQuantity1", "Ball speed");
        choose("importUnit1", "m/s");
        choose("importQuantity2", "Launch angle");
        dialog.findChild<QLineEdit*>("importName")->setText("Radar");
        choose("importQuantity3", "Launch angle"); // a second time
        EXPECT_FALSE(dialog.findChild<QPushButton*>("importTake")->isEnabled());
        choose("importQuantity3", "Back spin");
        auto* rows = dialog.findChild<TableView*>("importRows");
        rows->model()->setData(rows->model()->index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        auto* take = dialog.findChild<QPushButton*>("importTake");
        dialog.findChild<QLineEdit*>("importName")->setText("Radar 2");
        dialog.findChild<QCheckBox*>("importComputes")->setChecked(false);
        choose("importUnit1", "m/s");
        EXPECT_FALSE(take->isEnabled()) << "neither a name nor a unit ticks a row again";
        dialog.findChild<QLineEdit*>("importName")->setText("Radar");
        rows->model()->setData(rows->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        takeShots(dialog);
    });
    ASSERT_EQ(fitting.session().entries.size(), 1U);
    EXPECT_NEAR(fitting.session().entries[0].shot.ballSpeed, 111.85, 0.01);
    EXPECT_EQ(fitting.session().entries[0].shot.launchAngle, 17.5F);
    EXPECT_EQ(fitting.session().device, "Radar");
    bringIn(file, [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QPushButton*>("importTake")->text(), "&Take 1 Shot");
        EXPECT_TRUE(dialog.findChild<QLabel*>("importDevice")->text().startsWith("Columns as you"));
        QTest::keyClick(&dialog, Qt::Key_F1);
    });
}

TEST_F(MeasuredWindowTest, ComparesAndLeavesOut) {
    bringIn(put("five.csv", kFiveShots));
    ASSERT_TRUE(waitForFlights());
    const QString calm = at("measuredTable", 0, "Model carry\n[yd]");
    EXPECT_GT(calm.toDouble(), 100);
    EXPECT_EQ(at("measuredClubs", 0, "Device carry\n[yd]"), "156.0");
    user.enter(form.txtWind, "10");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return at("measuredTable", 0, "Model carry\n[yd]") != calm; }));
    auto* table = find<TableView>("measuredTable");
    table->selectRow(0);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(at("measuredClubs", 0, "Device carry\n[yd]"), "154.0");
    EXPECT_TRUE(table->model()->index(0, 3).data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_EQ(find<QLabel>("measuredSource")->text(), "five.csv (Parabolt): 4 shots, 1 left out");
    find<QCheckBox>("measuredNormalise")->click();
    find<QDoubleSpinBox>("measuredAltitude")->setValue(5000);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return at("measuredTable", 1, "Normalised carry\n[yd]").toDouble() > 160; }));
    EXPECT_TRUE(find<QLabel>("measuredSummary")->text().contains("about double"));
    auto* weather = find<QComboBox>("measuredWeather");
    weather->setCurrentIndex(1);
    emit weather->activated(1);
    EXPECT_TRUE(fitting.session().ownAir);

    // Space ticks, and what is ticked becomes data sets; the one left out doesn't.
    find<QAction>("measuredToDataSets")->trigger();
    table->clearSelection();
    QTest::keyClick(table, Qt::Key_Space); // the cursor alone marks nothing
    find<QAction>("measuredToDataSets")->trigger();
    ASSERT_EQ(user.messages.texts.size(), 2U) << "nothing is ticked yet";
    EXPECT_TRUE(user.messages.texts[1].starts_with("Tick the shots first"));
    table->selectRow(0);
    QTest::keyClick(table, Qt::Key_Space);
    find<QAction>("measuredToDataSets")->trigger();
    EXPECT_EQ(user.messages.texts.back(), "All ticked shots are left out.");
    table->selectAll();
    find<TableView>("measuredClubs")->setFocus();
    QTest::keyClick(&window, Qt::Key_Delete); // strikes nothing: it belongs to the other table
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Space);
    QTest::keyClick(table, Qt::Key_Space);
    find<QAction>("measuredToDataSets")->trigger();
    ASSERT_EQ(form.Runs.count(), 3);
    EXPECT_EQ(form.Runs[1].LaunchSpeed, 118);
    EXPECT_EQ(form.Runs[1].WindSpeed, 10);
    EXPECT_EQ(form.Runs.tag(1).name, "7i, line 3");
    EXPECT_EQ(window.statusBar()->currentMessage(), "3 shots became data sets.");
    find<QAction>("measuredMeansToDataSets")->trigger();
    EXPECT_EQ(form.Runs.count(), 6);
    form.Command1.setEnabled(false); // a study runs
    EXPECT_TRUE(QTest::qWaitFor([&] { return !find<QAction>("measuredToDataSets")->isEnabled(); }));
    form.Command1.setEnabled(true);
    // Another desk brings its own shots.
    const Desk desk = takeDesk(form);
    bringIn(put("one.csv", std::string(kFiveShots).substr(0, 97)));
    EXPECT_EQ(table->model()->rowCount(), 1);
    layDesk(form, desk);
    EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() == 4; }));
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(user.desktop.opened.back(), "measured.html");
}

TEST_F(MeasuredWindowTest, GoesOutAsTableChartAndPage) {
    bringIn(put("five.csv", kFiveShots));
    ASSERT_TRUE(waitForFlights());
    const auto back = importShots(exported(window, "measuredExport", "out.csv"));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->count(), 4U);
    EXPECT_TRUE(exported(window, "measuredExport", "out.png").starts_with("\x89PNG"));
    EXPECT_TRUE(exported(bag, "bagExport", "bag.pdf").starts_with("%PDF"));
    find<TableView>("measuredClubs")->setFocus();
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Club\tShots\tDevice carry [yd]"));
    find<QAction>("measuredCopyChart")->trigger();
    EXPECT_EQ(QApplication::clipboard()->image().size(),
              find<ChartView>("measuredGaps")->size() * 2);
    inDialog([](QDialog& dialog) {
        dialog.findChild<QLineEdit*>("sheetPlayer")->setText("Ann");
        dialog.findChild<QLineEdit*>("sheetNote")->setText("windy");
        dialog.findChild<QPushButton*>("sheetPrint")->click();
    });
    find<QAction>("measuredPrint")->trigger();
    EXPECT_EQ(printer.titles, Texts{"Measured Shots"});
    EXPECT_EQ(fitting.session().player, "Ann");
    inDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("sheetPlayer")->text(), "Ann");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("sheetNote")->text(), "windy");
    });
    bag.findChild<QAction*>("bagPrint")->trigger();
}

TEST_F(MeasuredWindowTest, TheBagIsFlownAtAPress) {
    bringIn(put("five.csv", kFiveShots));
    auto* table = bag.findChild<TableView*>("bagTable");
    auto* summary = bag.findChild<QLabel*>("bagSummary");
    EXPECT_EQ(table->model()->index(14, 11).data().toString(), "156.0") << "before it is flown";
    const QImage before = bag.findChild<ChartView*>("bagGaps")->grab().toImage();
    QTest::mouseClick(bag.findChild<QWidget*>("bagFly"), Qt::LeftButton);
    EXPECT_TRUE(summary->text().startsWith("Too narrow: ")) << fromQt(summary->text());
    EXPECT_NE(bag.findChild<ChartView*>("bagGaps")->grab().toImage(), before);
    bag.findChild<QDoubleSpinBox*>("bagNarrowest")->setValue(0);
    EXPECT_FALSE(summary->text().contains("narrow"));
    bag.findChild<QDoubleSpinBox*>("bagNarrowest")->setValue(30);
    EXPECT_EQ(bag.findChild<QDoubleSpinBox*>("bagWidest")->value(), 30) << "taken along";
    bag.findChild<QDoubleSpinBox*>("bagWidest")->setValue(5);
    EXPECT_EQ(fitting.session().bag.narrowest, 5);
    auto* number = bag.findChild<QDoubleSpinBox*>("bagNarrowest");
    bag.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&bag));
    number->setFocus();
    user.files.choose(folder.path("keys.csv"));
    QTest::keyClick(number, Qt::Key_E, Qt::ControlModifier); // no end of a line: the command
    EXPECT_TRUE(contentOf(folder.path("keys.csv")).starts_with("Own,Name,Club,"));
    table->model()->setData(table->model()->index(0, 1), "Big Dog", Qt::EditRole);
    EXPECT_EQ(fitting.session().bag.clubs[0].name, "Big Dog");
    EXPECT_FALSE(summary->text().contains("fly it again"));
    auto* speeds = bag.findChild<QComboBox*>("bagSpeeds");
    speeds->setCurrentIndex(1);
    emit speeds->activated(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return summary->text().contains("fly it again"); }));
    bag.findChild<QDoubleSpinBox*>("bagFirstSpeed")->setValue(90);
    bag.findChild<QAction*>("bagFlyCommand")->trigger();
    EXPECT_EQ(table->model()->index(0, 3).data().toString(), "90.0");
    table->selectRow(1);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_TRUE(fitting.session().bag.clubs[1].owned);
    EXPECT_EQ(form.Runs.count(), 0) << "data sets stay untouched";
}

TEST(ClubEditorPaste, ComesFromTheClipboard) {
    ScriptedForm user;
    frmClubParams editor(user.form.clubs,
                         {user.messages, user.files, user.preferences, user.desktop, "/", [] {}});
    ClubEditorWindow window(editor);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto* irons = window.findChild<QTableWidget*>("GridIrons");
    irons->setFocus();
    irons->setCurrentCell(1, 0);
    QApplication::clipboard()->setText("17\t19,5\n");
    QTest::keyClick(irons, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(irons->item(1, 0)->text() + " " + irons->item(1, 1)->text(), "17 19.5");
    QTest::keyClick(irons, Qt::Key_F2);
    auto* line = window.findChild<QLineEdit*>("txtIronEdit");
    QApplication::clipboard()->setText("5"); // a text goes into the open box
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), "175");
}

} // namespace
} // namespace parabolt::support
