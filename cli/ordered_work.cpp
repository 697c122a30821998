#include "cli/ordered_work.h"

#include "engine/many_flights.h"

#include <algorithm>
#include <utility>

namespace parabolt::cli {

OrderedWork::OrderedWork(const Console& console, RowStream& rows)
    : console_(console),
      rows_(rows),
      most_(bestFlightMeans().threads + 2),
      told_(std::chrono::steady_clock::now()),
      writer_([this] { write(); }) {}

OrderedWork::~OrderedWork() {
    stop_.request_stop();
    end();
}

bool OrderedWork::add(Piece piece) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return pieces_.size() < most_; });
    if (broken_)
        return false;
    pieces_.push_back(std::async(std::launch::async, std::move(piece), stop_.get_token()));
    changed_.notify_all();
    return true;
}

std::size_t OrderedWork::finish() {
    end();
    if (thrown_)
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    return failed_;
}

void OrderedWork::end() {
    {
        const std::scoped_lock lock(mutex_);
        ends_ = true;
        changed_.notify_all();
    }
    if (writer_.joinable())
        writer_.join();
}

void OrderedWork::write() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !pieces_.empty(); });
        if (pieces_.empty())
            break;
        std::future<BatchText> piece = std::move(pieces_.front());
        lock.unlock();
        const BatchText text = resultOf(std::move(piece));
        lock.lock();
        pieces_.pop_front(); // its place is free only now: it was under way
        const bool idle = pieces_.empty();
        changed_.notify_all();
        lock.unlock();
        if (!broken_ && !stop_.stop_requested()) {
            count_ += text.count;
            failed_ += text.failed;
            if (!text.complaints.empty()) {
                clearProgress();
                console_.err << text.complaints;
            }
            rows_.rows(text.rows);
            if (idle) // whoever waits for these results has them now
                console_.out.flush();
            tellProgress();
            if (!console_.out) {
                broken_ = true;
                stop_.request_stop();
            }
        }
        lock.lock();
    }
    clearProgress();
}

/// What a piece gives; nothing more is written where it throws.
BatchText OrderedWork::resultOf(std::future<BatchText> piece) {
    try {
        return piece.get();
    } catch (...) {
        thrown_ = thrown_ ? thrown_ : std::current_exception();
        broken_ = true;
        stop_.request_stop();
        return {};
    }
}

/// Twice a second, on a terminal that doesn't show the results themselves.
void OrderedWork::tellProgress() {
    using namespace std::chrono_literals;
    const auto now = std::chrono::steady_clock::now();
    if (!console_.errIsTerminal || console_.outIsTerminal || now - told_ <= 500ms)
        return;
    told_ = now;
    progressStands_ = true;
    console_.err << '\r' << count_ << " shots" << std::flush;
}

void OrderedWork::clearProgress() {
    if (std::exchange(progressStands_, false))
        console_.err << "\r\x1B[K" << std::flush;
}

} // namespace parabolt::cli
