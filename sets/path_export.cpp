#include "sets/path_export.h"

#include "exchange/csv_writer.h"
#include "sets/path_points.h"

namespace parabolt {

std::string composePaths(const RunBook& book) {
    CsvWriter csv;
    for (const char* heading : {"Data set", "Name", "Time [s]", "x [yd]", "y [yd]"})
        csv.field(heading);
    csv.endRow();
    for (int number = 1; number <= book.count(); ++number) {
        const auto& path = book[number].Path;
        for (std::size_t i = 0; i < path.size(); ++i)
            csv.field(std::to_string(number))
                .field(book.tag(number).name)
                .field(timeAt(i))
                .field(path[i].x)
                .field(path[i].y)
                .endRow();
    }
    return csv.text();
}

} // namespace parabolt
