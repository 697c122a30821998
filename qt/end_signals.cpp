#include "qt/end_signals.h"

#include <QSocketNotifier>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace parabolt {
namespace {

/// The end that the handler writes to: it may call nothing but plain calls of the system.
volatile std::sig_atomic_t writtenEnd = -1;

void tellOfSignal(int) {
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writtenEnd, &byte, 1);
    errno = error;
}

} // namespace

EndSignals::EndSignals(const std::function<void()>& asked) {
    if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writtenEnd = pipe_[1];
    auto* heard = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
    connect(heard, &QSocketNotifier::activated, this, [this, asked] {
        char byte = 0;
        if (::read(pipe_[0], &byte, 1) == 1)
            asked();
    });
    struct ::sigaction action {};
    action.sa_handler = tellOfSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &action, &before_[i]);
}

EndSignals::~EndSignals() {
    if (pipe_[0] < 0)
        return;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &before_[i], nullptr);
    for (const int end : pipe_)
        ::close(end);
}

} // namespace parabolt
