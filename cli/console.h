#pragma once

#include "files/failure.h"
#include "numbers/outcome.h"

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace parabolt::cli {

/// How the command ended.
enum class ExitStatus {
    Done = 0,
    SomeFailed = 1, ///< all was read, but some shots gave no result
    BadInput = 2,   ///< options or input that make no sense; from a stream, results up to there
    FileFailed = 3, ///< a file or stream could not be read or written
};

/// In which form results are written.
enum class Format {
    Csv,
    Json,
    Table, ///< aligned, for people
};

/// What the command reads and writes.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool outIsTerminal = false;
    bool errIsTerminal = false;

    /// The format where none is asked for.
    Format usualFormat() const { return outIsTerminal ? Format::Table : Format::Csv; }
    /// Tells the user what went wrong, and gives the status back.
    ExitStatus complain(std::string_view what, ExitStatus status = ExitStatus::BadInput) const;
    /// `Done`, or a failure where the results could not be written: a stream tells once it is
    /// flushed.
    ExitStatus finish(ExitStatus status = ExitStatus::Done) const;
};

/// A stream to read from: the standard input for the name "-", or a file. A failure carries the
/// name.
class Input {
public:
    static Outcome<Input, std::string> open(const std::string& name, const Console& console);
    std::istream& stream() { return *stream_; }
    /// All that is left, at most that many bytes; the reason if there is more, or reading fails.
    Outcome<std::string, std::string> readAll(std::size_t most);

private:
    std::string name_;
    std::unique_ptr<std::istream> file_;
    std::istream* stream_ = nullptr;
};

} // namespace parabolt::cli
