#include "cli/fly_command.h"

#include "cli/shot_rows.h"
#include "shots/fault_words.h"

#include <algorithm>

namespace parabolt::cli {
namespace {

void writePath(const RunRecord& record, Format format, const Console& console) {
    RowStream rows(console, format, pathColumns());
    for (std::size_t point = 0; point < record.Path.size(); ++point)
        rows.row(pathCells(record, point));
    rows.end();
}

/// For people: a line for each quantity.
void writeList(const std::vector<Cell>& cells, const Console& console) {
    std::string text;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Column& column = shotColumns()[i];
        const std::string shown = shownCell(cells[i], column.pattern);
        if (shown.empty())
            continue;
        constexpr std::size_t kNames = 22;
        constexpr std::size_t kValues = 8;
        text.append(column.heading).append(kNames - column.heading.size(), ' ');
        text.append(kValues - std::min(kValues, shown.size()), ' ').append(shown).append("\n");
    }
    console.out << text;
}

/// One object, with the path if it is asked for.
void writeJson(const FlownShot& flown, const std::vector<Cell>& cells, bool path,
               const Console& console) {
    std::string text;
    RowWriter(Format::Json, shotColumns()).row(text, cells);
    text.erase(0, 2); // what parts rows of a list
    if (path) {
        text.back() = ',';
        appendJsonPath(text.append("\"path\":"), flown.record);
        text += '}';
    }
    console.out << text << '\n';
}

} // namespace

ExitStatus flyCommand(const FlyOptions& options, const Console& console) {
    const auto shot = shotOf(options.shot, console);
    if (!shot)
        return console.complain(shot.why());
    return flyAndWrite(*shot, options.format.value_or(console.usualFormat()), options.path,
                       console);
}

ExitStatus flyAndWrite(const Shot& shot, Format format, bool path, const Console& console) {
    const auto flown = fly(shot);
    if (!flown)
        return console.complain(faultDescription(flown.why().fault), ExitStatus::SomeFailed);
    const auto cells = shotCells(*flown);
    if (format == Format::Json) {
        writeJson(*flown, cells, path, console);
    } else if (path) {
        writePath(flown->record, format, console);
    } else if (format == Format::Table) {
        writeList(cells, console);
    } else {
        RowStream rows(console, format, shotColumns());
        rows.row(cells);
        rows.end();
    }
    return console.finish();
}

} // namespace parabolt::cli
