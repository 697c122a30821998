#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

using Bytes = std::vector<std::uint8_t>;

/// Reads little-endian values one after the other. Bytes behind the end read as zero, and the flag
/// that the data were too short stays up from then on.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> data) : data_(data) {}

    std::uint16_t u16() { return static_cast<std::uint16_t>(little(2)); }
    std::int16_t i16() { return static_cast<std::int16_t>(u16()); }
    float f32() { return std::bit_cast<float>(little(4)); }
    /// The next bytes, one to a character, as far as there are any.
    std::string bytes(std::size_t count) {
        std::string result;
        for (; count > 0 && at_ < data_.size(); --count)
            result.push_back(static_cast<char>(data_[at_++]));
        failed_ = failed_ || count > 0;
        return result;
    }

    bool failed() const { return failed_; } ///< has anything been read from behind the end?

private:
    std::uint32_t little(unsigned width) {
        std::uint32_t value = 0;
        for (unsigned i = 0; i < width; ++i)
            value |= std::uint32_t{next()} << (8 * i);
        return value;
    }
    std::uint8_t next() {
        if (at_ < data_.size())
            return data_[at_++];
        failed_ = true;
        return 0;
    }

    std::span<const std::uint8_t> data_;
    std::size_t at_ = 0;
    bool failed_ = false;
};

/// Appends little-endian values.
class ByteWriter {
public:
    void u16(std::uint16_t value) { little(value, 2); }
    void i16(std::int16_t value) { u16(static_cast<std::uint16_t>(value)); }
    void f32(float value) { little(std::bit_cast<std::uint32_t>(value), 4); }
    void bytes(std::string_view text) { data_.insert(data_.end(), text.begin(), text.end()); }

    const Bytes& data() const { return data_; }

private:
    void little(std::uint32_t value, unsigned width) {
        for (unsigned i = 0; i < width; ++i)
            data_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }

    Bytes data_;
};

} // namespace parabolt
