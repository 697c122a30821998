#include "qt/main_window.h"
#include "qt/splash_window.h"
#include "qt/text.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_form.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>
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
    /// Whether a colour stands next to a place of the plot, in yards on a scale of 300.
    bool painted(double x, double y, QColor colour) {
        const QRect inner = find("Picture2")->geometry();
        const double pixels = inner.width() / 300.0;
        const QPoint at(inner.left() + qRound(x * pixels), inner.bottom() - qRound(y * pixels));
        const QImage part = find("Picture1")->grab({at - QPoint(2, 2), QSize(5, 5)}).toImage();
        for (int i = 0; i < 25; ++i) {
            const QColor there = part.pixelColor(i % 5, i / 5);
            if (std::abs(there.red() - colour.red()) + std::abs(there.green() - colour.green()) +
                    std::abs(there.blue() - colour.blue()) <
                150)
                return true;
        }
        return false;
    }
    /// How many pixels of a colour stand above the curves, where the legend is.
    int inLegend(QColor colour) {
        const QRect inner = find("Picture2")->geometry();
        const QImage part = find("Picture1")->grab({0, 0, inner.width(), inner.top()}).toImage();
        int count = 0;
        for (int x = 0; x < part.width(); ++x)
            for (int y = 0; y < part.height(); ++y)
                count += part.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    }
    std::string focused() { return fromQt(window.focusWidget()->objectName()); }
    int runs() { return field("txtRun")->text().toInt(); }
    /// Presses and releases as the window system reports it, wherever the focus is.
    void clickAt(const char* name, Qt::MouseButton button) {
        QWidget* widget = find(name);
        QTest::mouseClick(window.windowHandle(), button, {},
                          widget->mapTo(&window, widget->rect().center()));
    }
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
        // What the user never sees is nothing that a key or a screen reader could come to.
        ASSERT_EQ(object != nullptr, control->visible()) << control->name();
        if (const auto* widget = qobject_cast<const QWidget*>(object)) {
            EXPECT_EQ(widget->isHidden(), !control->visible()) << control->name();
            EXPECT_EQ(widget->isEnabled(), control->enabled()) << control->name();
        }
    }
}

