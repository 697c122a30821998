#include "measured/bag.h"

#include "numbers/rounding.h"
#include "shots/fault_words.h"
#include "shots/fly.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace parabolt {
namespace {

/// Clubs of the usual bag: driver, 3W, 5W, irons 4 to 9, four wedges, and the 3 iron.
bool isUsuallyOwned(ClubId club) {
    return club.iron ? club.number >= 3 && club.number <= 13
                     : club.number == 1 || club.number == 3 || club.number == 5;
}

/// The place of a club among those of its sort, from 0.
std::size_t placeOf(ClubId club) {
    const auto numbers = clubNumbers(club.iron);
    return static_cast<std::size_t>(std::find(numbers.begin(), numbers.end(), club.number) -
                                    numbers.begin());
}

/// The swing with a club of the bag.
Shot swingWith(ClubId club, const BagChoice& choice, const ClubTables& tables,
               const Shot& conditions) {
    ClubRecord record = recordOf(tables, club);
    if (choice.speeds == HeadSpeeds::Falling)
        record.HeadSpeed =
            store32(double{choice.firstSpeed} - static_cast<double>(placeOf(club)) * choice.fall);
    Shot shot = conditions;
    shot.Mode = OperatingMode::Auto;
    shot.sources = {.club = record, .wholeRecord = true, .measuredLaunchAngle = std::nullopt};
    return shot;
}

/// The club of the bag that a text means, one that is owned first; behind the last if it is none.
std::size_t placeInBag(const BagChoice& choice, const std::string& text, const ClubTables& tables,
                       const ClubAnswers& answers) {
    const auto club = clubNamed(text, tables, answers);
    const auto find = [&](bool ownedAlone) {
        return std::find_if(choice.clubs.begin(), choice.clubs.end(), [&](const BagClub& other) {
            return (other.owned || !ownedAlone) && (other.name == text || other.club == club);
        });
    };
    const auto owned = find(true);
    const auto found = owned == choice.clubs.end() ? find(false) : owned;
    return static_cast<std::size_t>(found - choice.clubs.begin());
}

BagGap::Kind kindOf(double yards, double narrowest, double widest) {
    if (yards < narrowest)
        return BagGap::Kind::TooNarrow;
    return yards > widest ? BagGap::Kind::TooWide : BagGap::Kind::Good;
}

} // namespace

BagChoice usualBag() {
    BagChoice choice;
    for (const ClubId club : clubsOfSet())
        choice.clubs.push_back({club, usualName(club), isUsuallyOwned(club)});
    return choice;
}

std::vector<BagFlight> flyBag(const BagChoice& choice, const ClubTables& tables,
                              const Shot& conditions) {
    std::vector<BagFlight> flights;
    std::vector<Shot> swings;
    std::vector<std::size_t> swung; // the flight of each swing
    for (std::size_t at = 0; at < choice.clubs.size(); ++at) {
        if (!choice.clubs[at].owned)
            continue;
        const Shot swing = swingWith(choice.clubs[at].club, choice, tables, conditions);
        BagFlight& flight = flights.emplace_back();
        flight.at = at;
        flight.headSpeed = swing.sources.club->HeadSpeed;
        if (!limits::kHeadSpeed.hold(flight.headSpeed)) {
            flight.problem = limits::kHeadSpeed.rangeMessage;
            continue;
        }
        swung.push_back(flights.size() - 1);
        swings.push_back(swing);
    }
    const auto outcomes = flyMany(swings);
    for (std::size_t number = 0; number < outcomes.size(); ++number) {
        BagFlight& flight = flights[swung[number]];
        if (outcomes[number].fault)
            flight.problem = faultDescription(*outcomes[number].fault);
        else
            flight.figures = figuresOf(outcomes[number]);
    }
    return flights;
}

MeasuredBag measuredBag(const BagChoice& choice, std::span<const MeasuredEntry> entries,
                        const ClubTables& tables, const ClubAnswers& answers) {
    struct Carries {
        std::vector<double> carry;
        std::vector<double> total;
    };
    std::vector<Carries> measured(choice.clubs.size());
    MeasuredBag bag;
    std::map<std::string, std::size_t> places; // of the texts met so far
    for (const MeasuredEntry& entry : entries) {
        if (entry.struck)
            continue;
        const auto [known, isNew] = places.try_emplace(entry.shot.club, choice.clubs.size());
        if (isNew) {
            known->second = placeInBag(choice, entry.shot.club, tables, answers);
            if (known->second == choice.clubs.size() || !choice.clubs[known->second].owned)
                bag.strangers.push_back(entry.shot.club);
        }
        if (known->second == choice.clubs.size())
            continue;
        Carries& carries = measured[known->second];
        if (entry.shot.device.carry)
            carries.carry.push_back(*entry.shot.device.carry);
        if (entry.shot.device.total)
            carries.total.push_back(*entry.shot.device.total);
    }
    for (const Carries& carries : measured)
        bag.clubs.push_back({spreadOf(carries.carry), spreadOf(carries.total)});
    return bag;
}

std::vector<BagGap> gapsBetween(std::span<const double> carries, double narrowest, double widest) {
    std::vector<std::size_t> order(carries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return carries[a] > carries[b]; });
    std::vector<BagGap> gaps;
    for (std::size_t place = 1; place < order.size(); ++place) {
        const double yards = carries[order[place - 1]] - carries[order[place]];
        gaps.push_back({order[place], order[place - 1], yards, kindOf(yards, narrowest, widest)});
    }
    return gaps;
}

std::vector<BagGap> gapsOf(std::span<const BagFlight> flights, double narrowest, double widest) {
    std::vector<std::size_t> landed;
    std::vector<double> carries;
    for (std::size_t number = 0; number < flights.size(); ++number)
        if (flights[number].problem.empty()) {
            landed.push_back(number);
            carries.push_back(flights[number].carry());
        }
    auto gaps = gapsBetween(carries, narrowest, widest);
    for (BagGap& gap : gaps) {
        gap.shorter = landed[gap.shorter];
        gap.longer = landed[gap.longer];
    }
    return gaps;
}

} // namespace parabolt
