#include "qt/program.h"

#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/map_window.h"
#include "qt/print_view_window.h"
#include "qt/splash_window.h"
#include "qt/text.h"
#include "shell/build_values.h"

#include <QApplication>
#include <QDialog>
#include <QIcon>
#include <QShortcut>

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

} // namespace

Program::Program()
    : services_{messages_, fileDialog_, preferences_, desktop_, events_, applicationFolder()},
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
    logic_.showAbout = [this] { showAbout(); };
    logic_.endProgram = [this] {
        logic_.pause.stop();
        QApplication::exit(); // asks no window, as quit() would
    };
}

Program::~Program() = default;

int Program::run() {
    splash_ = std::make_unique<frmSplash>(desktop_);
    splash_->form.Unload.connect([this] {
        if (!logic_.form.blFormLoaded)
            showMainForm();
    });
    splashWindow_ = std::make_unique<SplashWindow>(*splash_);
    splashWindow_->show();
    return QApplication::exec();
}

void Program::showMainForm() {
    logic_.Form_Load();
    window_ = std::make_unique<MainWindow>(logic_);
    window_->showMaximized();
}

void Program::showClubEditor() {
    frmClubParams editor(logic_.form.clubs,
                         {messages_, fileDialog_, preferences_, desktop_, applicationFolder(),
                          [this] { showClubsInCaption(logic_.form); }});
    ClubEditorWindow window(editor, window_.get());
    execute(window);
}

void Program::showPrintView() {
    frmPrintView printView(logic_.form.printPlot(), logic_.form.txtResult, printer_, messages_);
    PrintViewWindow window(printView, window_.get());
    const QShortcut help(Qt::Key_F1, &window, [this] { desktop_.openHelp(); });
    execute(window);
}

void Program::showCarryMap() {
    if (!mapWindow_)
        mapWindow_ = std::make_unique<MapWindow>(logic_, services_);
    mapWindow_->show();
    mapWindow_->raise();
    mapWindow_->activateWindow();
}

void Program::showAbout() {
    frmSplash about(desktop_);
    SplashWindow window(about, window_.get());
    execute(window);
}

} // namespace parabolt
