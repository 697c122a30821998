#include "files/file_access.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <system_error>

namespace parabolt {

namespace fs = std::filesystem;

namespace {

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

enum class Tail { Kept, Dropped };

std::error_code lastError() {
    return {errno, std::generic_category()};
}

Because<Failure> failure(const std::error_code& error) {
    const bool badName = error == std::errc::filename_too_long ||
                         error == std::errc::invalid_argument ||
                         error == std::errc::illegal_byte_sequence;
    const auto code = static_cast<std::uint32_t>(error.value());
    return because(Failure{badName ? kBadFileName : kFileFailureBase + code, error.message()});
}

/// The system's functions would take such a name for the part in front of the zero.
bool holdsZero(const std::string& fileName) {
    return fileName.find('\0') != std::string::npos;
}

/// Opens a file for reading and writing where it stands; creates it if there is none.
File openOrCreate(const std::string& fileName) {
    File file(std::fopen(fileName.c_str(), "r+b"));
    if (file == nullptr && errno == ENOENT)
        file.reset(std::fopen(fileName.c_str(), "w+b"));
    return file;
}

/// Writes at the file's position and closes it. Only the close tells whether all has arrived.
std::error_code writeAndClose(File file, const std::string& data) {
    if (std::fwrite(data.data(), 1, data.size(), file.get()) != data.size())
        return lastError();
    return std::fclose(file.release()) == 0 ? std::error_code() : lastError();
}

std::error_code writeInPlace(const std::string& fileName, const std::string& data, Tail tail) {
    File file =
        tail == Tail::Kept ? openOrCreate(fileName) : File(std::fopen(fileName.c_str(), "wb"));
    return file == nullptr ? lastError() : writeAndClose(std::move(file), data);
}

fs::path temporaryName(const fs::path& target) {
    return target.parent_path() / (".parabolt-" + std::to_string(std::random_device()()) + ".tmp");
}

/// Makes the new file beside the old one. `old` is what is known of the old file.
std::error_code writeTemporary(const fs::path& temporary, const fs::path& target,
                               const fs::file_status& old, const std::string& data, Tail tail) {
    std::error_code error;
    const bool copy = fs::exists(old) && tail == Tail::Kept;
    if (copy && !fs::copy_file(target, temporary, error))
        return error;
    File file(std::fopen(temporary.c_str(), copy ? "r+b" : "wbx"));
    if (file == nullptr)
        return lastError();
    if (fs::exists(old)) // before anything private stands in it
        fs::permissions(temporary, old.permissions(), error);
    return error ? error : writeAndClose(std::move(file), data);
}

bool takesPlaceOfOld(const fs::path& target, const fs::file_status& old) {
    std::error_code ignored;
    if (!fs::exists(old)) // a link whose target is missing stays, and gets its target
        return !fs::is_symlink(fs::symlink_status(target, ignored));
    return fs::is_regular_file(old) && fs::hard_link_count(target, ignored) == 1;
}

Outcome<void, Failure> write(const std::string& fileName, const std::string& data, Tail tail) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    std::error_code error;
    fs::path target = fs::canonical(fileName, error);
    if (error)
        target = fileName;
    const fs::file_status old = fs::status(target, error);
    if (fs::exists(old) && File(std::fopen(target.c_str(), "r+b")) == nullptr)
        return failure(lastError());

    bool inPlace = !takesPlaceOfOld(target, old);
    error.clear();
    if (!inPlace) {
        const fs::path temporary = temporaryName(target);
        error = writeTemporary(temporary, target, old, data, tail);
        if (!error)
            fs::rename(temporary, target, error);
        if (error) {
            std::error_code ignored;
            fs::remove(temporary, ignored);
        }
        inPlace =
            error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
    }
    if (inPlace)
        error = writeInPlace(target.string(), data, tail);
    if (error)
        return failure(error);
    return {};
}

} // namespace

Outcome<Bytes, Failure> readFileStart(const std::string& fileName, std::size_t most) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    std::error_code error;
    const fs::file_status status = fs::status(fileName, error);
    // A pipe or a terminal would let the reader wait without end.
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status))
        return failure(std::make_error_code(std::errc::not_supported));
    const File file = openOrCreate(fileName);
    if (file == nullptr)
        return failure(lastError());
    Bytes data(most);
    data.resize(std::fread(data.data(), 1, most, file.get()));
    if (std::ferror(file.get()) != 0)
        return failure(lastError());
    return data;
}

Outcome<std::string, Failure> readFile(const std::string& fileName, std::size_t most) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    std::error_code error;
    const std::uintmax_t size = fs::file_size(fileName, error); // what is no file has none
    if (error)
        return failure(error);
    const File file(std::fopen(fileName.c_str(), "rb"));
    if (file == nullptr)
        return failure(lastError());
    std::string data(std::min<std::uintmax_t>(size, most), '\0');
    data.resize(std::fread(data.data(), 1, data.size(), file.get()));
    if (std::ferror(file.get()) != 0)
        return failure(lastError());
    return data;
}

Outcome<void, Failure> writeFileStart(const std::string& fileName, const Bytes& data) {
    return write(fileName, std::string(data.begin(), data.end()), Tail::Kept);
}

Outcome<void, Failure> replaceFile(const std::string& fileName, const std::string& content) {
    return write(fileName, content, Tail::Dropped);
}

} // namespace parabolt
