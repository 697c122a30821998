#include "cli/console.h"

#include "files/system_file.h"

#include <cerrno>
#include <fstream>

namespace parabolt::cli {

ExitStatus Console::complain(std::string_view what, ExitStatus status) const {
    err << "parabolt-cli: " << what << '\n';
    return status;
}

ExitStatus Console::finish(ExitStatus status) const {
    out.flush();
    return out ? status : ExitStatus::FileFailed;
}

Outcome<Input, std::string> Input::open(const std::string& name, const Console& console) {
    Input input;
    input.name_ = name;
    input.stream_ = &console.in;
    if (name == "-")
        return input;
    auto file = std::make_unique<std::ifstream>(name, std::ios::binary);
    // The system opens a folder, and refuses to read it.
    if (!*file || (file->peek() == std::ifstream::traits_type::eof() && file->bad()))
        return because(name + ": " + englishText({errno, std::generic_category()}));
    file->clear();
    input.file_ = std::move(file);
    input.stream_ = input.file_.get();
    return input;
}

Outcome<std::string, std::string> Input::readAll(std::size_t most) {
    std::string text(most + 1, '\0');
    stream_->read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream_->gcount()));
    if (stream_->bad())
        return because(name_ + ": it can't be read.");
    if (text.size() > most)
        return because(name_ + ": it has more than " + std::to_string(most) + " bytes.");
    return text;
}

} // namespace parabolt::cli
