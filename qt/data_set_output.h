#pragma once

#include "shell/frm_main.h"

#include <QWidget>

namespace parabolt {

/// Does for the main form what takes a view: paints the plot into files, and puts plot and table on
/// the clipboard.
class DataSetOutput {
public:
    /// `window` is that of the main form.
    DataSetOutput(frmMain& logic, QWidget& window);
    ~DataSetOutput();
    DataSetOutput(const DataSetOutput&) = delete;
    DataSetOutput& operator=(const DataSetOutput&) = delete;

private:
    std::optional<std::string> plotFile(std::string_view ending);

    frmMain& logic_;
    QWidget& window_;
};

} // namespace parabolt
