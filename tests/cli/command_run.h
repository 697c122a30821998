#pragma once

#include "cli/command_line.h"

#include <gtest/gtest.h>
#include <sstream>

namespace parabolt::support {

/// What a run of the command left.
struct CommandRun {
    int status = 0;
    std::string out;
    std::string err;
};

/// Runs the command; the arguments are parted by blanks.
inline CommandRun runCommand(const std::string& arguments, const std::string& input = {},
                             bool terminal = false) {
    std::istringstream words(arguments);
    std::vector<std::string> list;
    for (std::string word; words >> word;)
        list.push_back(word);
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = cli::runCommandLine(list, {in, out, err, terminal, false});
    return {status, out.str(), err.str()};
}

/// The lines of a text, without their ends.
inline std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line.substr(0, line.find('\r')));
    return lines;
}

} // namespace parabolt::support
