#include "maps/map_worker.h"

#include <utility>

namespace parabolt {

MapWorker::MapWorker(DeliverMap deliver)
    : deliver_(std::move(deliver)),
      thread_([this](const std::stop_token& end) { work(end); }) {}

MapWorker::~MapWorker() {
    cancel();
}

void MapWorker::begin(const MapRequest& request, std::uint64_t generation) {
    {
        const std::lock_guard lock(mutex_);
        current_.request_stop();
        current_ = std::stop_source();
        next_ = Job{request, generation, current_.get_token()};
    }
    changed_.notify_one();
}

void MapWorker::cancel() {
    const std::lock_guard lock(mutex_);
    current_.request_stop();
    next_.reset();
}

void MapWorker::work(const std::stop_token& end) {
    while (true) {
        std::optional<Job> job;
        {
            std::unique_lock lock(mutex_);
            if (!changed_.wait(lock, end, [this] { return next_.has_value(); }))
                return;
            job = std::exchange(next_, std::nullopt);
        }
        computeMap(job->request, job->generation, job->stop, deliver_);
    }
}

} // namespace parabolt
