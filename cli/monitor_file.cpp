#include "cli/monitor_file.h"

#include <map>

namespace parabolt::cli {

Outcome<ImportPreview, std::string>
importMonitorFile(std::string_view content, const std::string& name, const Console& console) {
    auto preview = importShots(content);
    if (!preview)
        return because(name + ": " + preview.why().message);
    console.err << name << ": taken for a file of " << preview->device << ".\n";
    std::map<std::string, std::size_t> remarks; // how many shots have each
    for (const ImportRow& row : preview->rows)
        if (!row.reason.empty())
            console.err << "line " << row.line << " is left out: " << row.reason << '\n';
        else if (!row.remark.empty())
            ++remarks[row.remark];
    for (const auto& [remark, count] : remarks)
        console.err << remark << " (" << count << (count == 1 ? " shot)\n" : " shots)\n");
    return *std::move(preview);
}

} // namespace parabolt::cli
