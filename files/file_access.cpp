#include "files/file_access.h"

#include "files/system_file.h"

#include <algorithm>
#include <random>

namespace parabolt {

namespace fs = std::filesystem;

namespace {

enum class Tail { Kept, Dropped };
using Open = SystemFile::Open;

constexpr std::string_view kTemporaryStart = ".parabolt-";
constexpr std::string_view kTemporaryEnd = ".tmp";

/// A larger file has a tail that isn't ours: to copy it, perhaps by the gigabyte, would cost the
/// user more than a whole old file is worth.
constexpr ::off_t kMostCopied = 1 << 20;

Because<Failure> failure(const std::error_code& error) {
    const bool badName = error == std::errc::filename_too_long ||
                         error == std::errc::invalid_argument ||
                         error == std::errc::illegal_byte_sequence;
    const auto code = static_cast<std::uint32_t>(error.value());
    return because(Failure{badName ? kBadFileName : kFileFailureBase + code,
                           error == std::errc::not_supported
                               ? "This is a pipe or a device, not an ordinary file"
                               : englishText(error)});
}

/// The system's functions would take such a name for the part in front of the zero.
bool holdsZero(const std::string& fileName) {
    return fileName.find('\0') != std::string::npos;
}

/// What stands for an end that leaves the bytes to be written into the old file.
std::error_code intoOldFile() {
    return std::make_error_code(std::errc::operation_not_permitted);
}

std::error_code writeInPlace(const fs::path& target, std::string_view data, Tail tail) {
    SystemFile file(target, Open::OrNew);
    file.write(data);
    if (tail == Tail::Dropped)
        file.cut(data.size());
    file.sync();
    return file.error;
}

bool isTemporaryName(const std::string& name) {
    return name.size() > kTemporaryStart.size() + kTemporaryEnd.size() &&
           name.starts_with(kTemporaryStart) && name.ends_with(kTemporaryEnd) &&
           std::all_of(name.begin() + kTemporaryStart.size(), name.end() - kTemporaryEnd.size(),
                       [](char c) { return c >= '0' && c <= '9'; });
}

/// Removes the temporary files of writes that didn't live to do so. A living one has marked its
/// own.
void removeLeftovers(const fs::path& folder) {
    std::error_code ignored;
    const fs::directory_iterator end;
    for (fs::directory_iterator at(folder.empty() ? "." : folder, ignored); at != end;
         at.increment(ignored)) {
        if (!isTemporaryName(at->path().filename().string()) || at->is_symlink(ignored))
            continue;
        SystemFile file(at->path(), Open::Existing);
        if (!file.error && file.mark() == SystemFile::Mark::Ours)
            fs::remove(at->path(), ignored);
    }
}

/// Puts a new file into the place of the target. `old` is what is known of the old one, if any.
std::error_code putNewFile(const fs::path& target, const std::optional<struct ::stat>& old,
                           std::string_view content) {
    for (;;) {
        const fs::path name =
            target.parent_path() / std::string(kTemporaryStart)
                                       .append(std::to_string(std::random_device()()))
                                       .append(kTemporaryEnd);
        // Nobody else may read the content of a private file meanwhile.
        SystemFile file(name, Open::New, old ? 0600 : 0666);
        if (file.error)
            return file.error;
        const bool others = file.mark() == SystemFile::Mark::Others;
        if (const auto made = file.status(); others || (made && made->st_nlink == 0))
            continue; // taken for a leftover before it was marked

        std::error_code error;
        if (old && !file.take(*old)) {
            error = intoOldFile();
        } else {
            file.write(content);
            file.sync();
            error = file.error;
        }
        if (!error)
            fs::rename(name, target, error);
        std::error_code ignored;
        if (error)
            fs::remove(name, ignored);
        else
            syncFolder(target.parent_path());
        return error;
    }
}

/// Writes a new file that takes the place of the old one.
std::error_code writeAnew(const fs::path& target, std::string_view data, Tail tail) {
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(target, ignored)))
        return putNewFile(target, std::nullopt, data);
    SystemFile file(target, Open::Existing);
    const std::optional<struct ::stat> old = file.status();
    if (file.error == std::errc::no_such_file_or_directory)
        return intoOldFile(); // the link stays, and gets its target
    if (!old)
        return file.error;
    const bool large = tail == Tail::Kept && old->st_size > kMostCopied;
    if (large || old->st_nlink > 1 || hasAccessList(target))
        return intoOldFile();
    std::string content(data);
    if (tail == Tail::Kept) {
        const std::string before = file.read(static_cast<std::size_t>(old->st_size));
        content.append(before, std::min(before.size(), data.size()));
    }
    return file.error ? file.error : putNewFile(target, old, content);
}

Outcome<void, Failure> write(const std::string& fileName, std::string_view data, Tail tail) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    std::error_code error;
    fs::path target = fs::canonical(fileName, error);
    if (error)
        target = fileName;
    removeLeftovers(target.parent_path());
    error = writeAnew(target, data, tail);
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        error = writeInPlace(target, data, tail);
    if (error)
        return failure(error);
    return {};
}

} // namespace

Outcome<Bytes, Failure> readFileStart(const std::string& fileName, std::size_t most) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    SystemFile file(fileName, Open::OrNew);
    const std::string data = file.read(most);
    if (file.error)
        return failure(file.error);
    return Bytes(data.begin(), data.end());
}

Outcome<std::string, Failure> readFile(const std::string& fileName, std::size_t most) {
    if (holdsZero(fileName))
        return failure(std::make_error_code(std::errc::invalid_argument));
    SystemFile file(fileName, Open::ForReading);
    const std::optional<struct ::stat> status = file.status();
    std::string data =
        file.read(status ? std::min(static_cast<std::size_t>(status->st_size), most) : 0);
    if (file.error)
        return failure(file.error);
    return data;
}

Outcome<void, Failure> writeFileStart(const std::string& fileName, const Bytes& data) {
    return write(fileName, std::string(data.begin(), data.end()), Tail::Kept);
}

Outcome<void, Failure> replaceFile(const std::string& fileName, std::string_view content) {
    return write(fileName, content, Tail::Dropped);
}

} // namespace parabolt
