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
    finish();
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
    {
        const std::scoped_lock lock(mutex_);
        ends_ = true;
        changed_.notify_all();
    }
    if (writer_.joinable())
        writer_.join();
    return failed_;
}

void OrderedWork::write() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !pieces_.empty(); });
        if (pieces_.empty())
            break;
        std::future<BatchText> piece = std::move(pieces_.front());
        lock.unlock();
        const BatchText text = piece.get();
        lock.lock();
        pieces_.pop_front(); // its place is free only now: it was under way
        const bool idle = pieces_.empty();
        changed_.notify_all();
        lock.unlock();
        if (!broken_ && !stop_.stop_requested()) {
            count_ += text.count;
            failed_ += text.failed;
            console_.err << text.complaints;
            rows_.rows(text.rows);
            if (idle) // whoever waits for these results has them now
                console_.out.flush();
            tellProgress(false);
            if (!console_.out) {
                broken_ = true;
                stop_.request_stop();
            }
        }
        lock.lock();
    }
    tellProgress(true);
}

/// Twice a second, on a terminal that doesn't show the results themselves.
void OrderedWork::tellProgress(bool last) {
    using namespace std::chrono_literals;
    if (!console_.errIsTerminal || console_.outIsTerminal)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (last ? count_ > 0 : now - told_ > 500ms) {
        told_ = now;
        console_.err << '\r' << count_ << " shots" << (last ? "\n" : "") << std::flush;
    }
}

} // namespace parabolt::cli
