#include "shots/run_book.h"

#include "numbers/characters.h"

#include <array>
#include <utility>

namespace parabolt {

void RunBook::setTag(int number, DataSetTag tag) {
    tag.name = asName(tag.name, kLongestName);
    tags_.at(static_cast<std::size_t>(number)) = std::move(tag);
    ++revision_;
}

std::vector<int> RunBook::ticked() const {
    std::vector<int> numbers;
    for (int number = 1; number <= count(); ++number)
        if (tag(number).ticked)
            numbers.push_back(number);
    return numbers;
}

void RunBook::setBase(int number) {
    base_ = number;
    ++revision_;
}

void RunBook::add() {
    runs_.emplace_back();
    tags_.emplace_back();
    ++revision_;
}

void RunBook::takeBack() {
    runs_.pop_back();
    tags_.pop_back();
    ++revision_;
}

void RunBook::clear() {
    runs_ = std::vector<RunRecord>(1);
    tags_ = std::vector<DataSetTag>(1);
    base_ = 1;
    ++revision_;
}

Rgb curveColour(int number) {
    // By the number modulo 12: the first data set is red.
    constexpr std::array<Rgb, 12> kColours = {{
        {160, 82, 45},
        {255, 0, 0},
        {0, 255, 0},
        {0, 0, 255},
        {255, 127, 80},
        {0, 255, 255},
        {218, 112, 147},
        {255, 0, 255},
        {255, 20, 147},
        {218, 165, 32},
        {0, 191, 255},
        {175, 175, 175},
    }};
    return kColours.at(static_cast<std::size_t>(number) % kColours.size());
}

} // namespace parabolt
