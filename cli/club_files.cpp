#include "cli/club_files.h"

#include "cli/shot_rows.h"
#include "clubs/club_cells.h"
#include "clubs/clubs_file.h"
#include "exchange/csv_reader.h"
#include "exchange/csv_rules.h"
#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
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
        for (const ClubField& field : kFields)
            entry[field.column.key] = withFewestDigits(recordOf(clubs, club).*field.member);
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

/// A set that comes club by club, and must come as a whole: what a file doesn't tell has no value.
class SetReader {
public:
    /// The club of a name such as "7i" or "I7"; the reason if there is none, or it was there
    /// before.
    Outcome<ClubId, std::string> begin(std::string_view name) {
        const auto club = clubNamed(name, usual_);
        if (!club)
            return because("There is no club \"" + std::string(name) +
                           R"(". Its name is one such as "Driver" or "7i".)");
        if (!seen_.insert(*club).second)
            return because(usualName(*club) + " stands there twice.");
        return *club;
    }
    ClubTables& tables() { return tables_; }

    Outcome<ClubTables, std::string> end() const {
        std::string missing;
        for (const ClubId club : clubsOfSet())
            if (!seen_.contains(club))
                missing += (missing.empty() ? "" : ", ") + usualName(club);
        if (!missing.empty())
            return because("A set has all clubs of the editor; these are missing: " + missing +
                           ".");
        return tables_;
    }

private:
    ClubTables usual_ = InitClubTables(); ///< whose lofts tell wedges apart
    ClubTables tables_;
    std::set<ClubId> seen_;
};

Outcome<ClubTables, std::string> clubsOfJson(std::string_view text) {
    const nlohmann::json root = nlohmann::json::parse(text, nullptr, false);
    SetReader set;
    if (!root.is_object() || !root.contains("clubs") || !root["clubs"].is_array())
        return because(std::string("It holds no JSON object with an array \"clubs\"."));
    for (const auto& [key, member] : kTexts)
        if (const auto found = root.find(key); found != root.end() && found->is_string())
            set.tables().*member = found->get<std::string>();
    for (const nlohmann::json& entry : root["clubs"]) {
        const auto name = entry.is_object() ? entry.find("club") : entry.end();
        if (name == entry.end() || !name->is_string())
            return because("A club without a name: " +
                           entry.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
        const auto club = set.begin(name->get<std::string>());
        if (!club)
            return because(club.why());
        for (const ClubField& field : kFields) {
            const auto value = entry.find(field.column.key);
            if (value == entry.end() || !value->is_number())
                return because(usualName(*club) + ": there is no number \"" +
                               std::string(field.column.key) + "\".");
            recordIn(set.tables(), *club).*field.member = store32(value->get<double>());
        }
    }
    return set.end();
}

/// The members that the headings of a table mean, null for the name of the club.
Outcome<std::vector<float ClubRecord::*>, std::string> fieldsOf(const CsvRow& headings) {
    std::vector<float ClubRecord::*> fields;
    for (const std::string& cell : headings.cells) {
        const std::string heading(trimmed(cell));
        const auto named = [&](const Column& column) {
            return lowerCase(heading) == lowerCase(column.heading) ||
                   lowerCase(heading) == column.key;
        };
        const auto* const field = std::find_if(
            kFields.begin(), kFields.end(), [&](const auto& each) { return named(each.column); });
        if (field == kFields.end() && !named(kClubColumn))
            return because("There is no heading \"" + heading + "\" in a table of clubs.");
        float ClubRecord::*const member = field != kFields.end() ? field->member : nullptr;
        if (std::find(fields.begin(), fields.end(), member) != fields.end())
            return because("The heading \"" + heading + "\" stands there twice.");
        fields.push_back(member);
    }
    const auto lacks = [&](float ClubRecord::*member) {
        return std::find(fields.begin(), fields.end(), member) == fields.end();
    };
    std::string missing = lacks(nullptr) ? ", " + std::string(kClubColumn.heading) : "";
    for (const ClubField& field : kFields)
        if (lacks(field.member))
            missing.append(", ").append(field.column.heading);
    if (!missing.empty())
        return because("These columns are missing: " + missing.substr(2) + ".");
    return fields;
}

Outcome<void, std::string> takeRow(SetReader& set, const CsvRow& row, char delimiter,
                                   std::span<float ClubRecord::*const> fields) {
    if (row.cells.size() != fields.size())
        return because(std::string("The row has not as many cells as there are headings."));
    const auto nameAt = std::find(fields.begin(), fields.end(), nullptr) - fields.begin();
    const auto club = set.begin(row.cells[static_cast<std::size_t>(nameAt)]);
    if (!club)
        return because(club.why());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i] == nullptr)
            continue;
        const auto value = parseNumber(withDecimalPoint(row.cells[i], delimiter));
        if (!value)
            return because("\"" + row.cells[i] + "\" is no number.");
        recordIn(set.tables(), *club).*fields[i] = store32(*value);
    }
    return {};
}

