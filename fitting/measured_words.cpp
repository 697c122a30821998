#include "fitting/measured_words.h"

#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

std::string withSign(double value) {
    const std::string text = formatPattern(value, "0.0");
    return (value > 0 && text != "0.0" ? "+" : "") + (text == "-0.0" ? "0.0" : text);
}

std::string counted(std::size_t count, std::string_view what) {
    return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

/// "+4.1 yd (SD 5.0)", with the number of shots where it is another.
std::string errorInWords(const Spread& error, std::string_view unit, std::size_t shots) {
    std::string beside = error.deviation ? "SD " + formatPattern(*error.deviation, "0.0") : "";
    if (error.number != shots)
        beside += (beside.empty() ? "" : ", ") + counted(error.number, "shot");
    return withSign(error.mean) + " " + std::string(unit) +
           (beside.empty() ? "" : " (" + beside + ")");
}

/// The clubs at both ends, where there are several.
std::string bestAndWorst(const std::vector<ClubStatistics>& clubs) {
    std::vector<const ClubStatistics*> told;
    for (const ClubStatistics& club : clubs)
        if (club.carryError)
            told.push_back(&club);
    if (told.size() < 2)
        return {};
    const auto [best, worst] =
        std::minmax_element(told.begin(), told.end(), [](const auto* one, const auto* other) {
            return std::abs(one->carryError->mean) < std::abs(other->carryError->mean);
        });
    const auto named = [](const ClubStatistics& club) {
        return shownClub(club.club) + " (" + withSign(club.carryError->mean) + ")";
    };
    return " Closest with " + named(**best) + ", farthest off with " + named(**worst) + ".";
}

bool countsWithCarry(const MeasuredEntry& entry) {
    return !entry.struck && entry.shot.device.carry;
}

} // namespace

std::string shownClub(const std::string& club) {
    return club.empty() ? "(no club)" : club;
}

std::string sourceInWords(const MeasuredSession& session) {
    if (session.entries.empty())
        return "No shots yet. Import a launch monitor's file, or drop it here.";
    const auto struck = static_cast<std::size_t>(
        std::count_if(session.entries.begin(), session.entries.end(),
                      [](const MeasuredEntry& entry) { return entry.struck; }));
    return session.source + (session.device.empty() ? "" : " (" + session.device + ")") + ": " +
           counted(session.entries.size(), "shot") +
           (struck == 0 ? "" : ", " + std::to_string(struck) + " left out");
}

std::string comparisonInWords(const MeasuredSession& session, const Comparison& comparison) {
    if (session.entries.empty())
        return {};
    if (!comparison.isCurrent())
        return "The flights are being computed.";
    if (std::all_of(session.entries.begin(), session.entries.end(),
                    [](const MeasuredEntry& entry) { return entry.struck; }))
        return "All shots are left out.";
    std::string words;
    std::size_t shots = 0;
    for (const ComparedFigure& figure : comparedFigures()) {
        const auto error = comparison.error(figure);
        if (!error)
            continue;
        if (words.empty()) {
            shots = error->number;
            words = "Model less " + lowerCase(figuresHeading(session.computesCarry)) +
                    ", mean of " + counted(shots, "shot") + ": ";
        } else {
            words += "; ";
        }
        words += lowerCase(figure.name) + " " + errorInWords(*error, figure.unit, shots);
    }
    words = words.empty() ? "The file brings no figure to compare with the model's."
                          : words + "." + bestAndWorst(comparison.clubs());
    if (session.computesCarry &&
        std::any_of(session.entries.begin(), session.entries.end(), countsWithCarry))
        words += " The device computes its carry, at least in part: it is another model, not a "
                 "measured distance.";
    const auto failed =
        std::count_if(comparison.flights().begin(), comparison.flights().end(),
                      [](const ModelFlight& flight) { return flight.fault.has_value(); });
    if (failed > 0)
        words += " " + counted(static_cast<std::size_t>(failed), "shot") + " can't be flown here.";
    if (session.normalise)
        words += "\n" + std::string(kNormalisedNote);
    return words;
}

} // namespace parabolt
