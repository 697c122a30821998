#include "qt/program.h"

#include "clubs/frm_club_params.h"
#include "qt/bag_window.h"
#include "qt/club_editor_window.h"
#include "qt/data_sets_window.h"
#include "qt/map_window.h"
#include "qt/measured_window.h"
#include "qt/print_view_window.h"
#include "qt/splash_window.h"
#include "qt/text.h"
#include "shell/build_values.h"

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QIcon>
#include <QShortcut>
#include <QTimer>
#include <utility>

namespace parabolt {
namespace {

std::string applicationFolder() {
    return fromQt(QApplication::applicationDirPath());
}

/// Shows a window over the main window, which has the keys again in the end. By itself it wouldn't
/// where a question came up last, over a window that went at once with it.
void execute(QDialog& dialog) {
    dialog.exec();
    dialog.parentWidget()->activateWindow();
}

/// Shows a window beside the main window.
void bringUp(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

/// Where programs keep what is to outlive them, by the XDG rules.
std::string stateFolder() {
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    const QString home = QDir::isAbsolutePath(set) ? set : QDir::homePath() + "/.local/state";
    return fromQt(home + "/parabolt");
}

std::string localTime() {
    return fromQt(QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm"));
}

} // namespace

Program::Program()
    : services_{messages_,
                fileDialog_,
                preferences_,
                desktop_,
                events_,
                applicationFolder(),
                {stateFolder(), localTime,
                 [this](const std::string& trouble) {
                     QMetaObject::invokeMethod(
                         &post_, [this, trouble] { showKeeping(trouble); }, Qt::QueuedConnection);
                 }}},
      logic_(services_) {
    QApplication::setApplicationName(toQt(kApplicationTitle));
    QApplication::setApplicationVersion(toQt(kVersion));
    QApplication::setDesktopFileName("parabolt");
    QApplication::setWindowIcon(QIcon(":/images/parabolt_256.png"));
    // The splash goes before the main form comes: the program ends by its own word.
    QApplication::setQuitOnLastWindowClosed(false);

    logic_.showClubEditor = [this] { showClubEditor(); };
    logic_.showPrintView = [this] { showPrintView(); };
    logic_.showCarryMap = [this] { showCarryMap(); };
    logic_.showDataSets = [this] { showDataSets(); };
    logic_.showMeasured = [this] { showMeasured(); };
    logic_.showBag = [this] { showBag(); };
    logic_.showAbout = [this] { showAbout(); };
    logic_.endProgram = [this] {
        logic_.pause.stop();
        QApplication::exit(); // asks no window, as quit() would
    };
}

Program::~Program() {
    // What is still being typed in these becomes part of the desk.
    dataSetsWindow_.reset();
    measuredWindow_.reset();
    bagWindow_.reset();
    if (logic_.form.blFormLoaded)
        logic_.sessions.finish();
}

int Program::run(const std::string& sessionFile) {
    splash_ = std::make_unique<frmSplash>(desktop_);
    splash_->form.Unload.connect([this, sessionFile] {
        if (!logic_.form.blFormLoaded)
            showMainForm(sessionFile);
    });
    splashWindow_ = std::make_unique<SplashWindow>(*splash_);
    splashWindow_->show();
    return QApplication::exec();
}

void Program::showMainForm(const std::string& sessionFile) {
    logic_.Form_Load();
    window_ = std::make_unique<MainWindow>(logic_);
    window_->showMaximized();
    // When the window is there, so that a question stands over it.
    QTimer::singleShot(0, &post_, [this, sessionFile] {
        logic_.sessions.recover();
        if (!sessionFile.empty())
            logic_.sessions.open(sessionFile);
        logic_.sessions.actionEnded();
    });
}

bool Program::isSafe() {
    return logic_.sessions.isSafe();
}

void Program::showKeeping(const std::string& trouble) {
    if (window_ != nullptr)
        window_->showKeeping(toQt(trouble));
}

void Program::showClubEditor() {
    frmClubParams editor(logic_.form.clubs,
                         {messages_, fileDialog_, preferences_, desktop_, applicationFolder(),
                          [this] { showClubsInCaption(logic_.form); }});
    editor.editor.Applying.connect([this] { logic_.form.Wiping(); });
    ClubEditorWindow window(editor, window_.get());
    execute(window);
}

void Program::showPrintView() {
    frmPrintView printView(logic_.form.printPlot(), logic_.form.txtResult, printer_, messages_);
    if (std::exchange(logic_.form.reportCaptionLaid, false))
        printView.form.txtCaption.setText(logic_.form.reportCaption);
    printView.form.txtCaption.Change.connect([this, &caption = printView.form.txtCaption] {
        logic_.form.reportCaption = caption.text();
    });
    PrintViewWindow window(printView, window_.get());
    const QShortcut help(Qt::Key_F1, &window, [this] { desktop_.openHelp(); });
    execute(window);
}

void Program::showCarryMap() {
    if (!mapWindow_)
        mapWindow_ = std::make_unique<MapWindow>(logic_, services_);
    bringUp(*mapWindow_);
}

void Program::showDataSets() {
    if (!dataSetsWindow_)
        dataSetsWindow_ = std::make_unique<DataSetsWindow>(logic_, services_, printer_);
    bringUp(*dataSetsWindow_);
}

void Program::showMeasured() {
    if (!measuredWindow_)
        measuredWindow_ = std::make_unique<MeasuredWindow>(logic_, fitting_, services_, printer_);
    bringUp(*measuredWindow_);
}

void Program::showBag() {
    if (!bagWindow_)
        bagWindow_ = std::make_unique<BagWindow>(logic_, fitting_, services_, printer_);
    bringUp(*bagWindow_);
}

void Program::showAbout() {
    frmSplash about(desktop_);
    SplashWindow window(about, window_.get());
    execute(window);
}

} // namespace parabolt
