#pragma once

#include "controls/rich_text_box.h"
#include "engine/shot_state.h"

#include <string>

namespace parabolt {

/// The three heading lines of the result table, each ended by a carriage return and line feed.
std::string composeResultHeader();

/// The line of one data set, ended likewise. `clubNo` and `number`, the text of the run counter,
/// are those at the time of the row; all else comes from the record.
std::string composeResultRow(const RunRecord& run, std::int16_t clubNo, std::string_view number);

/// What stands in the column at a character of a line, counted from 0; empty behind the last.
std::string_view columnMeaning(std::size_t character);

/// Empties the table and writes the headings in black.
void WriteResultHeader(RichTextBox& table);

/// Adds a data set's line in the colour of its curve, where the caret decides.
void WriteResultRow(RichTextBox& table, const RunRecord& run, std::int16_t clubNo,
                    std::string_view number);

/// True if nothing stands in the table but its headings.
bool holdsOnlyHeadings(const RichTextBox& table);

/// Where a new row goes: in front of the line that holds the caret, but never among the headings;
/// the very start of a table whose headings were cut back by hand.
std::size_t GetInsertPosition(const RichTextBox& box);

/// Keeps the end of the table in view: to be called after each change of its content.
void followTableEnd(RichTextBox& box);

} // namespace parabolt
