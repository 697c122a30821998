#pragma once

#include "cli/console.h"
#include "measured/shot_import.h"

namespace parabolt::cli {

/// Why a row is left out whose user has left out its shot.
inline constexpr std::string_view kMarkedOut = "marked as out";
/// "line 2 is left out: marked as out", as a line of its own.
std::string leftOutText(std::size_t line, std::string_view reason);

/// The shots of a launch monitor's file. What the file was taken for, what was made of its values,
/// and each row that is left out are told to the user. The reason if it holds nothing to fly.
Outcome<ImportPreview, std::string>
importMonitorFile(std::string_view content, const std::string& name, const Console& console);

} // namespace parabolt::cli
