#include "qt/file_dialog.h"

#include "qt/dialogs.h"
#include "qt/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <algorithm>
#include <climits>

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

/// The ending of a shown filter of one pattern.
QString endingOf(const QString& shown) {
    return shown.section("*.", -1).chopped(1);
}

} // namespace

/// Of its own accord the dialog takes all behind a name's last dot for an ending.
void NamingDialog::addEnding() {
    auto* name = findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr || name->text().isEmpty() || defaultSuffix().isEmpty() ||
        QFileInfo(directory(), name->text()).isDir())
        return;
    const QStringList filters = nameFilters();
    const bool has = std::any_of(filters.begin(), filters.end(), [name](const QString& shown) {
        return name->text().endsWith("." + endingOf(shown), Qt::CaseInsensitive);
    });
    if (!has)
        name->setText(name->text() + "." + defaultSuffix());
}

void NamingDialog::accept() {
    addEnding();
    const QStringList files = selectedFiles();
    const bool tooLong = std::any_of(files.begin(), files.end(), [](const QString& file) {
        return QFile::encodeName(QFileInfo(file).fileName()).size() > NAME_MAX ||
               QFile::encodeName(file).size() >= PATH_MAX;
    });
    if (tooLong)
        QtMessageBoxes().show("The name is too long for a file. Type a shorter one.");
    else
        QFileDialog::accept();
}

QString existingFolder(const QString& wanted) {
    return QFileInfo(wanted).isDir() ? wanted : QDir::homePath();
}

void QtFileDialog::show(bool save) {
    NamingDialog dialog(frontWindow(), toQt(title), existingFolder(toQt(initialFolder)));
    dialog.setObjectName("ccrpFileDialogs1");
    dialog.setNameFilters(nameFilters(toQt(filter)));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);

    if (!suggestedName.empty()) {
        const auto addEndingOf = [&dialog](const QString& shown) {
            dialog.setDefaultSuffix(endingOf(shown));
        };
        dialog.selectFile(toQt(suggestedName));
        addEndingOf(dialog.selectedNameFilter());
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, addEndingOf);
    }

    const QStringList files =
        dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
    const QFileInfo file(files.value(0));
    fileName = fromQt(files.value(0));
    pickedName = fileName.empty() ? std::string() : fromQt(file.fileName());
    finalFolder = fromQt(fileName.empty() ? dialog.directory().absolutePath() : file.path());
}

} // namespace parabolt
