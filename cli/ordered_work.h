#pragma once

#include "cli/batch_rows.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <future>
#include <mutex>
#include <thread>

namespace parabolt::cli {

/// Writes the results of many pieces of work in the order in which they were handed in, while
/// others are still under way: as many as the machine has processors, and a few that wait. What
/// is held in memory doesn't grow with the number of pieces.
class OrderedWork {
public:
    OrderedWork(const Console& console, RowStream& rows);
    /// Ends what is under way, unless `finish` has seen to its end.
    ~OrderedWork();
    OrderedWork(const OrderedWork&) = delete;
    OrderedWork& operator=(const OrderedWork&) = delete;

    using Piece = std::function<BatchText(const std::stop_token& stop)>;
    /// Waits for room, and begins. False if the results can't be written any more.
    bool add(Piece piece);
    /// Waits until all has been written; gives the number of shots without a result. What a piece
    /// has thrown goes on from here.
    std::size_t finish();

private:
    void end();
    void write();
    BatchText resultOf(std::future<BatchText> piece);
    void tellProgress();
    void clearProgress();

    const Console& console_;
    RowStream& rows_;
    std::size_t most_; ///< pieces under way
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::future<BatchText>> pieces_;
    bool ends_ = false;
    std::atomic<bool> broken_ = false;
    std::stop_source stop_;

    // Of the writing thread.
    std::size_t count_ = 0;
    std::size_t failed_ = 0;
    std::exception_ptr thrown_;
    bool progressStands_ = false;
    std::chrono::steady_clock::time_point told_;
    std::jthread writer_; ///< last: it works on all of the above
};

} // namespace parabolt::cli
