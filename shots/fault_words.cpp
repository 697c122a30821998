#include "shots/fault_words.h"

namespace parabolt {

std::string_view faultDescription(Fault fault) {
    switch (fault) {
    case Fault::Overflow:
        return "Overflow: a value of this shot is too large to compute with.";
    case Fault::DivisionByZero:
        return "Division by zero: the values of this shot leave a formula without a result.";
    case Fault::InvalidArgument:
        return "Invalid argument: a formula of this shot is not defined for its values. Loft plus "
               "bend may be below 0, or a fast, steep shot may have too much spin.";
    case Fault::TooManySteps:
        return "Overflow: the flight is longer than 327.67 seconds.";
    }
    return {};
}

} // namespace parabolt
