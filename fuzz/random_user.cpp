// A random user of the whole program: keys, clicks, texts, dialogs, files good and broken. Ends
// with a message at the first inconsistency; the sanitizers, where they are built in, see the rest.
// Call: parabolt_random_user [SEED [EVENTS [FOLDER]]]     the same seed makes the same user
//       parabolt_random_user --reopen FOLDER
// With a FOLDER the user lives there, and tells in FOLDER/desks what each action made of the desk:
// a line when it has ended, and one when the desk is safe. The second call opens what a user who
// was killed left, and prints it the same way; fuzz/kill_users.py compares.
#include "qt/program.h"
#include "sessions/form_desk.h"
#include "sessions/session_codec.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace parabolt {
namespace {

/// Tells desks apart, whatever the time.
unsigned long long fingerprint(const MainForm& form) {
    return std::hash<std::string>()(encodeSession({takeDesk(form), {}}));
}

/// A user without sense but with a seed: keys, clicks, texts and files, in whatever window is in
/// front. Acts once each time that the event loop comes round, dialogs' own loops included.
class RandomUser : public QObject {
public:
    RandomUser(Program& program, std::uint32_t seed, long events, QString folder, bool keepsDesks)
        : program_(program),
          form_(program.mainForm()),
          dice_(seed),
          left_(events),
          folder_(std::move(folder)),
          desks_(keepsDesks ? std::fopen(qPrintable(folder_ + "/desks"), "w") : nullptr) {}
    ~RandomUser() override {
        if (desks_ != nullptr)
            std::fclose(desks_);
    }

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

    /// Of the windows beside the main form one now and then, where it is open.
    QWidget* front() {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        const auto wanted =
            roll(3) == 0 ? pick<const char*>({"carryMap", "dataSets", "measuredShots", "bag"})
                         : "frmMain";
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == wanted && window->isVisible())
                return window;
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
            return QApplication::exit();
        QTimer::singleShot(0, this, [this] { act(); });
        actInFront();
        tellDesk("ended");
    }

    void actInFront() {
        QWidget* window = front();
        if (window == nullptr)
            return;
        if (!window->isActiveWindow()) // no window manager does it
            window->activateWindow();
        check();
        if (desks_ != nullptr && QApplication::activeModalWidget() == nullptr &&
            !form_.Timer1.enabled()) {
            tellDesk("ended");
            const bool safe = program_.isSafe();
            if (safe)
                tellDesk("safe");
            unsafe_ = safe ? 0 : unsafe_ + 1;
            require(unsafe_ < 50, "the desk isn't kept");
        }
        if (form_.Timer1.enabled() && roll(20) == 0) // or most would happen in studies and batches
            return QTest::keyClick(window, Qt::Key_Escape);
        if (auto* dialog = qobject_cast<QFileDialog*>(window)) {
            // It must not roam the machine: neither leave its folder nor delete or rename.
            dialog->setOption(QFileDialog::ReadOnly);
            if (!dialog->directory().path().startsWith(folder_))
                dialog->setDirectory(folder_);
            if (roll(3) == 0)
                return nameFile(*dialog);
        }
        const QList<QWidget*> all = window->findChildren<QWidget*>();
        QWidget* widget =
            all.isEmpty() || roll(6) == 0 ? window : all[roll(static_cast<int>(all.size()))];
        if (!widget->isVisible() || (desks_ == nullptr && isInTable(*window, *widget)))
            return;
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

    /// The check counts the rows of the table: nobody types there while it does.
    static bool isInTable(const QWidget& window, const QWidget& widget) {
        const auto* table = window.findChild<QWidget*>("txtResult");
        return &widget == table || (table != nullptr && table->isAncestorOf(&widget));
    }

    void pressKey(QWidget& widget) {
        const auto key = pick<int>(
            {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Space,
             Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Left,      Qt::Key_Right,  Qt::Key_F2,
             Qt::Key_F5,  Qt::Key_F10,     Qt::Key_Backspace, Qt::Key_R,      Qt::Key_D,
             Qt::Key_P,   Qt::Key_S,       Qt::Key_O,         Qt::Key_E,      Qt::Key_Y,
             Qt::Key_N,   Qt::Key_7,       Qt::Key_Z,         Qt::Key_T,      Qt::Key_M,
             Qt::Key_B,   Qt::Key_L,       Qt::Key_Delete,    Qt::Key_F6,     Qt::Key_Home,
             Qt::Key_A,   Qt::Key_C});
        const auto modifier =
            pick<Qt::KeyboardModifiers>({Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier,
                                         Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier});
        QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifier);
    }

