#pragma once

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>

namespace parabolt::support {

/// A folder that lives as long as the object.
class TemporaryFolder {
public:
    TemporaryFolder() { EXPECT_NE(::mkdtemp(folder_.data()), nullptr) << folder_; }
    ~TemporaryFolder() { std::filesystem::remove_all(folder_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return folder_; }
    std::string path(const std::string& name) const { return folder_ + "/" + name; }
    std::ptrdiff_t entries() const {
        return std::distance(std::filesystem::directory_iterator(folder_), {});
    }

private:
    std::string folder_ = testing::TempDir() + "parabolt-XXXXXX";
};

inline std::string contentOf(const std::string& fileName) {
    std::ifstream file(fileName, std::ios::binary);
    EXPECT_TRUE(file) << "cannot read " << fileName;
    return {std::istreambuf_iterator(file), {}};
}

inline void putContent(const std::string& fileName, const std::string& content) {
    std::ofstream file(fileName, std::ios::binary);
    EXPECT_TRUE(file << content) << "cannot write " << fileName;
}

/// A disk that refuses whatever a file would hold beyond so many bytes, as long as the object
/// lives. It refuses for real: through the limit that the system puts on this process.
class FailingDisk {
public:
    explicit FailingDisk(std::size_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, before_.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FailingDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = SIG_DFL;
};

} // namespace parabolt::support
