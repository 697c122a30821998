#include "maps/map_worker.h"

#include <utility>

namespace parabolt {

MapWorker::MapWorker(DeliverMap deliver) : deliver_(std::move(deliver)) {}

void MapWorker::begin(const MapRequest& request, std::uint64_t generation) {
    background_.begin([this, request, generation](const std::stop_token& stop) {
        computeMap(request, generation, stop, deliver_);
    });
}

} // namespace parabolt