    void nameFile(QWidget& dialog) {
        if (auto* name = dialog.findChild<QLineEdit*>("fileNameEdit"))
            name->setText(folder_ +
                          pick<const char*>({"/good.opt", "/short.opt", "/noise.clb", "/new.clb",
                                             "/table.txt", "/report.pdf", "/nowhere/x.opt",
                                             "/plain", "/a.pbs", "/b", "/sets.csv", "/plot.png",
                                             "/plot.svg", "/shots.csv"}));
        QTest::keyClick(&dialog, Qt::Key_Return);
    }

    /// Counter, data sets and table agree, whatever has been done. Not while a study or batch is
    /// between a curve and its row.
    void check() const {
        const int sets = form_.Runs.count();
        require(sets == runNumber(form_), "the counter shows another number of data sets");
        require(sets <= 24, "there are more than 24 data sets");
        if (form_.Timer1.enabled() || QApplication::activeModalWidget() != nullptr)
            return;
        if (desks_ == nullptr)
            require(form_.txtResult.lineCount() == static_cast<std::size_t>(sets) + 4,
                    "the table has another number of rows");
        checkPlot();
    }
    /// The curves of the ticked data sets and no others; of equal ones one may stand for all.
    void checkPlot() const {
        std::vector<const DrawnCurve*> curves;
        for (const Drawing& drawing : form_.Picture2.drawings())
            if (const auto* curve = std::get_if<DrawnCurve>(&drawing))
                curves.push_back(curve);
        const auto ticked = form_.Runs.ticked();
        const auto isOf = [this](const DrawnCurve* curve, int number) {
            const RunRecord& run = form_.Runs[number];
            return curve->colour == run.CurveColor && std::ranges::equal(curve->points, run.Path);
        };
        for (const int number : ticked)
            require(std::ranges::any_of(
                        curves, [&](const DrawnCurve* curve) { return isOf(curve, number); }),
                    "a ticked data set isn't in the plot");
        for (const DrawnCurve* curve : curves)
            require(std::ranges::any_of(ticked, [&](int number) { return isOf(curve, number); }),
                    "the plot shows what isn't ticked");
    }
    void tellDesk(const char* what) const {
        if (desks_ == nullptr)
            return;
        std::fprintf(desks_, "%s %016llx\n", what, fingerprint(form_));
        std::fflush(desks_);
    }
    void require(bool holds, const char* fault) const {
        if (holds)
            return;
        std::fprintf(stderr, "With %ld events to go, %s.\n", left_, fault);
        std::exit(EXIT_FAILURE);
    }

    Program& program_;
    const MainForm& form_;
    std::mt19937 dice_;
    long left_;
    QString folder_;
    std::FILE* desks_;
    int unsafe_ = 0; ///< looks in a row that found the desk unsafe
};

void putFile(const QString& name, const QByteArray& content) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s.", qPrintable(name));
}

/// Answers Yes to the question of the next start, and prints the desk.
int reopen() {
    Program program;
    program.showMainForm();
    QTimer yes;
    QObject::connect(&yes, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
    yes.start(5);
    // Behind the timer that asks.
    QTimer::singleShot(0, [] { QTimer::singleShot(0, [] { QApplication::exit(); }); });
    QApplication::exec();
    std::printf("%016llx\n", fingerprint(program.mainForm()));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace parabolt

int main(int argc, char** argv) {
    using namespace parabolt;
    const bool reopens = argc == 3 && std::string_view(argv[1]) == "--reopen";
    const QTemporaryDir temporary;
    const QString folder = reopens    ? QString(argv[2])
                           : argc > 3 ? QString(argv[3])
                                      : temporary.path();
    // a home, preferences and a state of its own
    for (const char* home : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qputenv(home, folder.toUtf8());
    qputenv("CUPS_SERVER", "/nonexistent"); // it must not reach a printer
    QApplication application(argc, argv);
    if (reopens)
        return reopen();
    const auto seed = static_cast<std::uint32_t>(argc > 1 ? std::atol(argv[1]) : 1);
    const long events = argc > 2 ? std::atol(argv[2]) : 1500;
    std::printf("parabolt_random_user %u %ld\n", seed, events);
    std::fflush(stdout);
    putFile(folder + "/good.opt", QByteArray(66, '\0'));
    putFile(folder + "/short.opt", "short");
    putFile(folder + "/noise.clb", QByteArray(900, '\x7F'));
    putFile(folder + "/shots.csv",
            "Club,Ball speed [mph],Launch angle [deg],Spin [rpm],Carry [yd]\n"
            "7i,120,17,6500,158\nGamer,140,13,4000,\n7i,12,17,6500,9\n");
    QTextBrowser nowhere; // takes the addresses that would leave the program
    for (const char* scheme : {"http", "https", "callto"})
        QDesktopServices::setUrlHandler(scheme, &nowhere, "setSource");
    Program program;
    program.showMainForm();
    RandomUser(program, seed, events, folder, argc > 3).run();
    for (const char* scheme : {"http", "https", "callto"})
        QDesktopServices::unsetUrlHandler(scheme);
    return EXIT_SUCCESS;
}
