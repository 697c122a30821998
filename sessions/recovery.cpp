#include "sessions/recovery.h"

#include "files/file_access.h"

#include <algorithm>
#include <filesystem>
#include <random>
#include <unistd.h>
#include <utility>
#include <vector>

namespace parabolt {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLast = "last";
constexpr std::string_view kDeskEnding = ".pbs";
constexpr std::string_view kLockEnding = ".lock";
constexpr std::string_view kOwnStart = "running-";

std::optional<Session> readSession(const std::string& fileName) {
    const auto text = readFile(fileName, kLongestSessionFile);
    if (!text)
        return std::nullopt;
    auto session = decodeSession(*text);
    return session ? std::optional(std::move(*session)) : std::nullopt;
}

/// Names of the desks of running programs and abandoned ones, without ending, the newest first.
std::vector<std::string> desksIn(const std::string& folder) {
    std::vector<std::pair<fs::file_time_type, std::string>> found;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const fs::path& path = entry.path();
        if (path.extension() == kDeskEnding && path.stem().string().starts_with(kOwnStart))
            found.emplace_back(entry.last_write_time(error), path.stem().string());
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<std::string> names;
    for (auto& [time, name] : found)
        names.push_back(std::move(name));
    return names;
}

/// Locks a file, unless another holder has it. It comes into being if there is none.
std::unique_ptr<SystemFile> lockFile(const std::string& fileName) {
    auto file = std::make_unique<SystemFile>(fileName, SystemFile::Open::OrNew, 0600);
    const bool ours = !file->error && file->mark() == SystemFile::Mark::Ours;
    return ours ? std::move(file) : nullptr;
}

} // namespace

Recovery::Recovery(std::string folder, std::function<void(const std::string&)> told)
    : folder_(std::move(folder)),
      told_(std::move(told)) {
    if (folder_.empty())
        return;
    own_ = std::string(kOwnStart) + std::to_string(::getpid()) + "-" +
           std::to_string(std::random_device()());
    worker_ = std::thread([this] { work(); });
}

Recovery::~Recovery() {
    if (folder_.empty())
        return;
    {
        const std::lock_guard guard(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    worker_.join();
}

/// Makes the folder, and in it the lock that says that this program lives. A folder that can't be
/// written is tried again at the next write.
void Recovery::enterFolder() {
    if (ownLock_)
        return;
    std::error_code error;
    fs::create_directories(folder_, error);
    if (!error)
        fs::permissions(folder_, fs::perms::owner_all, error);
    ownLock_ = lockFile(file(own_, kLockEnding));
}

std::optional<Session> Recovery::abandoned() {
    if (folder_.empty())
        return std::nullopt;
    for (const std::string& name : desksIn(folder_)) {
        FileLock lock = lockFile(file(name, kLockEnding));
        if (!lock)
            continue;
        if (auto session = readSession(file(name, kDeskEnding))) {
            abandoned_ = Abandoned{name, *session, std::move(lock)};
            return session;
        }
        remove(name, kLockEnding); // an end between our look and our lock left nothing to lock
    }
    return std::nullopt;
}

void Recovery::settle(bool reopened) {
    if (!abandoned_)
        return;
    if (reopened || leaveAsLast(abandoned_->session)) {
        remove(abandoned_->name, kDeskEnding);
        remove(abandoned_->name, kLockEnding);
    }
    abandoned_.reset();
}

void Recovery::keep(Session session) {
    if (folder_.empty())
        return;
    {
        const std::lock_guard guard(mutex_);
        waiting_ = std::move(session);
    }
    changed_.notify_all();
}

bool Recovery::flush() {
    std::unique_lock guard(mutex_);
    changed_.wait(guard, [this] { return !waiting_ && !writing_; });
    return written_;
}

void Recovery::finish(const Session& session) {
    if (folder_.empty())
        return;
    flush();
    enterFolder();
    if (leaveAsLast(session))
        removeOwn();
}

void Recovery::finish() {
    if (folder_.empty())
        return;
    flush();
    removeOwn();
}

void Recovery::removeOwn() {
    remove(own_, kDeskEnding);
    remove(own_, kLockEnding);
    ownLock_.reset();
}

void Recovery::remove(const std::string& name, std::string_view ending) {
    std::error_code ignored;
    fs::remove(file(name, ending), ignored);
}

std::string Recovery::file(const std::string& name, std::string_view ending) const {
    return folder_ + "/" + name + std::string(ending);
}

Outcome<std::string, Failure> Recovery::last() const {
    return readFile(file(kLast, kDeskEnding), kLongestSessionFile);
}

/// True if the desk is safe there, or need not be.
bool Recovery::leaveAsLast(const Session& session) {
    const std::string fileName = file(kLast, kDeskEnding);
    if (session.desk.runs.empty())
        if (const auto old = readSession(fileName); old && !old->desk.runs.empty())
            return true;
    return write(fileName, session);
}

bool Recovery::write(const std::string& fileName, const Session& session) {
    const auto written = replaceFile(fileName, encodeSession(session));
    told_(written ? std::string() : written.why().description);
    return bool{written};
}

void Recovery::work() {
    std::unique_lock guard(mutex_);
    while (true) {
        changed_.wait(guard, [this] { return waiting_ || ends_; });
        if (!waiting_)
            return;
        const Session session = *std::exchange(waiting_, std::nullopt);
        writing_ = true;
        guard.unlock();
        enterFolder();
        const bool written = write(file(own_, kDeskEnding), session);
        guard.lock();
        writing_ = false;
        written_ = written;
        changed_.notify_all();
    }
}

} // namespace parabolt
