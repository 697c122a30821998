#include "measured/measured_codec.h"

#include "measured/shot_file.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <type_traits>

namespace parabolt {
namespace {

using MeasuredJson = nlohmann::json;

// The members of each structure under their names: one list for both directions. An archive takes
// a name and a member, and either writes it or fills it.

template <class Archive>
void list(Archive& archive, ClubId& club) {
    archive("iron", club.iron);
    archive("number", club.number);
}

template <class Archive>
void list(Archive& archive, DeviceFigures& figures) {
    archive("carry", figures.carry);
    archive("total", figures.total);
    archive("height", figures.height);
    archive("landingAngle", figures.landingAngle);
    archive("time", figures.time);
}

template <class Archive>
void list(Archive& archive, MeasuredAir& air) {
    archive("wind", air.wind);
    archive("altitude", air.altitude);
    archive("density", air.density);
    archive("temperature", air.temperature);
    archive("pressure", air.pressure);
    archive("seaLevelPressure", air.seaLevelPressure);
    archive("humidity", air.humidity);
}

template <class Archive>
void list(Archive& archive, MeasuredShot& shot) {
    archive("line", shot.line);
    archive("club", shot.club);
    archive("ballSpeed", shot.ballSpeed);
    archive("launchAngle", shot.launchAngle);
    archive("backSpin", shot.backSpin);
    archive("device", shot.device);
    archive("air", shot.air);
}

template <class Archive>
void list(Archive& archive, CalmAir& air) {
    archive("altitude", air.altitude);
    archive("temperature", air.temperature);
    archive("pressure", air.pressure);
    archive("humidity", air.humidity);
}

template <class Archive>
void list(Archive& archive, BagClub& club) {
    archive("club", club.club);
    archive("name", club.name);
    archive("owned", club.owned);
}

template <class Archive>
void list(Archive& archive, BagChoice& bag) {
    archive("clubs", bag.clubs);
    archive("speeds", bag.speeds);
    archive("firstSpeed", bag.firstSpeed);
    archive("fall", bag.fall);
    archive("narrowest", bag.narrowest);
    archive("widest", bag.widest);
}

/// All but the entries.
template <class Archive>
void listRest(Archive& archive, MeasuredSession& session) {
    archive("source", session.source);
    archive("device", session.device);
    archive("computesCarry", session.computesCarry);
    archive("ownAir", session.ownAir);
    archive("normalise", session.normalise);
    archive("air", session.air);
    archive("player", session.player);
    archive("fitter", session.fitter);
    archive("date", session.date);
    archive("note", session.note);
    archive("answers", session.answers);
    archive("bag", session.bag);
}

template <class Archive>
void list(Archive& archive, MeasuredSession& session) {
    listRest(archive, session);
    archive("entries", session.entries);
}

template <class Archive>
void list(Archive& archive, MeasuredEntry& entry) {
    archive("shot", entry.shot);
    archive("struck", entry.struck);
    archive("checked", entry.checked);
}

/// Writes the members into an object.
class MeasuredWriter {
public:
    template <class Value>
    void operator()(const char* name, Value& value) {
        object[name] = write(value);
    }

    MeasuredJson object = MeasuredJson::object();

private:
    template <class Value>
    static MeasuredJson write(Value& value) {
        if constexpr (std::is_enum_v<Value>) {
            return static_cast<int>(value);
        } else if constexpr (std::is_arithmetic_v<Value> || std::is_same_v<Value, std::string>) {
            return value;
        } else {
            MeasuredWriter writer;
            list(writer, value);
            return std::move(writer.object);
        }
    }

    template <class Value>
    static MeasuredJson write(std::optional<Value>& value) {
        return value ? write(*value) : MeasuredJson();
    }

    template <class Value>
    static MeasuredJson write(std::vector<Value>& values) {
        auto array = MeasuredJson::array();
        for (Value& value : values)
            array.push_back(write(value));
        return array;
    }

    template <class Value>
    static MeasuredJson write(std::map<std::string, Value>& values) {
        auto object = MeasuredJson::object();
        for (auto& [name, value] : values)
            object[name] = write(value);
        return object;
    }
};

/// What the reader throws at a member that it can't take; it never leaves this file.
struct NotMeasured {};

void demand(bool sound) {
    if (!sound)
        throw NotMeasured{};
}

/// Fills the members from an object.
class MeasuredReader {
public:
    explicit MeasuredReader(const MeasuredJson& object) : object_(object) {
        demand(object.is_object());
    }

