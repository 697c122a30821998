#include "sessions/recovery.h"

#include "files/file_access.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <unistd.h>
#include <utility>
#include <vector>

namespace parabolt {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLast = "last";
constexpr const char* kPrevious = "previous";
constexpr std::string_view kDeskEnding = ".pbs";
constexpr std::string_view kLockEnding = ".lock";
constexpr std::string_view kOwnStart = "running-";
constexpr std::chrono::minutes kPause{1}; // before what failed is tried again

std::optional<Session> readSession(const std::string& fileName) {
    const auto text = readFile(fileName, kLongestSessionFile);
    if (!text)
        return std::nullopt;
    auto session = decodeSession(*text);
    return session ? std::optional(std::move(*session)) : std::nullopt;
}

bool holdsWork(const std::optional<Session>& session) {
    return session && !workOn(session->desk).isNone();
}

/// Names of the locks, or of the desks, of running programs and abandoned ones, without ending, the
/// newest first.
std::vector<std::string> filesIn(const std::string& folder, std::string_view ending) {
    std::vector<std::pair<fs::file_time_type, std::string>> found;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const fs::path& path = entry.path();
        if (path.extension() == ending && path.stem().string().starts_with(kOwnStart))
            found.emplace_back(entry.last_write_time(error), path.stem().string());
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<std::string> names;
    names.reserve(found.size());
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
    std::error_code error;
    if (ownLock_ && fs::exists(file(own_, kLockEnding), error))
        return;
    fs::create_directories(folder_, error);
    if (!error)
        fs::permissions(folder_, fs::perms::owner_all, error);
    ownLock_ = lockFile(file(own_, kLockEnding));
}

std::optional<Session> Recovery::abandoned() {
    if (folder_.empty())
        return std::nullopt;
    // Locks alone, of programs that ended before they had kept a desk.
    for (const std::string& name : filesIn(folder_, kLockEnding))
        if (!fs::exists(file(name, kDeskEnding)) && lockFile(file(name, kLockEnding)))
            remove(name, kLockEnding);
    for (const std::string& name : filesIn(folder_, kDeskEnding)) {
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
    if (reopened)
        remove(abandoned_->name, kDeskEnding);
    else
        leaveAsLast(abandoned_->name);
    remove(abandoned_->name, kLockEnding);
    abandoned_.reset();
}

void Recovery::keep(Session session) {
    if (folder_.empty())
        return;
    {
        const std::lock_guard guard(mutex_);
        const bool empties =
            !waiting_.empty() && workOn(waiting_.back().desk).isLostOn(workOn(session.desk));
        if (!empties && !waiting_.empty())
            waiting_.pop_back();
        waiting_.push_back(std::move(session));
    }
    changed_.notify_all();
}

bool Recovery::flush() {
    std::unique_lock guard(mutex_);
    changed_.wait(guard, [this] { return waiting_.empty() && !writing_; });
    return written_;
}

void Recovery::finish(const Session& session) {
    if (folder_.empty())
        return;
    keep(session);
    flush();
    leaveAsLast(own_);
    remove(own_, kLockEnding);
    ownLock_.reset();
}

void Recovery::finish() {
    if (folder_.empty())
        return;
    flush();
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

/// Makes a kept desk the last session, unless it would take the place of a fuller one. That needs
/// no room on the disk.
void Recovery::leaveAsLast(const std::string& name) {
    const std::string kept = file(name, kDeskEnding);
    const std::string last = file(kLast, kDeskEnding);
    if (holdsWork(readSession(last)) && !holdsWork(readSession(kept)))
        return remove(name, kDeskEnding);
    makeRoomForLast();
    std::error_code ignored;
    fs::rename(kept, last, ignored);
}

/// The last session becomes the previous one, if it is worth it.
void Recovery::makeRoomForLast() {
    std::error_code ignored;
    if (holdsWork(readSession(file(kLast, kDeskEnding))))
        fs::rename(file(kLast, kDeskEnding), file(kPrevious, kDeskEnding), ignored);
}

/// Leaves the desk in our file as the last session before a lesser one takes its place.
void Recovery::saveOwnAsLast() {
    const std::string own = file(own_, kDeskEnding);
    const std::string last = file(kLast, kDeskEnding);
    if (const auto kept = readFile(own, kLongestSessionFile)) {
        makeRoomForLast();
        std::error_code ignored;
        if (!replaceFile(last, *kept)) // a full disk: a new name needs no room
            fs::rename(own, last, ignored);
    }
    ownWork_ = {};
}

bool Recovery::write(const Session& session) {
    enterFolder();
    const std::string own = file(own_, kDeskEnding);
    const DeskWork work = workOn(session.desk);
    if (ownWork_.isLostOn(work))
        saveOwnAsLast();
    const auto written = replaceFile(own, encodeSession(session));
    if (written)
        ownWork_ = work;
    told_(written ? std::string() : written.why().description);
    return bool{written};
}

void Recovery::work() {
    std::unique_lock guard(mutex_);
    const auto called = [this] { return !waiting_.empty() || ends_; };
    std::optional<Session> unsaved;
    while (true) {
        if (unsaved)
            changed_.wait_for(guard, kPause, called);
        else
            changed_.wait(guard, called);
        if (!waiting_.empty()) {
            unsaved = std::move(waiting_.front());
            waiting_.pop_front();
        } else if (ends_) {
            return;
        }
        writing_ = true;
        guard.unlock();
        const bool written = write(*unsaved);
        guard.lock();
        writing_ = false;
        written_ = written;
        if (written)
            unsaved.reset();
        changed_.notify_all();
    }
}

} // namespace parabolt
