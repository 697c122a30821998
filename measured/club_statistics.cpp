#include "measured/club_statistics.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace parabolt {
namespace {

/// The elements of the entries that count, by club.
struct ClubShots {
    std::string club;
    std::vector<std::size_t> entries;
};

std::vector<ClubShots> shotsByClub(std::span<const MeasuredEntry> entries) {
    std::vector<ClubShots> clubs;
    for (std::size_t number = 0; number < entries.size(); ++number) {
        const MeasuredEntry& entry = entries[number];
        auto club = std::find_if(clubs.begin(), clubs.end(), [&entry](const ClubShots& shots) {
            return shots.club == entry.shot.club;
        });
        if (club == clubs.end())
            club = clubs.insert(clubs.end(), {entry.shot.club, {}});
        if (!entry.struck)
            club->entries.push_back(number);
    }
    std::erase_if(clubs, [](const ClubShots& club) { return club.entries.empty(); });
    return clubs;
}

/// The spread of what a function tells of the entries, where it tells anything.
template <class Tell>
std::optional<Spread> spreadOver(const ClubShots& club, Tell tell) {
    std::vector<double> figures;
    for (const std::size_t entry : club.entries)
        if (const std::optional<double> figure = tell(entry))
            figures.push_back(*figure);
    return spreadOf(figures);
}

/// The shot with the values that the fields of the main form hold: those of their shortest texts.
Shot forFields(Shot shot) {
    for (auto input :
         {&ShotInputs::LaunchSpeed, &ShotInputs::LaunchAngle, &ShotInputs::RPM,
          &ShotInputs::Temperature, &ShotInputs::BaroPressure, &ShotInputs::RH, &ShotInputs::h})
        shot.*input = store32(leadingNumber(shortestText(shot.*input)));
    return shot;
}

/// Club and what is behind it; that alone where no club is told.
std::string nameWith(const std::string& club, const std::string& rest) {
    return club.empty() ? rest : club + ", " + rest;
}

} // namespace

std::optional<Spread> spreadOf(std::span<const double> figures) {
    if (figures.empty())
        return std::nullopt;
    const auto number = static_cast<double>(figures.size());
    const auto [least, greatest] = std::minmax_element(figures.begin(), figures.end());
    Spread spread{figures.size(), std::accumulate(figures.begin(), figures.end(), 0.0) / number,
                  std::nullopt, *least, *greatest};
    if (figures.size() > 1) {
        double squares = 0;
        for (const double figure : figures)
            squares += (figure - spread.mean) * (figure - spread.mean);
        spread.deviation = std::sqrt(squares / (number - 1));
    }
    return spread;
}

std::vector<ClubStatistics> clubStatistics(std::span<const MeasuredEntry> entries,
                                           std::span<const ModelFlight> flown,
                                           std::span<const std::optional<double>> normalised) {
    std::vector<ClubStatistics> statistics;
    for (const ClubShots& club : shotsByClub(entries)) {
        const auto device = [&](std::optional<double> DeviceFigures::*figure) {
            return spreadOver(
                club, [&](std::size_t entry) { return entries[entry].shot.device.*figure; });
        };
        const auto model = [&](double Figures::*figure) {
            return spreadOver(club, [&](std::size_t entry) {
                const ModelFlight& flight = flown[entry];
                return flight.fault ? std::nullopt : std::optional(flight.figures.*figure);
            });
        };
        statistics.push_back(
            {.club = club.club,
             .number = club.entries.size(),
             .deviceCarry = device(&DeviceFigures::carry),
             .deviceTotal = device(&DeviceFigures::total),
             .modelCarry = model(&Figures::carry),
             .modelTotal = model(&Figures::total),
             .carryError = spreadOver(club,
                                      [&](std::size_t entry) {
                                          return comparedFigures().front().difference(
                                              entries[entry].shot, flown[entry]);
                                      }),
             .normalisedCarry = spreadOver(club, [&](std::size_t entry) {
                 return normalised.empty() ? std::nullopt : normalised[entry];
             })});
    }
    return statistics;
}

std::vector<NamedShot> checkedShots(std::span<const MeasuredEntry> entries, const Shot& conditions,
                                    bool ownAir) {
    std::vector<NamedShot> shots;
    for (const auto& [shot, struck, checked] : entries)
        if (checked && !struck)
            shots.push_back({nameWith(shot.club, "line " + std::to_string(shot.line)),
                             forFields(shotOf(shot, conditions, ownAir))});
    return shots;
}

std::vector<NamedShot> meanShots(std::span<const MeasuredEntry> entries, const Shot& conditions,
                                 bool ownAir) {
    std::vector<NamedShot> shots;
    for (const ClubShots& club : shotsByClub(entries)) {
        MeasuredShot mean = entries[club.entries.front()].shot;
        for (const LaunchLimit& limit : launchLimits())
            mean.*limit.measured =
                store32(spreadOver(club, [&](std::size_t entry) {
                            return std::optional<double>(entries[entry].shot.*limit.measured);
                        })->mean);
        shots.push_back({nameWith(club.club, "mean of " + std::to_string(club.entries.size())),
                         forFields(shotOf(mean, conditions, ownAir))});
    }
    return shots;
}

} // namespace parabolt
