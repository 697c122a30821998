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
    FileFailed = 3, ///< a file or stream could not be read or written, or memory ran out
};

/// Why something can't be done, and how the command ends for it.
struct Refusal {
    std::string message;
    ExitStatus status = ExitStatus::BadInput;
};

/// In which form results are written.
enum class Format {
    Csv,
    Json,
    Table, ///< aligned, for people
};

/// "line 7: what", for messages about a row.
std::string lineText(std::size_t line, std::string_view what);

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
    ExitStatus complain(const Refusal& refusal) const {
        return complain(refusal.message, refusal.status);
    }
    /// `Done`, or a failure where the results could not be written: a stream tells once it is
    /// flushed.
    ExitStatus finish(ExitStatus status = ExitStatus::Done) const;
};

/// A stream to read from: the standard input for the name "-", or a file. A refusal carries the
/// name.
class Input {
public:
    static Outcome<Input, Refusal> open(const std::string& name, const Console& console);
    std::istream& stream() { return *stream_; }
    /// The name for people.
    const std::string& name() const { return name_; }
    /// `begun`, which was read before, with all that is left: together at most that many bytes;
    /// the refusal if there is more, or reading fails.
    Outcome<std::string, Refusal> readAll(std::size_t most, std::string begun = {});
    /// What is told where reading has failed.
    Refusal unreadable() const;

private:
    std::string name_;
    std::unique_ptr<std::istream> file_;
    std::istream* stream_ = nullptr;
};

} // namespace parabolt::cli