Outcome<ClubTables, std::string> clubsOfCsv(std::string_view text) {
    const char delimiter = delimiterOf(text);
    CsvReader reader(delimiter);
    reader.feed(text);
    reader.finish();
    SetReader set;
    std::vector<float ClubRecord::*> fields;
    CsvRow row;
    while (true) {
        const auto more = reader.next(row);
        if (!more)
            return because(lineText(more.why().line, textOf(more.why().kind)) + ".");
        if (!*more)
            return set.end();
        if (isEmpty(row) || namesDelimiter(row))
            continue;
        if (fields.empty()) {
            const auto found = fieldsOf(row);
            if (!found)
                return because(lineText(row.line, found.why()));
            fields = *found;
        } else if (const auto taken = takeRow(set, row, delimiter, fields); !taken) {
            return because(lineText(row.line, taken.why()));
        }
    }
}

/// True for a table of clubs: its first line with content, but one that names the delimiter, has
/// the heading of their names.
bool isClubsCsv(std::string_view text) {
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        if (!line.empty() && !line.starts_with(kNamesDelimiter))
            return lowerCase(line).find(kClubColumn.key) != std::string::npos;
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return false;
}

} // namespace

std::span<const Column> clubColumns() {
    static const auto kColumns = [] {
        std::vector<Column> columns = {kClubColumn};
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

Outcome<ClubTables, Refusal> readClubs(const std::string& name, const Console& console,
                                       FaultySet faulty) {
    auto input = Input::open(name, console);
    if (!input)
        return because(input.why());
    const auto content = input->readAll(kLongestClubsFile);
    if (!content)
        return because(content.why());
    const std::string_view text = withoutByteOrderMark(*content);
    const auto refuse = [&](std::string_view why) {
        return because(Refusal{input->name() + ": " + std::string(why)});
    };
    // The program's own begins with the length of a text: the second byte is rarely a letter. A
    // table is far shorter than its first two letters would say.
    const bool isJson = text.starts_with('{') && text.substr(1, 1) != std::string_view("\0", 1);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(content->data());
    const auto own = decodeClubs(std::span(bytes, content->size()));
    if (!isJson && own)
        return *own;
    if (!isJson && !isClubsCsv(text))
        return refuse("It is no clubs file.");
    const auto clubs = isJson ? clubsOfJson(text) : clubsOfCsv(text);
    if (!clubs)
        return refuse(clubs.why());
    if (faulty == FaultySet::Taken)
        return *clubs;
    const auto faults = checkClubs(*clubs);
    if (faults.empty())
        return *clubs;
    const std::string more = std::to_string(faults.size()) + "; clubs check tells all.)";
    return refuse(faults.front() + (faults.size() == 1 ? "" : " (The first fault of " + more));
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
