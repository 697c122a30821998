#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>

namespace parabolt {

/// An open ordinary file of the system, closed with the object. After a call that fails `error`
/// tells why, and stays so.
class SystemFile {
public:
    /// `New` fails where there is a file. A file opened `ForReading` is there, and stays as it is.
    enum class Open { ForReading, Existing, OrNew, New };
    enum class Mark { Ours, Others, None }; ///< `None` where files can't be marked

    /// Opens a file, for reading and writing unless told otherwise. One that comes into being gets
    /// those permissions, less what the user's mask takes away. Whatever is no ordinary file fails
    /// with `not_supported` or, if it is a folder, with `is_a_directory`.
    SystemFile(const std::filesystem::path& name, Open how, ::mode_t permissions = 0666);
    ~SystemFile();
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    std::error_code error;

    /// What the system knows of the file; nothing after a failure.
    std::optional<struct ::stat> status();
    /// Reads from the start, at most that many bytes.
    std::string read(std::size_t most);
    /// Writes from the start, and leaves what stands behind.
    void write(std::string_view data);
    /// Ends the file behind so many bytes.
    void cut(std::size_t size);
    /// Waits until the file stands on the disk, as far as its system can tell.
    void sync();
    /// Gives the file owner, group and permissions of another one. False if that may not be.
    bool take(const struct ::stat& other);
    /// Marks the file as in use until it is closed or its process ends, unless others have.
    Mark mark();

private:
    void note(bool done);

    int descriptor_ = -1;
};

/// Waits until the names in a folder stand on the disk, as far as the system can tell.
void syncFolder(const std::filesystem::path& folder);

/// Whether a file has an access list beyond the permissions of owner, group and others.
bool hasAccessList(const std::filesystem::path& name);

/// The system's description of an error in English.
std::string englishText(const std::error_code& error);

} // namespace parabolt
