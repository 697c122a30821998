#include "cli/command_line.h"
#include "cli/descriptor_stream.h"

#include <cerrno>
#include <csignal>
#include <iostream>
#include <new>
#include <system_error>
#include <unistd.h>

namespace parabolt::cli {
namespace {

/// The command on its streams; what nobody could foresee, such as too little memory, is told too.
int runGuarded(std::vector<std::string> arguments, const Console& console) {
    try {
        return runCommandLine(std::move(arguments), console);
    } catch (const std::bad_alloc&) {
        return static_cast<int>(
            console.complain("The memory doesn't suffice.", ExitStatus::FileFailed));
    } catch (const std::exception& error) {
        return static_cast<int>(console.complain(error.what(), ExitStatus::FileFailed));
    }
}

} // namespace
} // namespace parabolt::cli

/// The standard streams around the command. A reader that has gone away is no fault of ours: the
/// command then ends without a word.
int main(int argc, char** argv) {
    using namespace parabolt::cli;
    std::signal(SIGPIPE, SIG_IGN); // NOLINT(cert-err33-c): it can't fail for this signal
    DescriptorBuffer input(STDIN_FILENO);
    DescriptorBuffer output(STDOUT_FILENO);
    std::istream in(&input);
    std::ostream out(&output);
    const Console console{in, out, std::cerr, ::isatty(STDOUT_FILENO) == 1,
                          ::isatty(STDERR_FILENO) == 1};
    const int status = runGuarded({argv + 1, argv + argc}, console);
    out.flush();
    if (output.error() == EPIPE)
        return static_cast<int>(ExitStatus::Done);
    if (output.error() != 0)
        return static_cast<int>(
            console.complain("the results can't be written: " +
                                 std::error_code(output.error(), std::generic_category()).message(),
                             ExitStatus::FileFailed));
    return status;
}
