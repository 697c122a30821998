#include "cli/monitor_file.h"

#include <map>

namespace parabolt::cli {

std::string leftOutText(std::size_t line, std::string_view reason) {
    return "line " + std::to_string(line) + " is left out: " + std::string(reason) + "\n";
}

Outcome<ImportPreview, std::string>
importMonitorFile(std::string_view content, const std::string& name, const Console& console) {
    auto preview = importShots(content);
    if (!preview)
        return because(name + ": " + preview.why().message);
    console.err << name << ": taken for a file of " << preview->device << ".\n";
    std::map<std::string, std::size_t> remarks; // how many shots have each
    for (ImportRow& row : preview->rows) {
        row.taken = row.taken && !row.leftOut;
        if (!row.taken)
            console.err << leftOutText(row.line, row.reason.empty() ? kMarkedOut : row.reason);
        else if (!row.remark.empty())
            ++remarks[row.remark];
    }
    for (const auto& [remark, count] : remarks)
        console.err << remark << " (" << count << (count == 1 ? " shot)\n" : " shots)\n");
    if (preview->count() == 0)
        return because(name + ": All of its shots are marked as out.");
    return *std::move(preview);
}

} // namespace parabolt::cli
