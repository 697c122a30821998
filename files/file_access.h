#pragma once

#include "files/byte_cursor.h"
#include "files/failure.h"
#include "numbers/outcome.h"

namespace parabolt {

/// Reading and writing of whole small files. File names are UTF-8. A failure carries the system's
/// own description, and the number `kBadFileName` if no file can have such a name.
///
/// A write goes to a temporary file beside the old one, which takes its place only when it is
/// complete: if the disk fills up half-way, the old file is still whole. Where the folder takes no
/// new file, or the name stands for a device or is one of several names of the file, the bytes go
/// straight into it.

/// The first bytes of a file, at most that many. The file is opened for reading and writing, and a
/// file that doesn't exist comes into being, empty.
Outcome<Bytes, Failure> readFileStart(const std::string& fileName, std::size_t most);

/// The whole of a regular file, at most that many bytes. It is opened for reading only.
Outcome<std::string, Failure> readFile(const std::string& fileName, std::size_t most);

/// Writes over the beginning of a file and leaves what stands behind; creates the file if needed.
Outcome<void, Failure> writeFileStart(const std::string& fileName, const Bytes& data);

/// Replaces the content of a file; creates the file if needed.
Outcome<void, Failure> replaceFile(const std::string& fileName, const std::string& content);

} // namespace parabolt
