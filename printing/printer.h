#pragma once

#include "numbers/outcome.h"
#include "printing/report.h"

#include <functional>
#include <string>
#include <string_view>

namespace parabolt {

/// The system's default printer, in landscape; on a machine without one, a file that the user
/// names.
class Printer {
public:
    virtual ~Printer() = default;

    virtual PageSize paper() = 0;

    /// Lets `compose` draw one page, in inches of the report's layout, and sends it out under a
    /// title. Tells the user where it went, or describes what went wrong. Nothing is drawn, and
    /// nothing told, if the user backs out.
    virtual Outcome<std::string, std::string> print(std::string_view title,
                                                    const std::function<void(Page&)>& compose) = 0;
};

} // namespace parabolt
