#include "measured/club_names.h"

#include "measured/cell_number.h"
#include "numbers/characters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace parabolt {
namespace {

/// Clubs with names of their own, in small letters without blanks.
struct NamedClub {
    std::string_view name;
    ClubId club;
};
constexpr std::int16_t kPitching = 10;
constexpr std::int16_t kSteepest = 14;
constexpr std::array<NamedClub, 18> kNamedClubs = {{
    {"d", {false, 1}},
    {"dr", {false, 1}},
    {"driver", {false, 1}},
    {"pw", {true, kPitching}},
    {"pitchingwedge", {true, kPitching}},
    {"pitching", {true, kPitching}},
    {"gw", {true, 11}},
    {"gapwedge", {true, 11}},
    {"aw", {true, 11}},
    {"approachwedge", {true, 11}},
    {"uw", {true, 11}},
    {"sw", {true, 12}},
    {"sandwedge", {true, 12}},
    {"sand", {true, 12}},
    {"lw", {true, 13}},
    {"lobwedge", {true, 13}},
    {"lob", {true, 13}},
    {"lw2", {true, kSteepest}},
}};

/// What stands beside the number of a club.
struct ClubSort {
    std::string_view word;
    bool iron;
};
constexpr std::array<ClubSort, 8> kSorts = {{
    {"i", true},
    {"iron", true},
    {"eisen", true},
    {"w", false},
    {"wood", false},
    {"fw", false},
    {"holz", false},
    {"fairwaywood", false},
}};

std::optional<ClubId> existing(bool iron, int number) {
    for (const ClubId club : clubsOfSet())
        if (club.iron == iron && club.number == number)
            return club;
    return std::nullopt;
}

/// The wedge whose loft is nearest; nothing for a loft that no wedge has.
std::optional<ClubId> wedgeOfLoft(int loft, const ClubTables& tables) {
    if (loft < 42 || loft > 66)
        return std::nullopt;
    ClubId nearest{true, kPitching};
    const auto distance = [&](ClubId club) {
        return std::abs(recordOf(tables, club).LoftAngle - static_cast<float>(loft));
    };
    for (std::int16_t number = kPitching; number <= kSteepest; ++number)
        if (distance({true, number}) < distance(nearest))
            nearest = {true, number};
    return nearest;
}

} // namespace

std::vector<ClubId> clubsOfSet() {
    std::vector<ClubId> clubs;
    for (const bool iron : {false, true})
        for (const std::int16_t number : clubNumbers(iron))
            clubs.push_back({iron, number});
    return clubs;
}

const ClubRecord& recordOf(const ClubTables& tables, ClubId club) {
    const auto number = static_cast<std::size_t>(club.number);
    return club.iron ? tables.Irons.at(number) : tables.Woods.at(number);
}

std::string usualName(ClubId club) {
    if (!club.iron)
        return club.number == 1 ? "Driver" : std::to_string(club.number) + "W";
    constexpr std::array<std::string_view, 5> kWedges = {"PW", "GW", "SW", "LW", "LW2"};
    return club.number < kPitching
               ? std::to_string(club.number) + "i"
               : std::string(kWedges.at(static_cast<std::size_t>(club.number - kPitching)));
}

std::optional<ClubId> clubNamed(std::string_view text, const ClubTables& tables) {
    std::string name = lowerCase(withoutBlanks(text.substr(0, text.find('|'))));
    std::erase_if(name, [](char c) { return c == ' ' || c == '-' || c == '.' || c == '_'; });
    for (const NamedClub& named : kNamedClubs)
        if (named.name == name)
            return named.club;
    // A number, and what stands before or behind it.
    const auto first = std::find_if(name.begin(), name.end(), isDigit);
    const auto last = std::find_if_not(first, name.end(), isDigit);
    const std::string figures(first, last);
    if (figures.empty() || figures.size() > 2 || (first != name.begin() && last != name.end()))
        return std::nullopt;
    const int number = std::stoi(figures);
    const std::string word = std::string(name.begin(), first) + std::string(last, name.end());
    for (const ClubSort& sort : kSorts)
        if (sort.word == word)
            return existing(sort.iron, number);
    if (word.empty() || word == "°" || word == "deg" || word == "wedge" || word == "degwedge")
        return wedgeOfLoft(number, tables);
    return std::nullopt;
}

std::optional<ClubId> clubNamed(const std::string& text, const ClubTables& tables,
                                const ClubAnswers& answers) {
    const auto answer = answers.find(text);
    return answer != answers.end() ? answer->second : clubNamed(text, tables);
}

} // namespace parabolt
