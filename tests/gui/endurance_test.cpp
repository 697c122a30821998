#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/form_binding.h"
#include "qt/print_view_window.h"
#include "qt/program.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

namespace parabolt {
namespace {

/// A number from the environment, so that one test serves for seconds in CI and for hours by hand.
long setting(const char* name, long usual) {
    const char* text = std::getenv(name);
    return text == nullptr ? usual : std::atol(text);
}

/// A user without sense but with a seed: keys, clicks, texts and files, in whatever window is in
/// front. Acts once each time that the event loop comes round, dialogs' own loops included.
class Monkey : public QObject {
public:
    Monkey(const MainForm& form, std::uint32_t seed, long events, QString folder)
        : form_(form),
          dice_(seed),
          left_(events),
          folder_(std::move(folder)) {}

    void run() {
        QTimer::singleShot(0, this, [this] { act(); });
        while (left_ > 0) // the program's own end only ends a round
            QApplication::exec();
    }

private:
    int roll(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice_); }
    template <class T>
    T pick(std::initializer_list<T> list) {
        return *(list.begin() + roll(static_cast<int>(list.size())));
    }

    static QWidget* front() {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "frmMain") {
                if (!window->isVisible()) // it was closed; so the user starts again
                    window->show();
                return window;
            }
        return nullptr;
    }

    void act() {
        if (--left_ <= 0)
            return QApplication::quit();
        QTimer::singleShot(0, this, [this] { act(); });
        QWidget* window = front();
        if (window == nullptr)
            return;
        check();
        const QList<QWidget*> all = window->findChildren<QWidget*>();
        QWidget* widget =
            all.isEmpty() || roll(6) == 0 ? window : all[roll(static_cast<int>(all.size()))];
        // The check counts the rows of the table: nobody types there.
        const auto* table = window->findChild<QWidget*>("txtResult");
        if (!widget->isVisible() || widget == table ||
            (table != nullptr && table->isAncestorOf(widget)))
            return;
        if (qobject_cast<QFileDialog*>(window) != nullptr && roll(3) == 0)
            return nameFile(*window);
        if (auto* edit = qobject_cast<QLineEdit*>(widget); edit != nullptr && roll(2) == 0)
            QTest::keyClicks(edit,
                             pick<const char*>({"120", "-1", "x", "0.8", "1e3", "", "30", "9.5"}));
        else if (roll(2) == 0)
            QTest::mouseClick(widget, pick({Qt::LeftButton, Qt::LeftButton, Qt::RightButton}), {},
                              QPoint(roll(widget->width() + 1), roll(widget->height() + 1)));
        else if (roll(40) == 0)
            window->resize(600 + roll(900), 400 + roll(600));
        else
            pressKey(*widget);
    }

    void pressKey(QWidget& widget) {
        const auto key = pick<int>(
            {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Space,
             Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Left,      Qt::Key_Right,  Qt::Key_F2,
             Qt::Key_F5,  Qt::Key_F10,     Qt::Key_Backspace, Qt::Key_R,      Qt::Key_D,
             Qt::Key_P,   Qt::Key_S,       Qt::Key_O,         Qt::Key_E,      Qt::Key_Y,
             Qt::Key_N,   Qt::Key_7});
        const auto modifier = pick<Qt::KeyboardModifiers>(
            {Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier});
        QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifier);
    }

    void nameFile(QWidget& dialog) {
        if (auto* name = dialog.findChild<QLineEdit*>("fileNameEdit"))
            name->setText(folder_ + pick<const char*>({"/good.opt", "/short.opt", "/noise.clb",
                                                       "/new.clb", "/table.txt", "/report.pdf",
                                                       "/nowhere/x.opt", "/plain"}));
        QTest::keyClick(&dialog, Qt::Key_Return);
    }

    /// Counter, data sets and table agree, whatever has been done. Not while a study or batch is
    /// between a curve and its row.
    void check() const {
        const auto sets = static_cast<int>(form_.Runs.size()) - 1;
        ASSERT_EQ(sets, runNumber(form_));
        ASSERT_LE(sets, 24);
        if (!form_.Timer1.enabled() && QApplication::activeModalWidget() == nullptr) {
            ASSERT_EQ(form_.txtResult.lineCount(), form_.Runs.size() + 3);
        }
    }

    const MainForm& form_;
    std::mt19937 dice_;
    long left_;
    QString folder_;
};

TEST(Endurance, ARandomUserBreaksNothing) {
    const auto seed = static_cast<std::uint32_t>(setting("PARABOLT_MONKEY_SEED", 1));
    const long events = setting("PARABOLT_MONKEY_EVENTS", 1500);
    std::printf("PARABOLT_MONKEY_SEED=%u PARABOLT_MONKEY_EVENTS=%ld\n", seed, events);
    const support::TemporaryFolder folder;
    support::putContent(folder.path("good.opt"), std::string(66, '\0'));
    support::putContent(folder.path("short.opt"), "short");
    support::putContent(folder.path("noise.clb"), std::string(900, '\x7F'));
    QTextBrowser nowhere; // takes the addresses that would leave the program
    for (const char* scheme : {"http", "https", "callto"})
        QDesktopServices::setUrlHandler(scheme, &nowhere, "setSource");
    Program program;
    program.showMainForm();
    Monkey(program.mainForm(), seed, events, toQt(folder.path(""))).run();
    for (const char* scheme : {"http", "https", "callto"})
        QDesktopServices::unsetUrlHandler(scheme);
}

/// Resident memory of the process in MB.
double residentMegabytes() {
    std::ifstream status("/proc/self/statm");
    double size = 0;
    double resident = 0;
    status >> size >> resident;
    return resident * 4096 / 1e6;
}

TEST(Endurance, LongUseTakesNoMoreMemory) {
    support::ScriptedForm user;
    MainWindow window(user.main);
    window.show();
    QtPrinter printer;
    const auto round = [&] {
        user.run(10);
        user.form.mnuStyLaunch.Click();
        user.messages.answers = {MessageBoxes::Answer::Yes};
        user.press(user.form.Command2);
        user.messages.texts.clear();
        frmClubParams editor(user.form.clubs, {user.messages, user.files, user.preferences,
                                               user.desktop, "/", [] {}});
        ClubEditorWindow(editor).show();
        PrintView view(user.form.printPlot(), user.form.txtResult, printer, user.messages);
        PrintViewWindow(view).show();
        QApplication::processEvents();
    };
    const long rounds = setting("PARABOLT_ROUNDS", 20);
    for (long i = 0; i < rounds / 4 + 5; ++i)
        round();
    const double before = residentMegabytes();
    for (long i = 0; i < rounds; ++i)
        round();
    const double growth = residentMegabytes() - before;
    std::printf("%ld rounds of ten runs, a study and two windows: %.1f MB more\n", rounds, growth);
    // The address sanitizer keeps freed memory for a while, and counts leaks itself.
    if (dlsym(RTLD_DEFAULT, "__asan_init") == nullptr) {
        EXPECT_LT(growth, 4);
    }
}

} // namespace
} // namespace parabolt
