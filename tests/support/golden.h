#pragma once

#include "tests/support/temporary_folder.h"

#include <sstream>
#include <string>
#include <vector>

namespace parabolt::support {

/// A file under tests/data without its comments.
inline std::string goldenText(const std::string& name) {
    std::istringstream file(contentOf(PARABOLT_TEST_DATA "/" + name));
    std::string text;
    for (std::string line; std::getline(file, line);)
        text += line.starts_with('#') ? "" : line + "\n";
    return text;
}

/// The rows of such a file, whose cells stand between bars.
inline std::vector<std::vector<std::string>> goldenRows(const std::string& name) {
    std::istringstream text(goldenText(name));
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(text, line);) {
        auto& cells = rows.emplace_back();
        for (std::size_t bar = 0; bar != std::string::npos; line.erase(0, bar + 3)) {
            bar = line.find(" | ");
            cells.push_back(line.substr(0, bar));
            if (bar == std::string::npos)
                break;
        }
    }
    return rows;
}

} // namespace parabolt::support
