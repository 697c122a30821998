#include "cli/console.h"

#include "files/system_file.h"

#include <cerrno>
#include <fstream>
#include <utility>

namespace parabolt::cli {

std::string lineText(std::size_t line, std::string_view what) {
    return "line " + std::to_string(line) + ": " + std::string(what);
}

ExitStatus Console::complain(std::string_view what, ExitStatus status) const {
    err << "parabolt-cli: " << what << '\n';
    return status;
}

ExitStatus Console::finish(ExitStatus status) const {
    out.flush();
    return out ? status : ExitStatus::FileFailed;
}

Outcome<Input, Refusal> Input::open(const std::string& name, const Console& console) {
    Input input;
    input.name_ = name == "-" ? "standard input" : name;
    input.stream_ = &console.in;
    if (name == "-")
        return input;
    auto file = std::make_unique<std::ifstream>(name, std::ios::binary);
    // The system opens a folder, and refuses to read it.
    if (!*file || (file->peek() == std::ifstream::traits_type::eof() && file->bad()))
        return because(Refusal{name + ": " + englishText({errno, std::generic_category()}),
                               ExitStatus::FileFailed});
    file->clear();
    input.file_ = std::move(file);
    input.stream_ = input.file_.get();
    return input;
}

Outcome<std::string, Refusal> Input::readAll(std::size_t most, std::string begun) {
    std::string text = std::move(begun);
    std::string piece(std::size_t{64} << 10, '\0');
    while (*stream_ && text.size() <= most) {
        stream_->read(piece.data(), static_cast<std::streamsize>(piece.size()));
        text.append(piece, 0, static_cast<std::size_t>(stream_->gcount()));
    }
    if (stream_->bad())
        return because(unreadable());
    if (text.size() > most)
        return because(Refusal{name_ + ": It has more than " + std::to_string(most) + " bytes.",
                               ExitStatus::FileFailed});
    return text;
}

Refusal Input::unreadable() const {
    return {name_ + ": It can't be read to its end.", ExitStatus::FileFailed};
}

} // namespace parabolt::cli
