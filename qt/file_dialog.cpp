#include "qt/file_dialog.h"

#include "qt/dialogs.h"
#include "qt/text.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace parabolt {

namespace {

/// Descriptions with their patterns behind them, in parentheses.
QStringList nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString pattern = "(" + parts[i + 1] + ")";
        filters += parts[i].endsWith(pattern) ? parts[i] : parts[i] + " " + pattern;
    }
    return filters;
}

} // namespace

QString existingFolder(const QString& wanted) {
    return QFileInfo(wanted).isDir() ? wanted : QDir::homePath();
}

void QtFileDialog::show(bool save) {
    QFileDialog dialog(frontWindow(), toQt(title), existingFolder(toQt(initialFolder)));
    dialog.setObjectName("ccrpFileDialogs1");
    dialog.setNameFilters(nameFilters(toQt(filter)));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);

    if (save && !suggestedName.empty())
        dialog.selectFile(toQt(suggestedName));

    const QStringList files =
        dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
    const QFileInfo file(files.value(0));
    fileName = fromQt(files.value(0));
    pickedName = fileName.empty() ? std::string() : fromQt(file.fileName());
    finalFolder = fromQt(fileName.empty() ? dialog.directory().absolutePath() : file.path());
}

} // namespace parabolt
