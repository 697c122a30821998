#include "sessions/session_codec.h"

#include "numbers/rounding.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>

namespace parabolt {
namespace {

using Json = nlohmann::json;

constexpr std::string_view kFormat = "Parabolt session";
constexpr int kVersion = 1;

/// What the reader throws at a member that it can't take; it never leaves this file.
struct Broken {};

void require(bool sound) {
    if (!sound)
        throw Broken{};
}

/// A member of a structure of numbers, under its own name.
template <class Owner>
struct Member {
    const char* name;
    std::variant<float Owner::*, double Owner::*, std::int16_t Owner::*, bool Owner::*> at;
};

constexpr std::array<Member<ShotInputs>, 19> kInputs = {{
    {"LaunchAngle", &ShotInputs::LaunchAngle},
    {"RPM", &ShotInputs::RPM},
    {"LaunchSpeed", &ShotInputs::LaunchSpeed},
    {"HeadSpeed", &ShotInputs::HeadSpeed},
    {"ClubNo", &ShotInputs::ClubNo},
    {"SpeedIncrement", &ShotInputs::SpeedIncrement},
    {"COR", &ShotInputs::COR},
    {"HeadWeight", &ShotInputs::HeadWeight},
    {"AttackAngle", &ShotInputs::AttackAngle},
    {"LoftAngle", &ShotInputs::LoftAngle},
    {"Bending", &ShotInputs::Bending},
    {"WindSpeed", &ShotInputs::WindSpeed},
    {"Temperature", &ShotInputs::Temperature},
    {"BaroPressure", &ShotInputs::BaroPressure},
    {"RH", &ShotInputs::RH},
    {"h", &ShotInputs::h},
    {"Slope1", &ShotInputs::Slope1},
    {"CD1", &ShotInputs::CD1},
    {"BallType", &ShotInputs::BallType},
}};

constexpr std::array<Member<RunRecord>, 24> kRecord = {{
    {"CarryTime", &RunRecord::CarryTime},
    {"CarryDist", &RunRecord::CarryDist},
    {"GreenRoll", &RunRecord::GreenRoll},
    {"ImpactSpin", &RunRecord::ImpactSpin},
    {"ImpactSpeed", &RunRecord::ImpactSpeed},
    {"LaunchAngle", &RunRecord::LaunchAngle},
    {"RPM", &RunRecord::RPM},
    {"LaunchSpeed", &RunRecord::LaunchSpeed},
    {"HeadSpeed", &RunRecord::HeadSpeed},
    {"ClubNo", &RunRecord::ClubNo},
    {"SpeedIncrement", &RunRecord::SpeedIncrement},
    {"WindSpeed", &RunRecord::WindSpeed},
    {"Temperature", &RunRecord::Temperature},
    {"BaroPressure", &RunRecord::BaroPressure},
    {"RH", &RunRecord::RH},
    {"h", &RunRecord::h},
    {"COR", &RunRecord::COR},
    {"HeadWeight", &RunRecord::HeadWeight},
    {"AttackAngle", &RunRecord::AttackAngle},
    {"LoftAngle", &RunRecord::LoftAngle},
    {"CD1", &RunRecord::CD1},
    {"Bending", &RunRecord::Bending},
    {"Mode", &RunRecord::Mode},
    {"IsWood", &RunRecord::IsWood},
}};

constexpr std::array<Member<ClubRecord>, 6> kClub = {{
    {"LoftAngle", &ClubRecord::LoftAngle},
    {"HeadWeight", &ClubRecord::HeadWeight},
    {"HeadSpeed", &ClubRecord::HeadSpeed},
    {"COR", &ClubRecord::COR},
    {"AttackAngle", &ClubRecord::AttackAngle},
    {"Bending", &ClubRecord::Bending},
}};

constexpr std::array<std::pair<const char*, std::string ClubTables::*>, 4> kClubTexts = {{
    {"ClubsDescription", &ClubTables::ClubsDescription},
    {"WoodsDescription", &ClubTables::WoodsDescription},
    {"IronsDescription", &ClubTables::IronsDescription},
    {"Comment", &ClubTables::Comment},
}};

template <class Number>
using BitsOf = std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>;

template <class Number>
Json writeNumber(Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
        if (!std::isfinite(value)) {
            std::array<char, 16> digits{};
            const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                           std::bit_cast<BitsOf<Number>>(value), 16);
            return std::string(digits.data(), end.ptr);
        }
        return double{value};
    } else {
        return value;
    }
}

