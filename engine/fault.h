#pragma once

#include "numbers/outcome.h"

#include <cfenv>
#include <cmath>
#include <optional>

namespace parabolt {

/// Why a computation can't go on. Underflow and inexact results are no faults.
enum class Fault { Overflow, DivisionByZero, InvalidArgument, TooManySteps };

/// Watches the floating-point exceptions of the formulas computed during its life.
class FaultWatch {
public:
    FaultWatch() { std::feclearexcept(FE_ALL_EXCEPT); }

    /// What has gone wrong since the watch began; nothing if all is well. Give the sum of what the
    /// formulas gave: then they have run, where an optimiser might put them off until after the
    /// question (gcc 12 did, across files). The infinity that a division or an overflow leaves
    /// makes later formulas invalid, so that invalid ones come last.
    [[nodiscard]] std::optional<Fault> fault(double results) const {
        [[maybe_unused]] const volatile double computed = results;
        if (std::fetestexcept(FE_DIVBYZERO) != 0)
            return Fault::DivisionByZero;
        if (std::fetestexcept(FE_OVERFLOW) != 0)
            return Fault::Overflow;
        if (std::fetestexcept(FE_INVALID) != 0)
            return Fault::InvalidArgument;
        return std::nullopt;
    }

    /// Done, if all went well and the sum is a number. One that isn't and raised no exception on
    /// its way has had infinities, or no numbers, among its inputs.
    [[nodiscard]] Outcome<void, Fault> judge(double results) const {
        if (const auto raised = fault(results))
            return because(*raised);
        if (std::isnan(results))
            return because(Fault::InvalidArgument);
        if (std::isinf(results))
            return because(Fault::Overflow);
        return {};
    }
};

} // namespace parabolt
