#include "cli/map_command.h"

#include "cli/row_writer.h"
#include "maps/map_table.h"
#include "maps/map_words.h"
#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "shots/fault_words.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <tuple>

namespace parabolt::cli {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kAxisForm = "Give first, last and step of the axis, as 1000:4000:50.";

/// The axis of a text such as "1000:4000:50", within the limits of its input.
Outcome<MapAxis, std::string> axisOf(std::string_view text, const MapInput& input) {
    std::array<double, 3> values{};
    std::string_view rest = text;
    for (double& value : values) {
        const auto number = parseNumber(rest.substr(0, rest.find(':')));
        if (!number)
            return because(std::string(kAxisForm));
        value = *number;
        const std::size_t colon = rest.find(':');
        const bool last = &value == &values.back();
        if (last != (colon == std::string_view::npos))
            return because(std::string(kAxisForm));
        rest.remove_prefix(last ? 0 : colon + 1);
    }
    const MapAxis axis{values[0], values[1], values[2]};
    if (!input.hold(axis.first) || !input.hold(axis.last))
        return because(std::string(input.rangeMessage));
    if (!(axis.step > 0) || !(axis.first < axis.last) ||
        (axis.last - axis.first) / axis.step > MapAxis::kMost - 1)
        return because("An axis rises in steps above 0, and has at most " +
                       std::to_string(MapAxis::kMost) + " values.");
    return axis;
}

/// A key such as "landing_angle_deg".
std::string keyOf(std::string_view name, std::string_view unit) {
    std::string key;
    for (const char c : lowerCase(name))
        key += c == ' ' ? '_' : c;
    const std::string_view ending = unit == "\u00b0" ? "deg"
                                    : unit == "F"    ? "deg_f"
                                    : unit == "%"    ? "percent"
                                                     : unit;
    return ending.empty() ? key : key + "_" + lowerCase(ending);
}

std::string keyOf(const MapInput& input) {
    return keyOf(input.name, input.unit);
}

void addFigures(Json& json, const Figures& figures) {
    for (const MapOutcome outcome : mapOutcomes()) {
        const double figure = figureOf(figures, outcome);
        json[keyOf(textOf(outcome).name, textOf(outcome).unit)] =
            isNarrow(outcome) ? withFewestDigits(store32(figure)) : figure;
    }
}

/// A value of an input, which is 32 bits wide but for the wind.
double valueOf(const MapInput& input, double value) {
    return std::holds_alternative<float ShotInputs::*>(input.member)
               ? withFewestDigits(store32(value))
               : value;
}

Json pointJson(MapKind kind, MapPoint point) {
    return {{keyOf(acrossInput(kind)), point.across}, {keyOf(upInput(kind)), point.up}};
}

Json bestJson(MapKind kind, const std::optional<MapBest>& best) {
    if (!best)
        return nullptr;
    Json json = pointJson(kind, best->point);
    addFigures(json, best->flight.figures);
    json["at_edge"] = best->atEdge;
    return json;
}

Json stepsJson(const std::vector<StepEffect>& steps) {
    Json json = Json::array();
    const auto orNull = [](const std::optional<double>& yards) {
        return yards ? Json(*yards) : Json(nullptr);
    };
    for (const StepEffect& step : steps)
        json.push_back({{"input", keyOf(*step.input)},
                        {"value", valueOf(*step.input, step.value)},
                        {"step", step.input->step},
                        {"one_less_gains_yd", orNull(step.less)},
                        {"one_more_gains_yd", orNull(step.more)}});
    return json;
}

Json nodesJson(const MapResult& map) {
    Json nodes = Json::array();
    for (int row = 0; row < map.grid.rows(); ++row)
        for (int column = 0; column < map.grid.columns(); ++column) {
            Json node = pointJson(map.request.kind, map.grid.point(column, row));
            const MapCell& cell = *map.grid.at(column, row);
            if (cell)
                addFigures(node, cell->figures);
            else
                node["problem"] = faultDescription(cell.why());
            nodes.push_back(std::move(node));
        }
    return nodes;
}

std::string mapJson(const MapResult& map) {
    const MapKind kind = map.request.kind;
    Json json;
    json["kind"] = kind == MapKind::Launch ? "launch" : "swing";
    json["best_carry"] = bestJson(kind, map.bestCarry);
    json["best_total"] = bestJson(kind, map.bestTotal);
    if (map.reach.carry && map.reach.total) {
        const auto loft = [](double value) { return valueOf(loftInput(), value); };
        json["best_loft_deg"] = {{"carry", loft(map.reach.carry->loft)},
                                 {"total", loft(map.reach.total->loft)}};
        json["good_lofts_deg"] = {loft(map.reach.lowestGood), loft(map.reach.highestGood)};
    }
    json["steps"] = stepsJson(map.steps);
    json["nodes"] = nodesJson(map);
    return json.dump(1) + '\n';
}

/// For people: what the map's window says.
std::string mapWords(const MapResult& map) {
    std::string text = summaryOf(map, MapOutcome::Carry) + "\n\nWhat one step changes, yards:\n";
    const auto line = [&](std::string_view name, std::string_view value, std::string_view step,
                          std::string_view less, std::string_view more) {
        for (const auto& [cell, width] :
             {std::pair(name, std::size_t{14}), {value, 12}, {step, 12}, {less, 8}, {more, 8}}) {
            const std::string blanks(width - std::min(width, characterCount(cell)), ' ');
            const bool first = cell.data() == name.data();
            text.append(first ? cell : blanks).append(first ? blanks : cell);
        }
        text += '\n';
    };
    line("", "now", "step", "less", "more");
    for (const StepEffect& step : map.steps)
        line(step.input->name, words(*step.input, step.value), wordsOfStep(*step.input),
             wordsOfGain(step.less), wordsOfGain(step.more));
    return text;
}

} // namespace

ExitStatus mapCommand(const MapOptions& options, const Console& console) {
    const auto shot = shotOf(options.shot, console);
    if (!shot)
        return console.complain(shot.why());
    const bool isLaunch = shot->Mode == OperatingMode::Launch;
    if (options.kind == MapKind::Swing && isLaunch && tellsLaunch(options.shot))
        return console.complain("A map of swings takes a swing: give head speed, a club and the "
                                "like, and no launch.");
    const auto base = baseOf(*shot, options.kind);
    if (!base)
        return console.complain(faultDescription(base.why()), ExitStatus::SomeFailed);
    MapRequest request{*shot, options.kind, usualRanges(options.kind, *base)};
    for (const auto& [option, text, axis, input] :
         {std::tuple("--across", &options.across, &request.ranges.across,
                     &acrossInput(options.kind)),
          std::tuple("--up", &options.up, &request.ranges.up, &upInput(options.kind))}) {
        if (!*text)
            continue;
        const auto given = axisOf(**text, *input);
        if (!given)
            return console.complain(std::string(option) + ": " + given.why());
        *axis = *given;
    }
    MapResult map = completeMap(request);
    if (options.kind == MapKind::Launch && isLaunch)
        map.reach = {}; // nobody has told a swing
    switch (options.format.value_or(console.usualFormat())) {
    case Format::Csv:
        console.out << composeMapTable(map);
        break;
    case Format::Json:
        console.out << mapJson(map);
        break;
    case Format::Table:
        console.out << mapWords(map);
        break;
    }
    return console.finish();
}

} // namespace parabolt::cli