    template <class Value>
    void operator()(const char* name, Value& value) {
        const auto member = object_.find(name);
        demand(member != object_.end());
        read(*member, value);
    }

private:
    template <class Value>
    static void read(const MeasuredJson& json, Value& value) {
        if constexpr (std::is_same_v<Value, HeadSpeeds>) {
            const auto last = static_cast<unsigned>(HeadSpeeds::Falling);
            unsigned number = 0;
            read(json, number);
            demand(number <= last);
            value = static_cast<HeadSpeeds>(number);
        } else if constexpr (std::is_same_v<Value, bool>) {
            demand(json.is_boolean());
            value = json.get<bool>();
        } else if constexpr (std::is_arithmetic_v<Value>) {
            demand(std::is_integral_v<Value> ? json.is_number_unsigned() : json.is_number());
            const auto number = json.get<double>();
            // The largest whole numbers have no exact double, and no use here.
            demand(number >= static_cast<double>(std::numeric_limits<Value>::lowest()) &&
                   number < static_cast<double>(std::numeric_limits<Value>::max()));
            value = static_cast<Value>(number);
        } else if constexpr (std::is_same_v<Value, std::string>) {
            demand(json.is_string());
            value = json.get<std::string>();
        } else {
            MeasuredReader reader(json);
            list(reader, value);
        }
    }

    template <class Value>
    static void read(const MeasuredJson& json, std::optional<Value>& value) {
        value.reset();
        if (!json.is_null())
            read(json, value.emplace());
    }

    template <class Value>
    static void read(const MeasuredJson& json, std::vector<Value>& values) {
        demand(json.is_array());
        values.clear();
        for (const MeasuredJson& element : json)
            read(element, values.emplace_back());
    }

    template <class Value>
    static void read(const MeasuredJson& json, std::map<std::string, Value>& values) {
        demand(json.is_object());
        values.clear();
        for (const auto& [name, element] : json.items())
            read(element, values[name]);
    }

    const MeasuredJson& object_;
};

bool isSoundSession(const MeasuredSession& session) {
    const auto set = clubsOfSet();
    const auto isOfSet = [&set](ClubId club) {
        return std::find(set.begin(), set.end(), club) != set.end();
    };
    return session.entries.size() <= kMostShotRows &&
           std::all_of(
               session.entries.begin(), session.entries.end(),
               [](const MeasuredEntry& entry) { return whyNotFlown(entry.shot).empty(); }) &&
           std::all_of(session.answers.begin(), session.answers.end(),
                       [&](const auto& answer) { return isOfSet(answer.second); }) &&
           std::all_of(session.bag.clubs.begin(), session.bag.clubs.end(),
                       [&](const BagClub& club) { return isOfSet(club.club); });
}

std::string dumped(const MeasuredJson& json) {
    return json.dump(-1, ' ', false, MeasuredJson::error_handler_t::replace);
}

} // namespace

std::string encodeMeasured(const MeasuredSession& session) {
    return encodeMeasured(session, encodeShots(session));
}

std::vector<std::string> encodeShots(const MeasuredSession& session) {
    std::vector<std::string> shots;
    shots.reserve(session.entries.size());
    for (const MeasuredEntry& entry : session.entries) {
        MeasuredShot shot = entry.shot;
        MeasuredWriter writer;
        list(writer, shot);
        shots.push_back(dumped(writer.object));
    }
    return shots;
}

std::string encodeMeasured(const MeasuredSession& session, std::span<const std::string> shots) {
    MeasuredSession rest = session;
    MeasuredWriter writer;
    listRest(writer, rest);
    std::string text = dumped(writer.object);
    text.back() = ','; // the brace: the entries follow, put together from texts
    text += "\"entries\":[";
    for (std::size_t i = 0; i < shots.size(); ++i) {
        const auto flag = [](bool set) { return set ? "true" : "false"; };
        const MeasuredEntry& entry = session.entries[i];
        text.append(i == 0 ? "{\"checked\":" : ",{\"checked\":").append(flag(entry.checked));
        text.append(",\"shot\":").append(shots[i]);
        text.append(",\"struck\":").append(flag(entry.struck)).append("}");
    }
    return text + "]}";
}

std::optional<MeasuredSession> decodeMeasured(std::string_view text) {
    try {
        const auto json = MeasuredJson::parse(text);
        MeasuredSession session;
        MeasuredReader reader(json);
        list(reader, session);
        return isSoundSession(session) ? std::optional(std::move(session)) : std::nullopt;
    } catch (const MeasuredJson::exception&) {
        return std::nullopt;
    } catch (const NotMeasured&) {
        return std::nullopt;
    }
}

} // namespace parabolt
