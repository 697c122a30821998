#include "cli/descriptor_stream.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace parabolt::cli {

namespace {
constexpr std::size_t kBufferSize = std::size_t{64} << 10;
}

DescriptorBuffer::DescriptorBuffer(int descriptor)
    : descriptor_(descriptor),
      input_(kBufferSize),
      output_(kBufferSize) {
    emptyOutput();
}

DescriptorBuffer::int_type DescriptorBuffer::underflow() {
    ssize_t count = 0;
    do
        count = ::read(descriptor_, input_.data(), input_.size());
    while (count < 0 && errno == EINTR);
    if (count < 0) { // the stream takes it for its badness, not for its end
        error_ = errno;
        throw std::system_error(error_, std::generic_category());
    }
    if (count == 0)
        return traits_type::eof();
    setg(input_.data(), input_.data(), input_.data() + count);
    return traits_type::to_int_type(*gptr());
}

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character) {
    if (sync() != 0)
        return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof()))
        sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

std::streamsize DescriptorBuffer::xsputn(const char* text, std::streamsize size) {
    if (size <= epptr() - pptr())
        return std::streambuf::xsputn(text, size);
    const bool written = sync() == 0 && writeAll(text, static_cast<std::size_t>(size));
    return written ? size : 0;
}

int DescriptorBuffer::sync() {
    const bool written = writeAll(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    emptyOutput();
    return written ? 0 : -1;
}

bool DescriptorBuffer::writeAll(const char* text, std::size_t size) {
    while (size > 0 && error_ == 0) {
        const ssize_t count = ::write(descriptor_, text, size);
        if (count >= 0) {
            text += count;
            size -= static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            error_ = errno;
        }
    }
    return error_ == 0;
}

void DescriptorBuffer::emptyOutput() {
    setp(output_.data(), output_.data() + output_.size());
}

} // namespace parabolt::cli
