#pragma once

#include "controls/services.h"

#include <QFileDialog>

namespace parabolt {

/// A file dialog that adds its default ending to names that have none of its filters', and that
/// says so, and stays, when a name is longer than any file's may be.
class NamingDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override;

private:
    void addEnding();
};

/// A folder in which a dialog can start: the wanted one, or the user's home where that is gone.
QString existingFolder(const QString& wanted);

/// File dialogs over the window in front. Opening takes files that exist; saving asks before it
/// takes the name of one. A name is taken as typed: no ending is added, unless one was suggested.
/// Where the folder to start in is gone, the dialog starts in the user's home folder.
class QtFileDialog : public FileDialog {
public:
    void showOpen() override { show(false); }
    void showSave() override { show(true); }

private:
    void show(bool save);
};

} // namespace parabolt
