#pragma once

#include "files/byte_cursor.h"
#include "files/failure.h"
#include "numbers/outcome.h"

namespace parabolt {

/// Reading and writing of whole small files. File names are UTF-8. Only ordinary files are read and
/// written, by their name or by a link to them: a pipe or a device is refused, and never waited
/// for. A failure carries an English description, whatever the language of the desktop, and the
/// number `kBadFileName` if no file can have such a name.
///
/// A write goes to a temporary file beside the old one, which takes its place only when it stands
/// complete on the disk: if the disk fills up or the power fails half-way, the old file is still
/// whole. The bytes go straight into the old file where it would otherwise not be the same one
/// afterwards: where it has several names, or an owner, a group or an access list that the new file
/// can't be given, where the folder takes no new file, and where the file is large. A write first
/// removes what killed writes have left in the folder.

/// The first bytes of a file, at most that many. The file is opened for reading and writing, and a
/// file that doesn't exist comes into being, empty.
Outcome<Bytes, Failure> readFileStart(const std::string& fileName, std::size_t most);

/// The whole of a regular file, at most that many bytes. It is opened for reading only.
Outcome<std::string, Failure> readFile(const std::string& fileName, std::size_t most);

/// Writes over the beginning of a file and leaves what stands behind; creates the file if needed.
Outcome<void, Failure> writeFileStart(const std::string& fileName, const Bytes& data);

/// Replaces the content of a file; creates the file if needed.
Outcome<void, Failure> replaceFile(const std::string& fileName, std::string_view content);

} // namespace parabolt
