#pragma once

#include "engine/shot_state.h"

#include <cstddef>
#include <span>
#include <vector>

namespace parabolt {

/// The book of data sets: the runs that stand side by side, numbered from 1. The newest has the
/// number `count()`.
class RunBook {
public:
    static constexpr int kMost = 24; ///< data sets that a book should hold; whoever adds, asks

    /// Number of data sets.
    int count() const { return static_cast<int>(runs_.size()) - 1; }

    /// The data set of a number from 1 to `count()`.
    const RunRecord& operator[](int number) const {
        return runs_.at(static_cast<std::size_t>(number));
    }
    /// The data set of the number `count()`.
    RunRecord& newest() { return runs_.back(); }
    /// The same, to look at.
    const RunRecord& newest() const { return runs_.back(); }
    /// Elements 1 to `count()` are the data sets; element 0 stays empty.
    std::span<const RunRecord> records() const { return runs_; }

    /// Adds an empty data set.
    void add() { runs_.emplace_back(); }
    /// Takes the newest data set out again.
    void takeBack() { runs_.pop_back(); }
    /// Takes all data sets out.
    void clear() { runs_ = std::vector<RunRecord>(1); }

private:
    std::vector<RunRecord> runs_{1};
};

/// Colour of a data set, for its curve, its legend entry and its row: one of twelve in turn.
Rgb curveColour(int number);

} // namespace parabolt
