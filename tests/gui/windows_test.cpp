#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/main_window.h"
#include "qt/print_view_window.h"
#include "qt/program.h"
#include "qt/splash_window.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "sessions/session_codec.h"
#include "tests/support/golden.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <csignal>

namespace parabolt::support {
namespace {

/// The first of these properties that an object has.
QString property(const QObject& object, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (const QVariant value = object.property(name); value.isValid())
            return value.toString();
    return {};
}

/// A window and its parts, a line for each.
QString described(const QWidget& window, const ControlSet& controls) {
    QString lines = window.objectName() + " | " + window.windowTitle() + '\n';
    for (const Control* control : controls.all()) {
        const QString name = toQt(control->name());
        const auto* part = window.findChild<const QObject*>(name);
        if (part == nullptr) {
            lines += name + " | not there\n";
            continue;
        }
        const auto* widget = qobject_cast<const QWidget*>(part);
        QStringList cells{name, property(*part, {"text", "title", "currentText", "interval"}),
                          widget == nullptr ? property(*part, {"shortcut"})
                                            : property(*part, {"toolTip"}),
                          property(*part, {"enabled"}) == "false" ? "off" : ""};
        if (widget != nullptr && widget->isHidden())
            cells.last() += cells.last().isEmpty() ? "hidden" : " hidden";
        while (cells.last().isEmpty())
            cells.removeLast();
        lines += cells.join(" | ") + '\n';
    }
    return lines;
}

TEST(Windows, ShowTheirControlsAtTheStart) {
    ScriptedForm user;
    const MainWindow main(user.main);
    frmClubParams editor(user.form.clubs,
                         {user.messages, user.files, user.preferences, user.desktop, "/", [] {}});
    QtPrinter printer;
    frmPrintView view(user.form.printPlot(), user.form.txtResult, printer, user.messages);
    frmSplash splash(user.desktop);
    QString text = described(main, user.form.controls);
    text += described(*main.findChild<QWidget*>("frmProgress"), user.main.frmProgress.controls);
    text += described(ClubEditorWindow(editor), editor.form.controls);
    text += described(PrintViewWindow(view), view.form.controls);
    text += described(SplashWindow(splash), splash.form.controls);
    text.replace(toQt(kVersion), "VERSION").replace(toQt(kLegalLine), "LEGAL");
    text.replace(toQt(kWebAddress), "ADDRESS");
    EXPECT_EQ(fromQt(text), goldenText("windows.txt"));
}

/// The whole program as its entry starts it, until it ends.
struct ProgramTest : testing::Test {
    static QWidget* window(const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == name && top->isVisible())
                return top;
        return nullptr;
    }
    static void trigger(const char* action) {
        window("frmMain")->findChild<QAction*>(action)->trigger();
    }
    /// Runs the program with what a user does at the splash; true if it ends by his word.
    static bool ends(const std::function<void()>& use, const std::string& sessionFile = {}) {
        Program program;
        QTimer::singleShot(0, use);
        QTimer hangs;
        QObject::connect(&hangs, &QTimer::timeout, [] { QApplication::exit(1); });
        hangs.start(10000);
        return program.run(sessionFile) == 0;
    }
};

TEST_F(ProgramTest, TheSplashGivesWayToTheMainFormWhichEndsTheProgram) {
    QTextBrowser browser; // takes what would go to the system's
    Texts opened;
    QObject::connect(&browser, &QTextBrowser::anchorClicked,
                     [&](const QUrl& url) { opened.push_back(fromQt(url.toString())); });
    for (const char* scheme : {"https", "callto"})
        QDesktopServices::setUrlHandler(scheme, &browser, "anchorClicked");
    EXPECT_TRUE(ends([] {
        ASSERT_TRUE(window("frmSplash"));
        EXPECT_FALSE(window("frmMain"));
        QTest::mouseClick(window("frmSplash")->findChild<QWidget*>("Label1"), Qt::LeftButton);
        ASSERT_TRUE(window("frmSplash")) << "the link keeps it";
        QTest::keyClick(window("frmSplash"), Qt::Key_Space);
        ASSERT_TRUE(window("frmMain"));
        EXPECT_FALSE(window("frmSplash"));
        EXPECT_TRUE(window("frmMain")->isMaximized());
        EXPECT_EQ(window("frmMain")->windowTitle(), "Parabolt - Default Clubs Parameter");
        const QWidget* first = window("frmMain");
        int dialogs = 0;
        for (const auto& [action, dialog] : {std::pair{"mnuAbout", "frmSplash"},
                                             {"mnuDefault", "frmClubParams"},
                                             {"mnuPrint", "frmPrintView"}}) {
            QTimer::singleShot(0, [dialog = dialog, &dialogs] {
                QWidget* modal = QApplication::activeModalWidget();
                ASSERT_TRUE(modal);
                EXPECT_EQ(modal->objectName(), dialog);
                ++dialogs;
                modal->close();
            });
            trigger(action);
        }
        EXPECT_EQ(dialogs, 3);
        EXPECT_EQ(window("frmMain"), first);
        trigger("mnuSkype");
        trigger("mnuHelp");
        EXPECT_TRUE(window("helpWindow"));
        trigger("mnuExit");
    }));
    EXPECT_EQ(opened, (Texts{std::string(kWebAddress), "callto:" + std::string(kCallContact)}));
    for (const char* scheme : {"https", "callto"})
        QDesktopServices::unsetUrlHandler(scheme);
    for (const char* part : {"Picture1", "Frame1"})
        EXPECT_TRUE(ends([part] {
            ASSERT_TRUE(window("frmSplash"));
            QTest::mouseClick(window("frmSplash")->findChild<QWidget*>(part), Qt::LeftButton, {},
                              {3, 3});
            ASSERT_TRUE(window("frmMain"));
            window("frmMain")->close();
        }));
    const TemporaryFolder folder;
    Session session;
    session.desk.fields["txtWind"] = "7.5";
    session.desk.reportCaption = "Wed";
    putContent(folder.path("my work.pbs"), encodeSession(session));
    Texts captions;
    EXPECT_TRUE(ends(
        [&captions] { // comes with a session, whose caption the first print view shows
            QTest::keyClick(window("frmSplash"), Qt::Key_Space);
            QTest::qWait(50);
            EXPECT_EQ(window("frmMain")->findChild<QLineEdit*>("txtWind")->text(), "7.5");
            for (int i = 0; i < 2; ++i) {
                QTimer::singleShot(0, [&captions] {
                    QWidget* view = QApplication::activeModalWidget();
                    captions.push_back(fromQt(view->findChild<QLineEdit*>("txtCaption")->text()));
                    view->close();
                });
                trigger("mnuPrint");
            }
            trigger("mnuExit");
        },
        folder.path("my work.pbs")));
    EXPECT_EQ(captions, (Texts{"Wed", ""}));
    EXPECT_TRUE(ends([] { std::raise(SIGTERM); })) << "when the system wants it";
    EXPECT_TRUE(ends([] { // the splash's own clock
        ASSERT_TRUE(window("frmSplash"));
        auto* clock = window("frmSplash")->findChild<QTimer*>("Timer1");
        ASSERT_TRUE(clock->isActive());
        for (int i = 0; i < 51; ++i) {
            EXPECT_FALSE(window("frmMain"));
            QMetaObject::invokeMethod(clock, "timeout");
        }
        ASSERT_TRUE(window("frmMain"));
        window("frmMain")->close();
    }));
}

TEST_F(ProgramTest, WhatIsBeingTypedAtItsEndIsKept) {
    const auto type = [](const char* name, const char* part) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(window(name)));
        if (auto* table = window(name)->findChild<TableView*>(part)) {
            table->setCurrentIndex(table->model()->index(0, 0));
            QTest::keyClick(table, Qt::Key_F2);
            return QTest::keyClicks(table->viewport()->findChild<QLineEdit*>(), "4321");
        }
        window(name)->findChild<QCheckBox*>("measuredNormalise")->click();
        auto* number = window(name)->findChild<QDoubleSpinBox*>(part);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, "4321");
    };
    const auto shown = [](const char* name, const char* part, int column) {
        if (const auto* table = window(name)->findChild<TableView*>(part))
            return table->model()->index(0, column).data().toString();
        return window(name)->findChild<QDoubleSpinBox*>(part)->cleanText();
    };
    struct Typing {
        const char* action;
        const char* name;
        const char* part;
        int column;
    };
    for (const Typing& in : {Typing{"mnuDataSets", "dataSets", "dataSetsTable", 2},
                             {"mnuBag", "bag", "bagTable", 1},
                             {"mnuMeasured", "measuredShots", "measuredAltitude", 0}}) {
        EXPECT_TRUE(ends([&] {
            QTest::keyClick(window("frmSplash"), Qt::Key_Space);
            QTest::mouseClick(window("frmMain")->findChild<QWidget*>("Command1"), Qt::LeftButton);
            trigger("mnuBag"); // it goes after the others
            trigger(in.action);
            QTest::qWait(0);
            window(in.name)->activateWindow();
            type(in.name, in.part);
            trigger("mnuExit");
        }));
        EXPECT_TRUE(ends([&] {
            QTest::keyClick(window("frmSplash"), Qt::Key_Space);
            trigger("mnuReopenSession");
            trigger(in.action);
            EXPECT_EQ(shown(in.name, in.part, in.column), "4321") << in.name;
            trigger("mnuExit");
        }));
    }
}

} // namespace
} // namespace parabolt::support
