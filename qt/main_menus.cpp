#include "qt/main_menus.h"

#include "qt/text.h"

#include <QMenuBar>

namespace parabolt {
namespace {

QAction* add(QWidget* menu, const MenuItem& item, const QKeySequence& key = {}) {
    auto* action = new QAction(toQt(item.caption()), menu);
    action->setObjectName(toQt(item.name()));
    action->setShortcut(key);
    action->setMenuRole(QAction::NoRole);
    menu->addAction(action);
    return action;
}

/// What keeps the user's work, below what has always been in the menu.
void addSessionMenus(QMenu& file, const MainForm& form) {
    file.setToolTipsVisible(true);
    file.addSeparator();
    add(&file, form.mnuOpenSession, Qt::CTRL | Qt::SHIFT | Qt::Key_O)
        ->setToolTip("Lays a saved session on the desk in place of what is there");
    add(&file, form.mnuSaveSession, Qt::CTRL | Qt::SHIFT | Qt::Key_E)
        ->setToolTip("Saves all that is on the desk: fields, clubs, data sets, table");
    add(&file, form.mnuReopenSession, Qt::CTRL | Qt::SHIFT | Qt::Key_T)
        ->setToolTip("Lays on the desk what was there when the program last ended");
    add(&file, form.mnuReopenClubs, Qt::CTRL | Qt::SHIFT | Qt::Key_D)
        ->setToolTip("Takes the set of the clubs file that was opened or saved last");
    file.addSeparator();
    // A field takes these keys for itself: there they take back what was typed.
    add(&file, form.mnuGoBack, QKeySequence::Undo)
        ->setToolTip("Brings back the desk from before the last change that wiped something");
    add(&file, form.mnuRewriteTable, Qt::CTRL | Qt::Key_T)
        ->setToolTip("Writes the rows of all data sets anew, in order, under their headings");
}

/// What takes the data sets out.
void addExportMenus(QMenu& file, const MainForm& form) {
    file.addSeparator();
    add(&file, form.mnuExportTable)
        ->setToolTip("Writes all that is known of each data set as comma-separated values");
    add(&file, form.mnuExportPaths)
        ->setToolTip("Writes time, x and y of each point of each flight likewise");
    add(&file, form.mnuExportPlot)->setToolTip("Writes the plot as PNG, SVG or PDF");
    add(&file, form.mnuCopyTable, Qt::CTRL | Qt::SHIFT | Qt::Key_C)
        ->setToolTip("Puts all data sets on the clipboard, for a text or a spreadsheet");
    add(&file, form.mnuCopyPlot)->setToolTip("Puts a picture of the plot on the clipboard");
}

} // namespace

void buildMainMenus(QMenuBar& bar, const MainForm& form) {
    const auto addMenu = [&bar](const MenuItem& item) {
        QMenu* menu = bar.addMenu(toQt(item.caption()));
        menu->menuAction()->setObjectName(toQt(item.name()));
        return menu;
    };
    QMenu* file = addMenu(form.mnuFile);
    add(file, form.mnuOpen, QKeySequence::Open);
    add(file, form.mnuSave, QKeySequence::Save);
    add(file, form.mnuSResult, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    file->addSeparator();
    add(file, form.mnuPrint, QKeySequence::Print);
    file->addSeparator();
    add(file, form.mnuExit, Qt::CTRL | Qt::Key_Q);
    addSessionMenus(*file, form);
    addExportMenus(*file, form);
    add(&bar, form.mnuDefault, Qt::CTRL | Qt::Key_D);
    QMenu* studies = addMenu(form.mnuStudies);
    add(studies, form.mnuStyLaunch);
    add(studies, form.mnuStySpin);
    studies->addSeparator();
    add(studies, form.mnuStyMap, Qt::CTRL | Qt::Key_M);
    add(studies, form.mnuDataSets, Qt::CTRL | Qt::Key_L);
    add(studies, form.mnuMeasured, Qt::CTRL | Qt::SHIFT | Qt::Key_M);
    add(studies, form.mnuBag, Qt::CTRL | Qt::Key_B);
    add(&bar, form.mnuReset, Qt::CTRL | Qt::Key_R);
    QMenu* help = addMenu(form.Help);
    add(help, form.mnuHelp, Qt::Key_F1);
    add(help, form.mnuSkype);
    help->addSeparator();
    add(help, form.mnuAbout);
}

} // namespace parabolt
