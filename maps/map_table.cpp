#include "maps/map_table.h"

#include "exchange/csv_writer.h"
#include "numbers/rounding.h"
#include "shots/fault_words.h"

namespace parabolt {
namespace {

/// Name and unit as a heading of a table: "Carry [yd]".
std::string columnHeading(std::string_view name, std::string_view unit) {
    return std::string(name) + " [" + (unit == "\u00b0" ? "deg" : std::string(unit)) + "]";
}

void writeFigure(CsvWriter& csv, const Figures& figures, MapOutcome outcome) {
    const double figure = figureOf(figures, outcome);
    isNarrow(outcome) ? csv.field(store32(figure)) : csv.field(figure);
}

} // namespace

std::string composeMapTable(const MapResult& result) {
    CsvWriter csv;
    const MapKind kind = result.request.kind;
    for (const MapInput* input : {&acrossInput(kind), &upInput(kind)})
        csv.field(columnHeading(input->name, input->unit));
    for (const MapOutcome outcome : mapOutcomes())
        csv.field(columnHeading(textOf(outcome).name, textOf(outcome).unit));
    csv.field("No value because").endRow();
    const MapGrid& grid = result.grid;
    for (int row = 0; row < grid.rows(); ++row)
        for (int column = 0; column < grid.columns(); ++column) {
            const MapGrid::Node& node = grid.at(column, row);
            if (!node)
                continue;
            csv.field(grid.point(column, row).across).field(grid.point(column, row).up);
            for (const MapOutcome outcome : mapOutcomes())
                if (*node)
                    writeFigure(csv, (*node)->figures, outcome);
                else
                    csv.empty();
            csv.field(*node ? std::string_view() : faultDescription(node->why())).endRow();
        }
    return csv.text();
}

} // namespace parabolt
