#include "maps/contours.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace parabolt {
namespace {

/// Finds the pieces of one level, square by square, and joins them by their edges. An edge has the
/// number of its lower or left crossing twice, and one more if it goes up from there.
class Marcher {
public:
    Marcher(const ValueField& field, double level)
        : field_(field),
          level_(level),
          columns_(field.across.size()),
          next_(2 * field.values.size(), {kNone, kNone}) {}

    std::vector<Contour> march() {
        for (std::size_t row = 0; row + 1 < field_.up.size(); ++row)
            for (std::size_t column = 0; column + 1 < columns_; ++column)
                cutSquare(column, row);
        std::vector<Contour> contours;
        // Open lines first: each starts at an end. What is left then is closed.
        for (const bool open : {true, false})
            for (std::size_t edge = 0; edge < next_.size(); ++edge)
                if (next_[edge][0] != kNone && (!open || next_[edge][1] == kNone))
                    contours.push_back(follow(edge));
        return contours;
    }

private:
    static constexpr auto kNone = std::numeric_limits<std::size_t>::max();

    void cutSquare(std::size_t column, std::size_t row) {
        const std::size_t edge = 2 * (row * columns_ + column);
        // Corners against the clock, from the lower left one; edge i goes from corner i to the
        // next.
        const std::array corners = {field_.at(column, row), field_.at(column + 1, row),
                                    field_.at(column + 1, row + 1), field_.at(column, row + 1)};
        const std::array edges = {edge, edge + 3, edge + 2 * columns_, edge + 1};
        std::array<std::size_t, 4> cut{};
        std::size_t cuts = 0;
        double sum = 0;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            sum += corners[i];
            if (above(corners[i]) != above(corners[(i + 1) % corners.size()]))
                cut[cuts++] = edges[i];
        }
        if (std::isnan(sum))
            return;
        if (cuts == 2) {
            join(cut[0], cut[1]);
        } else if (cuts == 4) { // a saddle: its middle says which corners belong together
            const bool firstAlone = above(corners[0]) != above(sum / 4);
            join(cut[0], cut[firstAlone ? 3 : 1]);
            join(cut[2], cut[firstAlone ? 1 : 3]);
        }
    }

    bool above(double value) const { return value >= level_; }

    void join(std::size_t one, std::size_t other) {
        for (const auto& [edge, to] : {std::pair(one, other), std::pair(other, one)})
            next_[edge][next_[edge][0] == kNone ? 0 : 1] = to;
    }

    /// Takes the last of the ways on from an edge, or the one to a given edge.
    std::size_t take(std::size_t edge, std::optional<std::size_t> way = std::nullopt) {
        auto& [first, second] = next_[edge];
        if (way ? first == *way : second == kNone)
            std::swap(first, second);
        const std::size_t taken = std::exchange(second, kNone);
        if (first == kNone)
            std::swap(first, second);
        return taken;
    }

    Contour follow(std::size_t edge) {
        Contour contour{crossing(edge)};
        while (next_[edge][0] != kNone) {
            const std::size_t to = take(edge);
            take(to, edge);
            edge = to;
            contour.push_back(crossing(edge));
        }
        return contour;
    }

    MapPoint crossing(std::size_t edge) const {
        const bool upward = edge % 2 == 1;
        const std::size_t column = edge / 2 % columns_;
        const std::size_t row = edge / 2 / columns_;
        const std::size_t otherColumn = upward ? column : column + 1;
        const std::size_t otherRow = upward ? row + 1 : row;
        const double from = field_.at(column, row);
        const double share = (level_ - from) / (field_.at(otherColumn, otherRow) - from);
        return {std::lerp(field_.across[column], field_.across[otherColumn], share),
                std::lerp(field_.up[row], field_.up[otherRow], share)};
    }

    const ValueField& field_;
    double level_;
    std::size_t columns_;
    /// Where a line goes on from each edge that it crosses: the first stands before the second.
    std::vector<std::array<std::size_t, 2>> next_;
};

} // namespace

std::vector<Contour> contoursOf(const ValueField& field, double level) {
    return Marcher(field, level).march();
}

} // namespace parabolt
