#include "qt/desktop.h"

#include "qt/text.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace parabolt {

namespace {

/// Shows `Parabolt.chm` where it stands beside the program and the system brings the viewer.
bool openCompiledManual() {
    const QString file = QDir(QApplication::applicationDirPath()).filePath("Parabolt.chm");
    const QString viewer = QStandardPaths::findExecutable("hh");
    return !viewer.isEmpty() && QFileInfo::exists(file) &&
           QProcess::startDetached(viewer, {QDir::toNativeSeparators(file)});
}

} // namespace

QtDesktop::~QtDesktop() {
    delete help_.data();
}

void QtDesktop::openHelp() {
    openHelpPage(kFirstHelpPage);
}

void QtDesktop::openHelpPage(std::string_view file) {
    if (openCompiledManual())
        return;
    // A modal dialog leaves only its own windows usable: there the manual is one of them.
    QWidget* dialog = QApplication::activeModalWidget();
    if (!help_ || help_->parentWidget() != dialog) {
        delete help_.data();
        help_ = new HelpWindow(manualFolder(), dialog);
    }
    help_->showPage(toQt(std::string(file)));
}

void QtDesktop::openAddress(std::string_view address) {
    QDesktopServices::openUrl(QUrl(toQt(address)));
}

} // namespace parabolt