TEST_F(MainWindowTest, NothingChangesAFieldUnjudged) {
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

TEST_F(MainWindowTest, ThePlotShowsAxesGridCurvesAndLegend) {
    click("optLaunch");
    const QColor grey(80, 80, 80);
    const auto expectPlot = [&](std::initializer_list<QColor> curves) {
        for (const double along : {2.0, 150.0, 298.0})
            EXPECT_TRUE(painted(along, 0, Qt::white)) << along << " on the axis";
        for (const double up : {2.0, 40.0, 68.0})
            EXPECT_TRUE(painted(0, up, Qt::white)) << up << " on the axis";
        EXPECT_TRUE(painted(120, 45, grey) && painted(240, 50, grey) && painted(280, 30, grey));
        EXPECT_FALSE(painted(150, 45, grey));
        int number = 0;
        for (const QColor& colour : curves) {
            const auto& path = user.form.Runs[++number].Path;
            for (const std::size_t part : {1U, 2U, 3U, 4U, 5U}) {
                const auto& [x, y] = path.at(part * path.size() / 6);
                EXPECT_TRUE(painted(x, y, colour)) << number << " at " << x << "," << y;
            }
            EXPECT_TRUE(painted(path.back().x + 1.5, path.back().y + 1, colour))
                << number << " lands";
            EXPECT_GT(inLegend(colour), 20);
        }
        EXPECT_EQ(curves.size() > 0, inLegend(Qt::white) > 20);
        EXPECT_EQ(curves.size() > 0, inLegend(Qt::red) > 0);
    };
    expectPlot({});
    click("Command1");
    type("txtLaunchAngle", "30");
    click("Command1");
    EXPECT_EQ(runs(), 2);
    expectPlot({Qt::red, Qt::green});
    window.resize(1440, 860);
    expectPlot({Qt::red, Qt::green});
    const auto* table = find<QPlainTextEdit>("txtResult");
    EXPECT_EQ(table->font().family(), "Courier New");
    EXPECT_EQ(table->lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_EQ(table->palette().color(QPalette::Base), QColor(Qt::white));
    const std::pair<int, QColor> lines[] = {{1, Qt::black}, {3, Qt::red}, {4, Qt::green}};
    for (const auto& [line, colour] : lines) {
        const QTextBlock block = table->document()->findBlockByNumber(line);
        EXPECT_EQ(block.begin().fragment().charFormat().foreground().color(), colour) << line;
    }
    user.messages.answers = {Answer::Yes};
    click("Command2");
    expectPlot({});
    EXPECT_FALSE(table->toPlainText().contains("W-1/1"));
}

TEST_F(MainWindowTest, AStudyIsShownAtWork) {
    const auto* progress = find("frmProgress");
    const auto* table = find<QPlainTextEdit>("txtResult");
    EXPECT_EQ(find("Label1")->pos() - find("Label5")->pos(), QPoint(1, 2)) << "the title's shadow";
    for (const int steps : {3, 1000}) { // until Esc comes, and to the end
        user.events.yields = 0;
        user.events.meanwhile = [&] {
            if (user.events.yields % 10 != 0)
                return;
            const int step = user.events.yields / 10;
            EXPECT_TRUE(progress->isVisible());
            EXPECT_EQ(progress->findChild<QProgressBar*>()->value(), step % 11);
            EXPECT_EQ(window.statusBar()->currentMessage(), "Press Esc to stop.");
            EXPECT_EQ(table->textInteractionFlags(), Qt::NoTextInteraction);
            if (step == steps)
                QTest::keyClick(&window, Qt::Key_Escape);
        };
        user.form.mnuStyLaunch.Click();
        EXPECT_FALSE(progress->isVisible());
        EXPECT_EQ(fromQt(window.statusBar()->currentMessage().section(':', 0, 0)),
                  steps == 3 ? "" : "Data set 1")
            << "what came of it";
        EXPECT_EQ(table->textInteractionFlags(), Qt::TextEditorInteraction);
        EXPECT_EQ(field("txtLaunchAngle")->text(), steps == 3 ? "4" : "14");
        EXPECT_EQ(runs(), steps == 3 ? 0 : 1);
    }
}

TEST_F(MainWindowTest, APickInTheListOfClubsIsTaken) {
    auto* clubs = find<QComboBox>("cmbClubNo");
    clubs->setFocus();
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(user.form.shot.ClubNo, 7);
    EXPECT_EQ(clubs->currentText(), "7");
    click("optStandard");
    EXPECT_EQ(field("txtLoftAngle")->text() + field("txtHeadSpeed")->text(), "2194");
    click("optIron");
    EXPECT_EQ(clubs->count() + clubs->currentText().toInt(), 12 + 1);
    click("BallOpt1");
    EXPECT_EQ(user.form.shot.BallType, 1);
    click("optAuto");
    click("chkBatch");
    EXPECT_TRUE(user.form.chkBatch.checked());
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
        {"the keypad's Enter", [&] { press(Qt::Key_Enter); }},
        {"F5", [&] { press(Qt::Key_F5); }},
        {"the mnemonic of Run", [&] { press(Qt::Key_R, Qt::AltModifier); }},
        {"the mnemonic of a menu", [&] { press(Qt::Key_F, Qt::AltModifier); }},
        {"Alt alone", [&] { QTest::keyClick(window.windowHandle(), Qt::Key_Alt); }},
        {"the keypad's Enter", [&] { press(Qt::Key_Enter, Qt::KeypadModifier); }},
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
        QApplication::processEvents();
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

TEST_F(MainWindowTest, WhereTheFocusIsRefusedNothingIsPasted) {
    QClipboard& clipboard = *QApplication::clipboard();
    clipboard.setText("7");
    clipboard.setText("7", QClipboard::Selection);
    const QString table = find<QPlainTextEdit>("txtResult")->toPlainText();
    for (const char* other : {"txtCor", "txtResult"})
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            user.messages.texts.clear();
            type("txtHeadSpeed", "20");
            clickAt(other, button);
            EXPECT_EQ(user.messages.texts.size(), 1U);
            EXPECT_EQ(focused(), "txtHeadSpeed");
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a menu with Paste";
        }
    EXPECT_EQ(field("txtCor")->text(), "0.83");
    EXPECT_EQ(find<QPlainTextEdit>("txtResult")->toPlainText(), table);
    clickAt("txtCor", Qt::MiddleButton); // the safe value passes
    EXPECT_TRUE(field("txtCor")->text().contains("7"));
}

TEST_F(MainWindowTest, TheFirstClickSelectsTheFieldAndTheSecondPlacesTheCaret) {
    clickAt("txtLoftAngle", Qt::LeftButton);
    EXPECT_EQ(field("txtLoftAngle")->selectedText(), "10");
    QTest::keyClicks(field("txtLoftAngle"), "12");
    EXPECT_EQ(user.form.txtLoftAngle.text(), "12");
    field("txtLoftAngle")->selectAll();
    clickAt("txtLoftAngle", Qt::LeftButton);
    EXPECT_FALSE(field("txtLoftAngle")->hasSelectedText());
    QTest::mousePress(field("txtCor"), Qt::LeftButton, {}, {8, 8});
    QMouseEvent drag(QEvent::MouseMove, {90, 8}, field("txtCor")->mapToGlobal(QPointF(90, 8)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(field("txtCor"), &drag);
    const QString passed = field("txtCor")->selectedText();
    QTest::mouseRelease(field("txtCor"), Qt::LeftButton, {}, {90, 8});
    EXPECT_EQ(field("txtCor")->selectedText(), passed);
    EXPECT_TRUE(!passed.isEmpty() && passed != "0.83") << "what the drag selected stays";
}

TEST_F(MainWindowTest, EnterPressesTheButtonThatHasTheFocus) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        find("Command1")->setFocus();
        QTest::keyPress(find("Command1"), key);
        QTest::keyRelease(find("Command1"), key);
    }
    EXPECT_EQ(runs(), 2);
    find("Command2")->setFocus();
    user.messages.answers = {MessageBoxes::Answer::Yes};
    QTest::keyPress(find("Command2"), Qt::Key_Return);
    EXPECT_EQ(runs(), 2) << "a key held down would answer the question";
    QTest::keyRelease(find("Command2"), Qt::Key_Return);
    EXPECT_EQ(runs(), 0);
    click("txtCor");
    press(Qt::Key_Return);
    EXPECT_EQ(runs(), 0) << "it is no default button";
}

TEST_F(MainWindowTest, ARunByItsKeyLeavesTheFieldReadyForTheNextValue) {
    type("txtLoftAngle", "011"); // the run writes it with fewer digits
    press(Qt::Key_F5);
    EXPECT_EQ(focused() + fromQt(field("txtLoftAngle")->selectedText()), "txtLoftAngle11");
}

TEST_F(MainWindowTest, WhatIsShownIsAlsoTold) {
    const auto told = [this](const char* name) {
        QCoreApplication::processEvents();
        return fromQt(
            QAccessible::queryAccessibleInterface(find(name))->text(QAccessible::Description));
    };
    EXPECT_EQ(told("Picture1"), "0 data sets.");
    click("Command1");
    click("Command1");
    const std::string came =
        ": carry 232.6 yd, total 241.1 yd, height 30.9 yd, landing angle 38.0 degrees, altitude "
        "0 ft.";
    EXPECT_EQ(told("Picture1"), "2 data sets. 1" + came + " 2" + came);
    user.messages.answers = {MessageBoxes::Answer::Yes};
    click("Command2");
    EXPECT_EQ(told("Picture1"), "0 data sets.");

    const std::pair<const char*, const char*> tips[] = {
        {"txtHeadSpeed", "mph, 50 to 165"},
        {"txtCor", "0.7 to 0.9"},
        {"txtTemperature", "it, 20 to 120"},
        {"txtBending", "degrees, -10 to 10"},
        {"optActual", "measured launch angle"},
        {"BallOpt1", "+0.5 rpm"},
        {"BallOpt2", "-0.1"},
        {"txtRun", "24"},
    };
    for (const auto& [name, part] : tips)
        EXPECT_NE(told(name).find(part), std::string::npos) << told(name);
    for (const Control* control : user.form.controls.all()) {
        const bool input = control->takesFocus() && control->visible() &&
                           !control->name().starts_with("Picture") &&
                           control != &user.form.txtResult;
        EXPECT_TRUE(!input || told(control->name().c_str()).size() > 5) << control->name();
    }
    for (QLabel* label : window.findChildren<QLabel*>())
        EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name),
                  label->text())
            << "a label without a text would be read as the title of its frame";
}

TEST_F(MainWindowTest, ADoubleClickOnAboutStopsThere) {
    const int usual = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(1'000'000); // however slow the machine
    frmSplash about(user.desktop);
    SplashWindow splash(about, &window);
    splash.show();
    QWidget* soft = find("BallOpt1");
    splash.move(soft->mapToGlobal(QPoint(8, soft->height() / 2)) - QPoint(40, 40));
    auto* picture = splash.findChild<QWidget*>("Picture1");
    for (const bool chosen : {false, true}) { // the second press of a double click, and a later one
        if (!chosen)
            QTest::mouseClick(
                picture, Qt::LeftButton, {},
                picture->mapFromGlobal(soft->mapToGlobal(QPoint(8, soft->height() / 2))));
        EXPECT_FALSE(splash.isVisible());
        click("BallOpt1");
        EXPECT_EQ(user.form.BallOpt1.selected(), chosen);
    }
    QApplication::setDoubleClickInterval(usual);
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
    user.run(12); // each above the last rows, which come into view
    const QScrollBar* bar = table->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 3);
    EXPECT_EQ(bar->value(), bar->maximum());
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

} // namespace
} // namespace parabolt::support
