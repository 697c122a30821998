#include "sets/data_set_export.h"

#include "sets/data_sets.h"
#include "sets/path_export.h"
#include "tables/table_text.h"

#include <utility>

namespace parabolt {

DataSetExport::DataSetExport(RunBook& book, FileDialog& dialog, PreferencesStore& preferences,
                             MessageBoxes& messages, std::string applicationFolder)
    : book_(book),
      dialogs_(dialog, preferences, messages, std::move(applicationFolder)) {}

void DataSetExport::mnuExportTable_Click() {
    dialogs_.save(DialogPurpose::ExportTable, "data sets.csv", [this](std::string_view) {
        const DataSets sets(book_);
        return tableAsCsv(sets, completeTable(sets));
    });
}

void DataSetExport::mnuExportPaths_Click() {
    dialogs_.save(DialogPurpose::ExportPaths, "paths.csv",
                  [this](std::string_view) { return composePaths(book_); });
}

void DataSetExport::exportPlot(const DialogRoutine::Compose& compose) {
    dialogs_.save(DialogPurpose::ExportPlot, "plot.png", compose);
}

} // namespace parabolt
