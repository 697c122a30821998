#include "shots/background.h"

#include <utility>

namespace parabolt {

Background::Background() : thread_([this](const std::stop_token& end) { work(end); }) {}

Background::~Background() {
    cancel();
}

void Background::begin(Task task) {
    {
        const std::lock_guard lock(mutex_);
        current_.request_stop();
        current_ = std::stop_source();
        next_ = Job{std::move(task), current_.get_token()};
    }
    changed_.notify_one();
}

void Background::cancel() {
    const std::lock_guard lock(mutex_);
    current_.request_stop();
    next_.reset();
}

void Background::work(const std::stop_token& end) {
    while (true) {
        std::optional<Job> job;
        {
            std::unique_lock lock(mutex_);
            if (!changed_.wait(lock, end, [this] { return next_.has_value(); }))
                return;
            job = std::exchange(next_, std::nullopt);
        }
        job->task(job->stop);
    }
}

} // namespace parabolt
