#include "qt/dialogs.h"
#include "qt/main_window.h"
#include "qt/text.h"
#include "tests/support/scripted_form.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <set>

namespace parabolt::support {
namespace {

/// The main form in a real window, driven by the names of its controls.
struct MainWindowTest : testing::Test {
    MainWindowTest() {
        window.resize(1280, 800);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class Widget = QWidget>
    Widget* find(const char* name) {
        return window.findChild<Widget*>(name);
    }
    QLineEdit* field(const char* name) { return find<QLineEdit>(name); }
    void click(const char* name) {
        // on the mark of an option button
        QTest::mouseClick(find(name), Qt::LeftButton, {}, {8, find(name)->height() / 2});
    }
    /// Replaces the text of a field by typing, and leaves the caret in it.
    void type(const char* name, const char* text) {
        click(name);
        field(name)->selectAll();
        QTest::keyClicks(field(name), text);
    }
    std::string focused() { return fromQt(window.focusWidget()->objectName()); }
    int runs() { return field("txtRun")->text().toInt(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }

    ScriptedForm user;
    MainWindow window{user.main};
};

TEST_F(MainWindowTest, WidgetsAndControlsAnswerEachOther) {
    for (const Control* control : user.form.controls.all()) {
        const QString name = toQt(control->name());
        const auto* object = window.findChild<QObject*>(name);
        ASSERT_NE(object, nullptr) << control->name();
        if (const auto* widget = qobject_cast<const QWidget*>(object)) {
            EXPECT_EQ(widget->isHidden(), !control->visible()) << control->name();
            EXPECT_EQ(widget->isEnabled(), control->enabled()) << control->name();
        }
    }
    for (const QLineEdit* edit : window.findChildren<QLineEdit*>()) {
        const std::string name = fromQt(edit->objectName());
        EXPECT_NE(edit->accessibleName().isEmpty(), !edit->isHidden()) << name;
        EXPECT_FALSE(!edit->isHidden() && edit->acceptDrops()) << name << " takes unjudged texts";
    }
    QWheelEvent turn({5, 5}, find("cmbClubNo")->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(find("cmbClubNo"), &turn);
    EXPECT_EQ(find<QComboBox>("cmbClubNo")->currentIndex(), 0) << "without the focus";
    EXPECT_FALSE(turn.isAccepted()) << "what lies around it may scroll";
}

TEST_F(MainWindowTest, RunFliesDrawsAndWritesARow) {
    click("optLaunch");
    click("Command1");
    EXPECT_EQ(runs(), 1);
    const QImage plot = find("Picture1")->grab().toImage();
    int red = 0;
    for (int x = 0; x < plot.width(); ++x)
        for (int y = plot.height() / 4; y < plot.height(); ++y)
            red += plot.pixelColor(x, y) == QColor(255, 0, 0) ? 1 : 0;
    EXPECT_GT(red, 100);
}

// Each way of leaving a field with a refused value: one message, the focus back in the field with
// its whole text selected, and nothing done on the way.
TEST_F(MainWindowTest, ARefusedFieldIsToldOnceHoweverItIsLeft) {
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"Run", [&] { click("Command1"); }},
        {"an option button", [&] { click("optLaunch"); }},
        {"the plot", [&] { click("Picture1"); }},
        {"the table", [&] { click("txtResult"); }},
        {"Tab", [&] { press(Qt::Key_Tab); }},
        {"Enter", [&] { press(Qt::Key_Return); }},
        {"F5", [&] { press(Qt::Key_F5); }},
        {"the mnemonic of Run", [&] { press(Qt::Key_R, Qt::AltModifier); }},
        {"the mnemonic of a menu", [&] { press(Qt::Key_F, Qt::AltModifier); }},
        {"a menu",
         [&] {
             QMenuBar* bar = window.menuBar();
             QTest::mouseClick(bar, Qt::LeftButton, {},
                               bar->actionGeometry(bar->actions().first()).center());
         }},
        {"a shortcut", [&] { press(Qt::Key_R, Qt::ControlModifier); }},
    };
    for (const auto& [about, leave] : ways) {
        user.messages.texts.clear();
        type("txtHeadSpeed", "20");
        leave();
        QTest::qWait(1);
        EXPECT_EQ(user.messages.texts.size(), 1U) << about;
        EXPECT_EQ(focused(), "txtHeadSpeed") << about;
        EXPECT_EQ(field("txtHeadSpeed")->selectedText(), "100") << about;
        EXPECT_EQ(runs(), 0) << about;
        EXPECT_TRUE(find<QRadioButton>("optManual")->isChecked()) << about;
        EXPECT_FALSE(find<QPushButton>("Command1")->isDown()) << about;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << about;
    }
    user.messages.texts.clear();
    click("Command1");
    EXPECT_EQ(runs(), 1);
    EXPECT_TRUE(user.messages.texts.empty());
}

TEST_F(MainWindowTest, TheCaretStaysWhileTheUserTypes) {
    type("txtCor", "05");
    QTest::keyClick(field("txtCor"), Qt::Key_Home);
    QTest::keyClick(field("txtCor"), Qt::Key_Right);
    QTest::keyClicks(field("txtCor"), ".7");
    EXPECT_EQ(field("txtCor")->text(), "0.75");
    EXPECT_EQ(user.form.txtCor.selStart(), 3U);
    press(Qt::Key_Return);
    EXPECT_FLOAT_EQ(user.form.shot.COR, 0.75F);
    EXPECT_EQ(focused(), "txtCor");
}

TEST_F(MainWindowTest, KeysReachEveryCommand) {
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(runs(), 1);
    type("txtCor", "0.8");
    press(Qt::Key_X, Qt::AltModifier); // is no text
    press(Qt::Key_F5);
    EXPECT_EQ(runs(), 2);
    EXPECT_FLOAT_EQ(user.form.Runs[2].COR, 0.8F);
    EXPECT_EQ(focused() + fromQt(field("txtCor")->selectedText()), "txtCor0.8");
    user.messages.answers = {MessageBoxes::Answer::No};
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(user.messages.texts.size(), 1U);
    for (const int key : {Qt::Key_D, Qt::Key_P, Qt::Key_Q})
        press(key, Qt::ControlModifier);
    EXPECT_EQ(user.shown, (Texts{"club editor", "print view", "end"}));
    press(Qt::Key_F1);
    EXPECT_EQ(user.desktop.opened, Texts{"help"});
}

TEST_F(MainWindowTest, TabGoesThroughTheEnabledInputsAsTheEyeDoes) {
    find<QRadioButton>("optManual")->setFocus();
    std::string order;
    for (int i = 0; i < 17; ++i) {
        press(Qt::Key_Tab);
        order += focused() + " ";
    }
    EXPECT_EQ(order, "optWood cmbClubNo txtHeadSpeed txtCor txtHeadWeight txtLoftAngle txtBending "
                     "txtAttackAngle BallOpt4 txtAltitude txtWind txtPressure txtTemperature "
                     "txtRelativeHumidity txtRange Command1 Command2 ");
}

TEST_F(MainWindowTest, TypingIntoTheTableMovesTheNextRow) {
    for (int i = 0; i < 3; ++i)
        click("Command1");
    auto* table = find<QPlainTextEdit>("txtResult");
    QTextCursor cursor = table->textCursor();
    cursor.setPosition(table->document()->findBlockByNumber(4).position() + 5);
    table->setTextCursor(cursor);
    const QString typed = QString::fromUtf8("\u00e4\u00a0"); // with a fixed blank
    table->insertPlainText(typed);
    click("Command1");
    QString held = toQt(user.form.txtResult.text());
    EXPECT_TRUE(held.contains(typed));
    EXPECT_EQ(table->toPlainText(), held.replace(QChar::Nbsp, ' '));
    EXPECT_TRUE(table->document()->findBlockByNumber(4).text().startsWith("  W-1/4"));
}

TEST_F(MainWindowTest, WorkComesBackWithColoursCaretAndKeys) {
    user.main.sessions.begin();
    type("txtWind", "12");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field("txtWind")->text(), "0") << "in a field: what was typed";
    for (int i = 0; i < 2; ++i)
        click("Command1");
    auto* table = find<QPlainTextEdit>("txtResult");
    QTextCursor cursor = table->textCursor();
    cursor.setPosition(table->document()->findBlockByNumber(4).position() + 3);
    table->setTextCursor(cursor);
    table->insertPlainText("mine");
    const QString html = table->document()->toHtml();
    const int caret = table->textCursor().position();
    QTest::qWait(1); // the action has ended
    user.messages.answers = {Answer::Yes};
    click("Command2");
    QTest::qWait(1);
    auto* goBack = find<QAction>("mnuGoBack");
    EXPECT_EQ(goBack->text(), "Go &Back: 2 data sets, 10:32");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table->document()->toHtml(), html);
    EXPECT_EQ(table->textCursor().position(), caret);
    EXPECT_EQ(runs(), 2);
    std::string mnemonics; // of the menu: each is one of its own
    for (const QAction* action :
         find<QAction>("mnuOpen")->associatedObjects().value(0)->findChildren<QAction*>())
        if (const QString text = action->text(); text.contains('&'))
            mnemonics += fromQt(text.mid(text.indexOf('&') + 1, 1).toLower());
    EXPECT_EQ(std::set<char>(mnemonics.begin(), mnemonics.end()).size(), mnemonics.size())
        << mnemonics;
    EXPECT_GE(mnemonics.size(), 10U);
    for (const char* trouble : {"No space left", ""}) {
        window.showKeeping(trouble);
        EXPECT_EQ(find<QLabel>("lblUnsaved")->isVisible(), *trouble != 0);
    }
}

/// The same window over the platform's own message boxes and event loop.
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

TEST_F(RealServicesTest, EscAnswersNoQuestion) {
    QTimer::singleShot(100, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_TRUE(box->isVisible() && !box->close());
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(messages.ask("All the data?"));
}

TEST_F(RealServicesTest, EscStopsAStudyAndTheFormIsUsableAgain) {
    const auto* run = window->findChild<QPushButton*>("Command1");
    const auto* progress = window->findChild<QWidget*>("frmProgress");
    QTimer::singleShot(700, [&] {
        EXPECT_TRUE(!run->isEnabled() && progress->isVisible());
        QTest::keyClick(window.get(), Qt::Key_Escape);
    });
    main.form.mnuStyLaunch.Click();
    EXPECT_EQ(field("txtRun")->text(), "0");
    EXPECT_TRUE(run->isEnabled() && !progress->isVisible());
}

TEST_F(RealServicesTest, ClosingTheWindowEndsARunningBatch) {
    main.form.optAuto.select();
    QTimer::singleShot(250, [&] { window->close(); });
    main.form.Command1.Click();
    EXPECT_TRUE(ended);
    EXPECT_LT(main.form.Runs.count(), 6);
}

} // namespace
} // namespace parabolt::support
