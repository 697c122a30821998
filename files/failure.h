#pragma once

#include <cstdint>
#include <string>

namespace parabolt {

/// Why an operation ended early: a number to tell cases apart, and a description for the user.
struct Failure {
    std::uint32_t number = 0;
    std::string description;
};

/// Number of a file name that no file can have.
inline constexpr std::uint32_t kBadFileName = 52;
/// Added to the system's own error code to make the number of any other failure of a file.
inline constexpr std::uint32_t kFileFailureBase = 0x80070000;

} // namespace parabolt
