#pragma once

#include "printing/report.h"

#include <optional>

namespace parabolt {

/// What the user writes on a sheet.
struct SheetFields {
    std::string player;
    std::string fitter;
    std::string date;
    std::string note;
    friend bool operator==(const SheetFields&, const SheetFields&) = default;
};

/// The fields as one text, to be kept with a session, and back. What isn't such a text gives empty
/// fields.
std::string fieldsText(const SheetFields& fields);
SheetFields fieldsOf(std::string_view text);

/// A page of our own: title, fields, pictures and one table.
struct SheetContent {
    std::string title;
    SheetFields fields; ///< empty ones are left out
    /// Drawn in the shape of the room that they get: above each other, the first one highest, where
    /// there is height for it, else side by side.
    std::vector<DrawChart> charts;
    /// Rows of cells, headings first; columns of numbers, and those with a unit, end at their right
    /// edge.
    std::vector<std::vector<std::string>> table;
    std::string remark; ///< below the table
};

/// Draws a sheet on a page whose units are inches from the corner of the printable area; all fits
/// into the report's frame. `Ratio` is the size of the target relative to the page, 1 for a
/// printer. The table shrinks as far as it can be read; then its long texts lose their middles, and
/// only then it shrinks on. Charts share the room that it leaves.
void composeSheet(Page& target, double Ratio, const SheetContent& content);

} // namespace parabolt
