#include "qt/dialogs.h"
#include "qt/main_window.h"
#include "qt/program.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_form.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

/// The main form in its window over the platform's own message boxes and event loop.
struct RealServicesTest : testing::Test {
    ScriptedForm scripted; // lends the services that need no reality
    QtMessageBoxes messages;
    QtEventLoop events;
    frmMain main{{messages, scripted.files, scripted.preferences, scripted.desktop, events, "/"}};
    std::unique_ptr<MainWindow> window;
    bool ended = false;

    void SetUp() override {
        main.endProgram = [this] {
            main.pause.stop();
            ended = true;
        };
        main.Form_Load();
        window = std::make_unique<MainWindow>(main);
        window->resize(1100, 800);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QLineEdit* field(const char* name) { return window->findChild<QLineEdit*>(name); }
};

// The message comes up inside the click or the key that leaves the field.
TEST_F(RealServicesTest, AMessageSwallowsNoMoreThanTheKeyThatClosesIt) {
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxes;
            EXPECT_EQ(box->windowTitle(), "Parabolt");
            QTest::keyPress(box->button(QMessageBox::Ok), Qt::Key_Return);
        }
    });
    closer.start(20);
    QLineEdit* wind = field("txtWind");
    wind->setFocus();
    QTest::keyClicks(wind, "99");
    QTest::keyClick(wind, Qt::Key_Return);
    window->activateWindow(); // there is no window manager to do it
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_TRUE(wind->hasFocus());
    wind->deselect();
    QTest::keyRelease(wind, Qt::Key_Return);
    EXPECT_FALSE(wind->hasSelectedText()) << "judged again by the Enter that closed the message";
    QTest::keyClicks(wind, "99");
    auto* run = window->findChild<QPushButton*>("Command1");
    for (const char* runs : {"0", "1"}) {
        QTest::mouseClick(run, Qt::LeftButton);
        EXPECT_EQ(field("txtRun")->text(), runs);
        EXPECT_FALSE(run->isDown());
    }
    EXPECT_EQ(boxes, 2);
}

TEST_F(RealServicesTest, AMessageStandsOverTheWindowWhoseDialogHasJustClosed) {
    QWidget beside;
    beside.show();
    beside.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&beside));
    {
        QDialog dialog(&beside);
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    EXPECT_EQ(frontWindow(), &beside);
    beside.hide();
    EXPECT_EQ(frontWindow(), window.get());
}

TEST_F(RealServicesTest, EscAnswersNoQuestion) {
    const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    asSoonAs(
        *window, [=] { return box() != nullptr; },
        [=] {
            QTest::keyClick(box(), Qt::Key_Escape);
            ASSERT_TRUE(box() && !box()->close());
            box()->button(QMessageBox::Yes)->click();
        });
    EXPECT_TRUE(messages.ask("All the data?"));
    const std::pair<QMessageBox::StandardButton, Answer> answers[] = {
        {QMessageBox::Yes, Answer::Yes},
        {QMessageBox::No, Answer::No},
        {QMessageBox::Cancel, Answer::Cancel}};
    for (const auto& [button, answer] : answers) {
        asSoonAs(
            *window, [=] { return box() != nullptr; },
            [=, button = button] { box()->button(button)->click(); });
        EXPECT_EQ(messages.askOrCancel("All the data?"), answer);
    }
}

TEST_F(RealServicesTest, EscStopsAStudyAndTheFormIsUsableAgain) {
    const auto* run = window->findChild<QPushButton*>("Command1");
    const auto* progress = window->findChild<QWidget*>("frmProgress");
    ASSERT_TRUE(run && progress);
    asSoonAs(
        *window, [&] { return !run->isEnabled() && progress->isVisible(); },
        [&] { QTest::keyClick(window.get(), Qt::Key_Escape); });
    main.form.mnuStyLaunch.Click();
    EXPECT_EQ(field("txtRun")->text(), "0");
    EXPECT_TRUE(run->isEnabled() && !progress->isVisible());
}

TEST_F(RealServicesTest, ClosingTheWindowEndsARunningBatch) {
    main.form.optAuto.select();
    asSoonAs(
        *window, [&] { return main.form.Runs.count() > 0; }, [&] { window->close(); });
    main.form.Command1.Click();
    EXPECT_TRUE(ended);
    EXPECT_LT(main.form.Runs.count(), 6);
}

TEST(RealProgramTest, TheMainWindowHasTheKeysAgainAfterTheClosingQuestion) {
    Program program;
    program.showMainForm();
    QWidget* window = nullptr;
    for (QWidget* shown : QApplication::topLevelWidgets())
        if (shown->objectName() == "frmMain")
            window = shown;
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTimer user;
    int questions = 0;
    QObject::connect(&user, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* question = qobject_cast<QMessageBox*>(modal)) {
            ++questions;
            question->button(QMessageBox::No)->click();
        } else if (modal != nullptr) {
            QTest::keyClicks(modal->findChild<QLineEdit*>("txtDescription"), "x");
            QTimer::singleShot(0, modal->findChild<QPushButton*>("Command1"), &QPushButton::click);
        }
    });
    user.start(20);
    QTest::keyClick(window, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(questions, 1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

} // namespace
} // namespace parabolt::support