template <class Number>
Number readNumber(const Json& json) {
    if constexpr (std::is_same_v<Number, bool>) {
        return json.get<bool>();
    } else if constexpr (std::is_floating_point_v<Number>) {
        if (!json.is_string()) {
            require(json.is_number());
            return static_cast<Number>(json.get<double>());
        }
        const auto& digits = json.get_ref<const std::string&>();
        BitsOf<Number> bits = 0;
        const char* const end = digits.data() + digits.size();
        const auto read = std::from_chars(digits.data(), end, bits, 16);
        require(read.ec == std::errc() && read.ptr == end);
        return std::bit_cast<Number>(bits);
    } else {
        require(json.is_number_integer());
        const auto value = json.get<std::int64_t>();
        require(std::in_range<Number>(value));
        return static_cast<Number>(value);
    }
}

/// A whole number from one bound to the other.
int readChoice(const Json& json, int least, int greatest) {
    const int choice = readNumber<int>(json);
    require(choice >= least && choice <= greatest);
    return choice;
}

template <class Owner, std::size_t Count>
Json writeMembers(const Owner& owner, const std::array<Member<Owner>, Count>& members) {
    Json json = Json::object();
    for (const Member<Owner>& member : members)
        std::visit([&](auto at) { json[member.name] = writeNumber(owner.*at); }, member.at);
    return json;
}

template <class Owner, std::size_t Count>
void readMembers(const Json& json, const std::array<Member<Owner>, Count>& members, Owner& owner) {
    for (const Member<Owner>& member : members)
        std::visit(
            [&](auto at) {
                auto& value = owner.*at;
                value = readNumber<std::decay_t<decltype(value)>>(json.at(member.name));
            },
            member.at);
}

