#pragma once

#include <cfenv>
#include <cmath>
#include <optional>
#include <string_view>

namespace parabolt {

/// Why a computation can't go on. Underflow and inexact results are no faults.
enum class Fault { Overflow, DivisionByZero, InvalidArgument, TooManySteps };

/// What the user reads in the message box.
constexpr std::string_view faultDescription(Fault fault) {
    switch (fault) {
    case Fault::Overflow:
        return "Overflow: a value of this shot is too large to compute with.";
    case Fault::DivisionByZero:
        return "Division by zero: the values of this shot leave a formula without a result.";
    case Fault::InvalidArgument:
        return "Invalid argument: a formula of this shot is not defined for its values.";
    case Fault::TooManySteps:
        return "Overflow: the flight is longer than 327.67 seconds.";
    }
    return {};
}

/// Watches the floating-point exceptions of the formulas computed during its life.
class FaultWatch {
public:
    FaultWatch() { std::feclearexcept(FE_ALL_EXCEPT); }

    /// What has gone wrong since the watch began; nothing if all is well. The infinity that a
    /// division or an overflow leaves makes later formulas invalid, so that invalid ones come last.
    std::optional<Fault> fault() const {
        if (std::fetestexcept(FE_DIVBYZERO) != 0)
            return Fault::DivisionByZero;
        if (std::fetestexcept(FE_OVERFLOW) != 0)
            return Fault::Overflow;
        if (std::fetestexcept(FE_INVALID) != 0)
            return Fault::InvalidArgument;
        return std::nullopt;
    }
};

/// The fault behind a result that raised no exception on its way: what went into it was infinite or
/// no number from the start.
inline std::optional<Fault> silentFault(double result) {
    if (std::isnan(result))
        return Fault::InvalidArgument;
    if (std::isinf(result))
        return Fault::Overflow;
    return std::nullopt;
}

} // namespace parabolt
