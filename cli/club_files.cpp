#include "cli/club_files.h"

#include "clubs/club_cells.h"
#include "clubs/clubs_file.h"
#include "exchange/csv_reader.h"
#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace parabolt::cli {
namespace {

using Json = nlohmann::ordered_json;

/// A field of a club in files for people.
struct ClubField {
    float ClubRecord::*member = nullptr;
    Column column;
};
constexpr std::array<ClubField, 6> kFields = {{
    {&ClubRecord::LoftAngle, {"loft_deg", "Loft [deg]", "0.0"}},
    {&ClubRecord::HeadWeight, {"head_weight_g", "Head weight [g]", "0"}},
    {&ClubRecord::HeadSpeed, {"head_speed_mph", "Head speed [mph]", "0.0"}},
    {&ClubRecord::COR, {"cor", "COR", "0.00"}},
    {&ClubRecord::AttackAngle, {"attack_angle_deg", "Attack angle [deg]", "0.0"}},
    {&ClubRecord::Bending, {"bend_deg", "Bend [deg]", "0.0"}},
}};

constexpr std::array<std::pair<const char*, std::string ClubTables::*>, 4> kTexts = {{
    {"description", &ClubTables::ClubsDescription},
    {"woods_description", &ClubTables::WoodsDescription},
    {"irons_description", &ClubTables::IronsDescription},
    {"comment", &ClubTables::Comment},
}};

std::string clubsJson(const ClubTables& clubs) {
    Json root;
    for (const auto& [key, text] : kTexts)
        root[key] = clubs.*text;
    root["clubs"] = Json::array();
    for (const ClubId club : clubsOfSet()) {
        Json entry{{"club", usualName(club)}};
        for (const ClubField& field : kFields) {
            std::string number; // the fewest digits of 32 bits
            appendJsonCell(number, recordOf(clubs, club).*field.member);
            entry[field.column.key] = Json::parse(number);
        }
        root["clubs"].push_back(std::move(entry));
    }
    return root.dump(1, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::string clubsCsv(const ClubTables& clubs) {
    std::string text;
    const RowWriter writer(Format::Csv, clubColumns());
    writer.begin(text);
    for (const ClubId club : clubsOfSet()) {
        const std::string name = usualName(club);
        writer.row(text, clubCells(name, recordOf(clubs, club)));
    }
    return text;
}

ClubRecord& recordIn(ClubTables& clubs, ClubId club) {
    const auto number = static_cast<std::size_t>(club.number);
    return club.iron ? clubs.Irons.at(number) : clubs.Woods.at(number);
}

/// The club of a name such as "7i" or "I7".
std::optional<ClubId> clubOfName(std::string_view name) {
    return clubNamed(name, InitClubTables());
}

Outcome<ClubTables, std::string> clubsOfJson(std::string_view text) {
    const nlohmann::json root = nlohmann::json::parse(text, nullptr, false);
    ClubTables clubs;
    if (!root.is_object() || !root.contains("clubs") || !root["clubs"].is_array())
        return because(std::string("It holds no JSON object with an array \"clubs\"."));
    for (const auto& [key, member] : kTexts)
        if (const auto found = root.find(key); found != root.end() && found->is_string())
            clubs.*member = found->get<std::string>();
    for (const nlohmann::json& entry : root["clubs"]) {
        const auto name = entry.is_object() ? entry.find("club") : entry.end();
        const auto club = name != entry.end() && name->is_string()
                              ? clubOfName(name->get<std::string>())
                              : std::nullopt;
        if (!club)
            return because(R"(A club without a known name, such as "Driver" or "7i": )" +
                           entry.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
        for (const ClubField& field : kFields) {
            const auto value = entry.find(field.column.key);
            if (value == entry.end() || !value->is_number())
                return because(usualName(*club) + ": there is no number \"" +
                               std::string(field.column.key) + "\".");
            recordIn(clubs, *club).*field.member = store32(value->get<double>());
        }
    }
    return clubs;
}

/// The member that a heading of the file means; null for the name of the club.
Outcome<float ClubRecord::*, std::string> fieldOfHeading(const std::string& heading) {
    for (const ClubField& field : kFields)
        if (lowerCase(heading) == lowerCase(field.column.heading) || heading == field.column.key)
            return field.member;
    if (lowerCase(heading) == "club")
        return static_cast<float ClubRecord::*>(nullptr);
    return because("There is no heading \"" + heading + "\" in a table of clubs.");
}

Outcome<void, std::string> takeRow(ClubTables& clubs, const CsvRow& row,
                                   std::span<float ClubRecord::*const> fields) {
    const std::string line = "line " + std::to_string(row.line) + ": ";
    if (row.cells.size() != fields.size())
        return because(line + "The row has not as many cells as there are headings.");
    const auto nameAt = std::find(fields.begin(), fields.end(), nullptr) - fields.begin();
    const std::string& name = row.cells[static_cast<std::size_t>(nameAt)];
    const auto club = clubOfName(name);
    if (!club)
        return because(line + "There is no club \"" + name + "\".");
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i] == nullptr)
            continue;
        const auto value = parseNumber(row.cells[i]);
        if (!value)
            return because(line + "\"" + row.cells[i] + "\" is no number.");
        recordIn(clubs, *club).*fields[i] = store32(*value);
    }
    return {};
}

Outcome<ClubTables, std::string> clubsOfCsv(std::string_view text) {
    CsvReader reader(delimiterOf(text));
    reader.feed(withoutByteOrderMark(text));
    reader.finish();
    ClubTables clubs;
    std::vector<float ClubRecord::*> fields;
    CsvRow row;
    while (true) {
        const auto more = reader.next(row);
        if (!more)
            return because("line " + std::to_string(more.why().line) + ": A quote is not closed.");
        if (!*more)
            break;
        if (row.cells.size() == 1 && row.cells.front().empty())
            continue;
        if (!fields.empty()) {
            if (const auto taken = takeRow(clubs, row, fields); !taken)
                return because(taken.why());
            continue;
        }
        for (const std::string& heading : row.cells) {
            const auto field = fieldOfHeading(heading);
            if (!field)
                return because(field.why());
            fields.push_back(*field);
        }
        if (std::count(fields.begin(), fields.end(), nullptr) != 1)
            return because(std::string("A table of clubs has one column \"Club\"."));
    }
    return clubs;
}

} // namespace

