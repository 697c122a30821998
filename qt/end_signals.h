#pragma once

#include <QObject>
#include <array>
#include <csignal>
#include <functional>

namespace parabolt {

/// Hears when the system asks the program to end: at the end of the user's session, at a shutdown,
/// by a terminal that closes. There is one at a time.
class EndSignals : public QObject {
    Q_OBJECT

public:
    /// `asked` is called by the event loop.
    explicit EndSignals(const std::function<void()>& asked);
    ~EndSignals() override;

private:
    static constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

    std::array<int, 2> pipe_{-1, -1}; ///< read and written end
    std::array<struct ::sigaction, kSignals.size()> before_{};
};

} // namespace parabolt
