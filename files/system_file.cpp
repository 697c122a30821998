#include "files/system_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace parabolt {

namespace fs = std::filesystem;

SystemFile::SystemFile(const fs::path& name, Open how, ::mode_t permissions) {
    // To open a device can already set it off, so that it is looked at first; should another file
    // come into its place meanwhile, the opening still doesn't wait.
    struct ::stat before {};
    if (::stat(name.c_str(), &before) == 0 && !S_ISREG(before.st_mode)) {
        error = std::make_error_code(S_ISDIR(before.st_mode) ? std::errc::is_a_directory
                                                             : std::errc::not_supported);
        return;
    }
    const int access = how == Open::ForReading ? O_RDONLY : O_RDWR;
    const int flags = access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int exclusive = how == Open::New ? O_EXCL : 0;
    if (how != Open::New)
        descriptor_ = ::open(name.c_str(), flags);
    // Only now: in a folder of many users the system refuses to create what another one owns.
    if (how == Open::New || (how == Open::OrNew && descriptor_ < 0 && errno == ENOENT))
        descriptor_ = ::open(name.c_str(), flags | O_CREAT | exclusive, permissions);
    note(descriptor_ >= 0);
    if (const auto opened = status(); opened && !S_ISREG(opened->st_mode))
        error = std::make_error_code(std::errc::not_supported);
}

SystemFile::~SystemFile() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

void SystemFile::note(bool done) {
    if (!done && !error)
        error = {errno, std::generic_category()};
}

std::optional<struct ::stat> SystemFile::status() {
    struct ::stat result {};
    if (!error)
        note(::fstat(descriptor_, &result) == 0);
    return error ? std::nullopt : std::optional(result);
}

std::string SystemFile::read(std::size_t most) {
    std::string data(most, '\0');
    std::size_t size = 0;
    while (!error && size < most) {
        const ::ssize_t got =
            ::pread(descriptor_, &data[size], most - size, static_cast<::off_t>(size));
        note(got >= 0 || errno == EINTR);
        if (got == 0)
            break;
        size += static_cast<std::size_t>(std::max<::ssize_t>(got, 0));
    }
    data.resize(size);
    return data;
}

void SystemFile::write(std::string_view data) {
    std::size_t size = 0;
    while (!error && size < data.size()) {
        const ::ssize_t put =
            ::pwrite(descriptor_, &data[size], data.size() - size, static_cast<::off_t>(size));
        note(put >= 0 || errno == EINTR);
        size += static_cast<std::size_t>(std::max<::ssize_t>(put, 0));
    }
}

void SystemFile::cut(std::size_t size) {
    if (!error)
        note(::ftruncate(descriptor_, static_cast<::off_t>(size)) == 0);
}

void SystemFile::sync() {
    if (!error) // a system that can't wait says that the argument is wrong
        note(::fsync(descriptor_) == 0 || errno == EINVAL);
}

bool SystemFile::take(const struct ::stat& other) {
    const auto own = status();
    if (!own)
        return false;
    const bool same = own->st_uid == other.st_uid && own->st_gid == other.st_gid;
    // The owner first: to give a file away takes special permissions off it.
    return (same || ::fchown(descriptor_, other.st_uid, other.st_gid) == 0) &&
           ::fchmod(descriptor_, other.st_mode & 07777) == 0;
}

SystemFile::Mark SystemFile::mark() {
    if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0)
        return Mark::Ours;
    return errno == EWOULDBLOCK ? Mark::Others : Mark::None;
}

void syncFolder(const fs::path& folder) {
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

bool hasAccessList(const fs::path& name) {
    return ::getxattr(name.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
}

std::string englishText(const std::error_code& error) {
    const char* const text = ::strerrordesc_np(error.value());
    return text != nullptr ? text : "Unknown error " + std::to_string(error.value());
}

} // namespace parabolt
