#include "maps/map_choices.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace parabolt {
namespace {

using Json = nlohmann::json;

constexpr std::array kMapKinds = {MapKind::Launch, MapKind::Swing};
constexpr std::array kMapKindNames = {"launch", "swing"};

Json axisJson(const MapAxis& axis) {
    return {axis.first, axis.last, axis.step};
}

std::optional<MapAxis> mapAxisOf(const Json& json, const MapInput& input) {
    if (!json.is_array() || json.size() != 3)
        return std::nullopt;
    for (const Json& number : json)
        if (!number.is_number() || !std::isfinite(number.get<double>()))
            return std::nullopt;
    return MapAxis{json[0], json[1], json[2]}.within(input);
}

/// A member; null if there is none.
Json mapMember(const Json& json, const char* name) {
    return json.is_object() && json.contains(name) ? json.at(name) : Json();
}

} // namespace

std::string composeMapChoices(const MapChoices& choices) {
    Json json = {{"kind", kMapKindNames[choices.kind == MapKind::Launch ? 0 : 1]},
                 {"shown", textOf(choices.shown).name}};
    for (std::size_t i = 0; i < kMapKinds.size(); ++i)
        if (const auto& ranges = choices.ranges[i])
            json[kMapKindNames[i]] = {{"across", axisJson(ranges->across)},
                                      {"up", axisJson(ranges->up)}};
    return json.dump();
}

MapChoices readMapChoices(std::string_view text) {
    const Json json = Json::parse(text, nullptr, /*allow_exceptions=*/false);
    MapChoices choices;
    if (mapMember(json, "kind") == kMapKindNames[1])
        choices.kind = MapKind::Swing;
    for (const MapOutcome outcome : mapOutcomes())
        if (mapMember(json, "shown") == textOf(outcome).name)
            choices.shown = outcome;
    for (std::size_t i = 0; i < kMapKinds.size(); ++i) {
        const Json ranges = mapMember(json, kMapKindNames[i]);
        const auto across = mapAxisOf(mapMember(ranges, "across"), acrossInput(kMapKinds[i]));
        const auto up = mapAxisOf(mapMember(ranges, "up"), upInput(kMapKinds[i]));
        if (across && up)
            choices.ranges[i] = {*across, *up};
    }
    return choices;
}

} // namespace parabolt
