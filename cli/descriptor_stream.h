#pragma once

#include <streambuf>
#include <vector>

namespace parabolt::cli {

/// The buffer of a stream on an open file of the system, such as the standard output. It gives what
/// a pipe has at once, and remembers why a write failed.
class DescriptorBuffer : public std::streambuf {
public:
    explicit DescriptorBuffer(int descriptor);
    DescriptorBuffer(const DescriptorBuffer&) = delete;
    DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;
    ~DescriptorBuffer() override = default; // whoever wants the rest written flushes

    /// The system's number of the error that ended reading or writing; 0 if none did.
    int error() const { return error_; }

protected:
    int_type underflow() override;
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;

private:
    bool writeAll(const char* text, std::size_t size);
    void emptyOutput();

    int descriptor_;
    int error_ = 0;
    std::vector<char> input_;
    std::vector<char> output_;
};

} // namespace parabolt::cli
