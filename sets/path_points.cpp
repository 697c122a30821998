#include "sets/path_points.h"

#include "numbers/text_number.h"
#include "sets/data_set_words.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

constexpr double kSecondsPerPoint = 0.01;
constexpr double kMphPerYardPerSecond = 3600.0 / 1760;

} // namespace

double timeAt(std::size_t index) {
    return static_cast<double>(index) / 100;
}

std::optional<PathPoint> nearestPoint(const RunBook& book, std::span<const int> numbers,
                                      TrajectoryPoint place, double reach) {
    std::optional<PathPoint> nearest;
    double least = reach * reach;
    for (const int number : numbers) {
        const auto& path = book[number].Path;
        for (std::size_t i = 0; i < path.size(); ++i) {
            const double across = double{path[i].x} - place.x;
            const double up = double{path[i].y} - place.y;
            const double square = across * across + up * up;
            if (square > least)
                continue;
            least = square;
            nearest = {number, i};
        }
    }
    return nearest;
}

PathPoint along(const RunBook& book, PathPoint point, int points) {
    const auto last = static_cast<std::int64_t>(book[point.number].Path.size()) - 1;
    const std::int64_t index = static_cast<std::int64_t>(point.index) + points;
    point.index = static_cast<std::size_t>(
        std::clamp<std::int64_t>(index, 0, std::max<std::int64_t>(last, 0)));
    return point;
}

PathPoint toNeighbour(const RunBook& book, std::span<const int> numbers, PathPoint point,
                      int steps) {
    const auto at = std::find(numbers.begin(), numbers.end(), point.number);
    const auto count = static_cast<std::int64_t>(numbers.size());
    if (at == numbers.end())
        return point;
    const std::int64_t next = ((at - numbers.begin() + steps) % count + count) % count;
    const auto& path = book[point.number].Path;
    const float x = point.index < path.size() ? path[point.index].x : 0;
    const int number = numbers[static_cast<std::size_t>(next)];
    const auto& other = book[number].Path;
    const auto nearest = std::min_element(
        other.begin(), other.end(), [x](const TrajectoryPoint& one, const TrajectoryPoint& two) {
            return std::abs(double{one.x} - x) < std::abs(double{two.x} - x);
        });
    return {number, static_cast<std::size_t>(nearest - other.begin())};
}

double speedAt(const RunRecord& run, std::size_t index) {
    const auto& path = run.Path;
    if (path.size() < 2)
        return 0;
    const std::size_t from = index == 0 ? 0 : index - 1;
    const std::size_t to = std::min(index + 1, path.size() - 1);
    const double way =
        std::hypot(double{path[to].x} - path[from].x, double{path[to].y} - path[from].y);
    return way / (static_cast<double>(to - from) * kSecondsPerPoint) * kMphPerYardPerSecond;
}

std::string readoutOf(const RunBook& book, PathPoint point) {
    std::string name = "Data set " + dataSetName(book, point.number);
    const auto& path = book[point.number].Path;
    if (point.index >= path.size())
        return name;
    const TrajectoryPoint& at = path[point.index];
    return name + "\nx " + formatPattern(at.x, "0.0") + " yd, height " +
           formatPattern(at.y, "0.0") + " yd\n" + formatPattern(timeAt(point.index), "0.00") +
           " s, " + formatPattern(speedAt(book[point.number], point.index), "0.0") + " mph";
}

} // namespace parabolt
