#include "sets/data_set_words.h"

#include "numbers/text_number.h"
#include "shots/figures.h"

#include <array>

namespace parabolt {
namespace {

template <std::size_t Count>
std::string_view entryOf(const std::array<std::string_view, Count>& names, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < Count
               ? names.at(static_cast<std::size_t>(index))
               : std::string_view();
}

} // namespace

std::string_view modeName(int mode) {
    static constexpr std::array<std::string_view, 5> kNames = {"Launch", "Default", "Manual",
                                                               "Auto", "Actual"};
    return entryOf(kNames, mode);
}

std::string_view ballName(int ball) {
    static constexpr std::array<std::string_view, 5> kNames = {"", "Soft ball", "Different dimple",
                                                               "Larger MOI", "Default"};
    return entryOf(kNames, ball);
}

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
    const RunRecord& run = book[number];
    Shot shot;
    shot.Mode = run.Mode;
    shot.IsWood = run.IsWood;
    shot.LaunchAngle = run.LaunchAngle;
    shot.RPM = run.RPM;
    shot.LaunchSpeed = run.LaunchSpeed;
    shot.HeadSpeed = run.HeadSpeed;
    shot.ClubNo = run.ClubNo;
    shot.SpeedIncrement = run.SpeedIncrement;
    shot.COR = run.COR;
    shot.HeadWeight = run.HeadWeight;
    shot.AttackAngle = run.AttackAngle;
    shot.LoftAngle = run.LoftAngle;
    shot.Bending = run.Bending;
    shot.WindSpeed = run.WindSpeed;
    shot.Temperature = run.Temperature;
    shot.BaroPressure = run.BaroPressure;
    shot.RH = run.RH;
    shot.h = run.h;
    shot.CD1 = run.CD1;
    shot.BallType = book.tag(number).ball;
    return shot;
}

} // namespace parabolt
