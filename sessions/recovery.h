#pragma once

#include "files/failure.h"
#include "files/system_file.h"
#include "numbers/outcome.h"
#include "sessions/desk_work.h"
#include "sessions/session_codec.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace parabolt {

/// Keeps the desk safe in the program's own state folder. Each running program has a file of its
/// own there, beside a lock that ends with its process: a desk whose lock nobody holds is that of a
/// program that did not end properly. An orderly end leaves the desk as `last.pbs`, and so does
/// what leaves fewer data sets or measured shots on a desk; the last one before stays as
/// `previous.pbs`.
///
/// A thread of its own writes the files; only `flush` and `finish` wait for it.
class Recovery {
public:
    /// An empty folder name keeps nothing. `told` learns after each write, on the thread that
    /// writes, why it failed, or an empty text.
    Recovery(std::string folder, std::function<void(const std::string&)> told);
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// The newest desk of a program that did not end properly. It stays in the folder, and ours,
    /// until `settle` says what becomes of it.
    std::optional<Session> abandoned();
    /// The abandoned desk has been laid and kept (true); or it isn't wanted (false) and becomes the
    /// last session, so that nobody asks again.
    void settle(bool reopened);

    /// Writes a desk, soon: of several that come while one is being written, the last, and
    /// the last before data sets or measured shots went. One that could not be written is tried
    /// again every minute.
    void keep(Session session);
    /// Waits until all has been written, and says whether the last of it could be.
    bool flush();
    /// Leaves a desk as the last session, and nothing for a recovery. One without data sets
    /// and measured shots never replaces one that has some.
    void finish(const Session& session);
    /// Ends without a desk to leave.
    void finish();

    /// What the last orderly end left; the failure of its file otherwise.
    Outcome<std::string, Failure> last() const;

private:
    /// A file that this process holds locked. The lock goes with the object, or with the process,
    /// however that ends.
    using FileLock = std::unique_ptr<SystemFile>;

    void enterFolder();
    void work();
    bool write(const Session& session);
    void leaveAsLast(const std::string& name);
    void makeRoomForLast();
    void saveOwnAsLast();
    std::string file(const std::string& name, std::string_view ending) const;
    void remove(const std::string& name, std::string_view ending);

    std::string folder_;
    std::function<void(const std::string&)> told_;
    std::string own_; ///< name of our files, without ending
    FileLock ownLock_;
    DeskWork ownWork_; ///< on the desk in our file

    struct Abandoned {
        std::string name;
        Session session;
        FileLock lock;
    };
    std::optional<Abandoned> abandoned_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Session> waiting_;
    bool writing_ = false;
    bool written_ = true; ///< did the last write end well?
    bool ends_ = false;
    std::thread worker_;
};

} // namespace parabolt
