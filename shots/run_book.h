#pragma once

#include "engine/shot_state.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace parabolt {

/// What the user makes of a data set, beside what was flown.
struct DataSetTag {
    std::string name;      ///< empty until one is given
    bool ticked = true;    ///< chosen for the plot and for comparisons
    std::int16_t ball = 0; ///< ball option of the shot, 1 to 4; 0 where nobody knows it any more
    /// All members are equal.
    friend bool operator==(const DataSetTag&, const DataSetTag&) = default;
};

/// The book of data sets: the runs that stand side by side, numbered from 1. The newest has the
/// number `count()`.
class RunBook {
public:
    static constexpr int kMost = 24; ///< data sets that a book should hold; whoever adds, asks
    static constexpr std::size_t kLongestName = 60; ///< characters of a data set's name

    /// Number of data sets.
    int count() const { return static_cast<int>(runs_.size()) - 1; }

    /// The data set of a number from 1 to `count()`.
    const RunRecord& operator[](int number) const {
        return runs_.at(static_cast<std::size_t>(number));
    }
    /// The data set of the number `count()`.
    RunRecord& newest() {
        ++revision_;
        return runs_.back();
    }
    /// The same, to look at.
    const RunRecord& newest() const { return runs_.back(); }
    /// Elements 1 to `count()` are the data sets; element 0 stays empty.
    std::span<const RunRecord> records() const { return runs_; }

    /// What the user made of the data set of a number from 1 to `count()`.
    const DataSetTag& tag(int number) const { return tags_.at(static_cast<std::size_t>(number)); }
    /// Puts another tag on the data set of such a number. Of its name stays what a name is: one
    /// line without control characters, no blanks around it, not too long.
    void setTag(int number, DataSetTag tag);
    /// The numbers of the ticked data sets, rising.
    std::vector<int> ticked() const;
    /// The data set with which the others are compared: the first, until another one is chosen.
    int base() const { return base_ <= count() ? base_ : 1; }
    /// Compares with the data set of such a number from now on.
    void setBase(int number);

    /// Adds an empty data set, ticked.
    void add();
    /// Takes the newest data set out again.
    void takeBack();
    /// Takes all data sets out.
    void clear();

    /// Grows whenever the book may have changed.
    std::uint64_t revision() const { return revision_; }

private:
    std::vector<RunRecord> runs_{1};
    std::vector<DataSetTag> tags_{1}; ///< of the data sets of the same elements
    int base_ = 1;
    std::uint64_t revision_ = 0;
};

/// Colour of a data set, for its curve, its legend entry and its row: one of twelve in turn.
Rgb curveColour(int number);

} // namespace parabolt