Json writeColour(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

Rgb readColour(const Json& json) {
    require(json.size() == 3);
    return {readNumber<std::uint8_t>(json.at(0)), readNumber<std::uint8_t>(json.at(1)),
            readNumber<std::uint8_t>(json.at(2))};
}

/// x and y of each point in turn.
Json writePath(std::span<const TrajectoryPoint> path) {
    Json json = Json::array();
    json.get_ref<Json::array_t&>().reserve(2 * path.size());
    for (const TrajectoryPoint& point : path) {
        json.push_back(writeNumber(point.x));
        json.push_back(writeNumber(point.y));
    }
    return json;
}

std::vector<TrajectoryPoint> readPath(const Json& json) {
    require(json.is_array() && json.size() % 2 == 0);
    std::vector<TrajectoryPoint> path(json.size() / 2);
    for (std::size_t i = 0; i < path.size(); ++i)
        path[i] = {readNumber<float>(json[2 * i]), readNumber<float>(json[2 * i + 1])};
    return path;
}

Json writeRuns(const Desk& desk) {
    Json json = Json::array();
    for (std::size_t i = 0; i < desk.runs.size(); ++i) {
        const RunRecord& run = desk.runs[i];
        const DataSetTag tag = desk.tagOf(i);
        Json record = writeMembers(run, kRecord);
        record["CurveColor"] = writeColour(run.CurveColor);
        record["Path"] = writePath(run.Path);
        record["name"] = tag.name;
        record["ticked"] = tag.ticked;
        record["ball"] = tag.ball;
        json.push_back(std::move(record));
    }
    return json;
}

/// Files of the first writers have no tags.
DataSetTag readTag(const Json& json) {
    DataSetTag tag;
    if (json.contains("name"))
        tag.name = json.at("name").get<std::string>();
    if (json.contains("ticked"))
        tag.ticked = json.at("ticked").get<bool>();
    if (json.contains("ball"))
        tag.ball = static_cast<std::int16_t>(readChoice(json.at("ball"), 0, 4));
    return tag;
}

std::vector<RunRecord> readRuns(const Json& json) {
    require(json.is_array() && json.size() <= RunBook::kMost);
    std::vector<RunRecord> runs(json.size());
    for (std::size_t i = 0; i < runs.size(); ++i) {
        readMembers(json[i], kRecord, runs[i]);
        runs[i].CurveColor = readColour(json[i].at("CurveColor"));
        runs[i].Path = readPath(json[i].at("Path"));
        // The landing of a flight stands between its last two points.
        require(!(runs[i].CarryTime > 0) || runs[i].Path.size() >= 2);
    }
    return runs;
}

Json writeClubs(const ClubTables& clubs) {
    Json json = Json::object();
    for (const auto& [name, text] : kClubTexts)
        json[name] = clubs.*text;
    for (const ClubRecord& club : clubs.Irons)
        json["Irons"].push_back(writeMembers(club, kClub));
    for (const ClubRecord& club : clubs.Woods)
        json["Woods"].push_back(writeMembers(club, kClub));
    return json;
}

template <std::size_t Count>
void readClubList(const Json& json, std::array<ClubRecord, Count>& clubs) {
    require(json.size() == Count);
    for (std::size_t i = 0; i < Count; ++i)
        readMembers(json.at(i), kClub, clubs.at(i));
}

ClubTables readClubs(const Json& json) {
    ClubTables clubs;
    for (const auto& [name, text] : kClubTexts)
        clubs.*text = json.at(name).get<std::string>();
    readClubList(json.at("Irons"), clubs.Irons);
    readClubList(json.at("Woods"), clubs.Woods);
    return clubs;
}

Json writeTable(const ColouredTexts& table) {
    Json json = Json::array();
    for (const ColouredText& piece : table)
        json.push_back({{"text", piece.text}, {"colour", writeColour(piece.colour)}});
    return json;
}

ColouredTexts readTable(const Json& json) {
    require(json.is_array());
    ColouredTexts table;
    for (const Json& piece : json)
        table.push_back({piece.at("text").get<std::string>(), readColour(piece.at("colour"))});
    return table;
}

Desk readDesk(const Json& json) {
    Desk desk;
    readMembers(json.at("shot"), kInputs, desk.shot);
    desk.mode = readChoice(json.at("mode"), 0, 4);
    desk.iron = json.at("iron").get<bool>();
    desk.club = readNumber<int>(json.at("club"));
    require(desk.club >= 0 &&
            static_cast<std::size_t>(desk.club) < playableClubs(desk.iron).size());
    desk.ball = readChoice(json.at("ball"), 1, 4);
    desk.fillIn = json.at("fillIn").get<bool>();
    desk.fields = json.at("fields").get<std::map<std::string, std::string>>();
    desk.scale = readNumber<float>(json.at("scale"));
    desk.clubs = readClubs(json.at("clubs"));
    desk.runs = readRuns(json.at("dataSets"));
    for (const Json& record : json.at("dataSets"))
        desk.tags.push_back(readTag(record));
    if (json.contains("base"))
        desk.base = readChoice(json.at("base"), 1, RunBook::kMost);
    desk.table = readTable(json.at("table"));
    desk.caret = readNumber<std::size_t>(json.at("caret"));
    if (const Json& colour = json.at("typingColour"); !colour.is_null())
        desk.typingColour = readColour(colour);
    desk.reportCaption = json.at("reportCaption").get<std::string>();
    for (const auto& [window, state] : json.at("windows").get<std::map<std::string, std::string>>())
        desk.windows[window] = state;
    return desk;
}

Json writeWindows(const std::map<std::string, SharedText>& windows) {
    Json json = Json::object();
    for (const auto& [window, state] : windows)
        json[window] = state.text();
    return json;
}

} // namespace

std::string encodeSession(const Session& session) {
    const Desk& desk = session.desk;
    const Json json = {
        {"format", kFormat},
        {"version", kVersion},
        {"time", session.time},
        {"shot", writeMembers(desk.shot, kInputs)},
        {"mode", desk.mode},
        {"iron", desk.iron},
        {"club", desk.club},
        {"ball", desk.ball},
        {"fillIn", desk.fillIn},
        {"fields", desk.fields},
        {"scale", writeNumber(desk.scale)},
        {"clubs", writeClubs(desk.clubs)},
        {"dataSets", writeRuns(desk)},
        {"base", desk.base},
        {"table", writeTable(desk.table)},
        {"caret", desk.caret},
        {"typingColour", desk.typingColour ? writeColour(*desk.typingColour) : Json()},
        {"reportCaption", desk.reportCaption},
        {"windows", writeWindows(desk.windows)},
    };
    // What is no UTF-8 is replaced: a text never stands in the way of the rest.
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

Outcome<Session, NoSession> decodeSession(std::string_view text) {
    const Json json = Json::parse(text, nullptr, false);
    try {
        require(json.is_object() && json.at("format") == kFormat);
        const int version = readChoice(json.at("version"), 1, std::numeric_limits<int>::max());
        if (version > kVersion)
            return because(NoSession::Newer);
        return Session{readDesk(json), json.at("time").get<std::string>()};
    } catch (const Json::exception&) {
        return because(NoSession::Broken);
    } catch (const Broken&) {
        return because(NoSession::Broken);
    }
}

} // namespace parabolt
