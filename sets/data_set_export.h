#pragma once

#include "files/dialog_routine.h"
#include "shots/run_book.h"

namespace parabolt {

/// Takes the data sets out into files that the user names. Nothing else changes; a failure is
/// shown.
class DataSetExport {
public:
    DataSetExport(RunBook& book, FileDialog& dialog, PreferencesStore& preferences,
                  MessageBoxes& messages, std::string applicationFolder);

    /// All that is known of each data set, a row for each, as comma-separated values.
    void mnuExportTable_Click();
    /// The points of all paths, likewise.
    void mnuExportPaths_Click();
    /// The plot, as `compose` paints it.
    void exportPlot(const DialogRoutine::Compose& compose);

private:
    RunBook& book_;
    DialogRoutine dialogs_;
};

} // namespace parabolt
