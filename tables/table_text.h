#pragma once

#include "tables/table_source.h"

namespace parabolt {

// Tables as texts, with a row of headings first and boxes as 1 and 0.

/// Comma-separated values, numbers in full.
std::string tableAsCsv(const TableSource& table, const TableExtract& extract);
/// Lines of cells between tabs, as people read them. A tab or a line end within a cell becomes a
/// blank.
std::string tableAsTabs(const TableSource& table, const TableExtract& extract);
/// A table of a web page, from which spreadsheets take cells: numbers in full.
std::string tableAsHtml(const TableSource& table, const TableExtract& extract);

/// The rows of cells as people read them.
std::vector<std::vector<std::string>> tableAsCells(const TableSource& table,
                                                   const TableExtract& extract);

} // namespace parabolt