std::span<const Column> clubColumns() {
    static const auto kColumns = [] {
        std::vector<Column> columns = {{"club", "Club", {}}};
        for (const ClubField& field : kFields)
            columns.push_back(field.column);
        return columns;
    }();
    return kColumns;
}

std::vector<Cell> clubCells(std::string_view name, const ClubRecord& club) {
    std::vector<Cell> cells = {name};
    for (const ClubField& field : kFields)
        cells.emplace_back(club.*field.member);
    return cells;
}

Outcome<ClubTables, Refusal> readClubs(const std::string& name, const Console& console) {
    auto input = Input::open(name, console);
    if (!input)
        return because(Refusal{input.why(), ExitStatus::FileFailed});
    const auto content = input->readAll(kLongestClubsFile);
    if (!content)
        return because(Refusal{content.why(), ExitStatus::FileFailed});
    const std::string_view text = withoutByteOrderMark(*content);
    const auto refuse = [&](std::string_view why) {
        return because(Refusal{name + ": " + std::string(why)});
    };
    // The program's own begins with the length of a text: its second byte is rarely a letter, and
    // never is it together with the heading of a table.
    const std::string_view firstLine = text.substr(0, text.find_first_of("\r\n"));
    const bool isJson = text.starts_with('{');
    const bool isCsv = !isJson && lowerCase(firstLine).find("club") != std::string::npos &&
                       firstLine.find('\0') == std::string_view::npos;
    if (isCsv || isJson) {
        auto clubs = isCsv ? clubsOfCsv(text) : clubsOfJson(text);
        return clubs ? Outcome<ClubTables, Refusal>(*clubs) : refuse(clubs.why());
    }
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(content->data());
    auto clubs = decodeClubs(std::span(bytes, content->size()));
    if (!clubs)
        return refuse("It is no clubs file.");
    return *clubs;
}

Outcome<std::string, std::string> clubsContent(const ClubTables& clubs, ClubsFormat format) {
    if (format == ClubsFormat::Json)
        return clubsJson(clubs);
    if (format == ClubsFormat::Csv)
        return clubsCsv(clubs);
    const auto bytes = encodeClubs(clubs);
    if (!bytes)
        return because(std::string("The comment is too long for a clubs file: it may have at most "
                                   "65535 characters. Nothing has been saved."));
    return std::string(bytes->begin(), bytes->end());
}

std::vector<std::string> checkClubs(const ClubTables& clubs) {
    std::vector<std::string> found;
    for (const ClubKind kind : {ClubKind::Irons, ClubKind::Woods})
        for (int col = 1; col < (kind == ClubKind::Irons ? kIronCols : kWoodCols); ++col)
            for (int row = 1; row < kClubRows; ++row) {
                const auto value = leadingNumber(clubCellText(clubField(clubs, kind, row, col)));
                if (clubBounds(kind, row).hold(value))
                    continue;
                const bool iron = kind == ClubKind::Irons;
                const ClubId club{iron, clubNumbers(iron)[static_cast<std::size_t>(col) - 1]};
                found.push_back(usualName(club) + ": " +
                                std::string(clubBounds(kind, row).message));
            }
    return found;
}

} // namespace parabolt::cli
