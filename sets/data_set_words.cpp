#include "sets/data_set_words.h"

#include "numbers/text_number.h"
#include "shots/figures.h"
#include "shots/run_shot.h"

namespace parabolt {
std::string clubName(const RunRecord& run) {
    return (run.IsWood ? "W-" : "I-") + std::to_string(run.ClubNo);
}

std::string dataSetName(const RunBook& book, int number) {
    const std::string& name = book.tag(number).name;
    return std::to_string(number) + (name.empty() ? "" : " " + name);
}

std::string wordsOf(const RunBook& book, int number) {
    const Figures figures = figuresOf(book[number]);
    const auto yards = [](double value) { return formatPattern(value, "0.0") + " yd"; };
    const std::string outcome =
        figures.time > 0 ? "carry " + yards(figures.carry) + ", total " + yards(figures.total) +
                               ", height " + yards(figures.height) + ", landing angle " +
                               formatPattern(figures.landingAngle, "0.0") + " degrees"
                         : std::string(kNoLanding);
    return dataSetName(book, number) + ": " + outcome + ", altitude " +
           formatPattern(book[number].h, "0") + " ft";
}

Shot shotOf(const RunBook& book, int number) {
    return shotOf(book[number], book.tag(number).ball);
}

} // namespace parabolt
