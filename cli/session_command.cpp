#include "cli/session_command.h"

#include "cli/club_files.h"
#include "cli/shot_rows.h"
#include "sessions/session_codec.h"

#include <nlohmann/json.hpp>

namespace parabolt::cli {
namespace {

constexpr Column kNumber{"data_set", "Data set", "0"};

std::vector<Column> withNumber(std::span<const Column> columns) {
    std::vector<Column> all = {kNumber};
    all.insert(all.end(), columns.begin(), columns.end());
    return all;
}

/// The shot that a record tells.
FlownShot shotOfRecord(const RunRecord& record) {
    FlownShot flown;
    Shot& shot = flown.shot;
    shot.LaunchAngle = record.LaunchAngle;
    shot.RPM = record.RPM;
    shot.LaunchSpeed = record.LaunchSpeed;
    shot.HeadSpeed = record.HeadSpeed;
    shot.ClubNo = record.ClubNo;
    shot.COR = record.COR;
    shot.HeadWeight = record.HeadWeight;
    shot.AttackAngle = record.AttackAngle;
    shot.LoftAngle = record.LoftAngle;
    shot.Bending = record.Bending;
    shot.WindSpeed = record.WindSpeed;
    shot.Temperature = record.Temperature;
    shot.BaroPressure = record.BaroPressure;
    shot.RH = record.RH;
    shot.h = record.h;
    shot.Mode = record.Mode;
    shot.IsWood = record.IsWood;
    if (record.Mode == OperatingMode::Default || record.Mode == OperatingMode::Auto)
        shot.sources.club = ClubRecord();
    flown.record = record;
    return flown;
}

void writeFigures(std::span<const RunRecord> runs, RowStream& rows) {
    for (std::size_t i = 0; i < runs.size(); ++i) {
        auto cells = shotCells(shotOfRecord(runs[i]));
        cells.insert(cells.begin(), static_cast<double>(i + 1));
        rows.row(cells);
    }
}

void writePaths(std::span<const RunRecord> runs, RowStream& rows) {
    for (std::size_t i = 0; i < runs.size(); ++i)
        for (std::size_t point = 0; point < runs[i].Path.size(); ++point) {
            auto cells = pathCells(runs[i], point);
            cells.insert(cells.begin(), static_cast<double>(i + 1));
            rows.row(cells);
        }
}

/// One object around the list of data sets.
void writeJsonSession(const Session& session, bool path, const Console& console) {
    using Json = nlohmann::ordered_json;
    Json json;
    json["time"] = session.time;
    json["fields"] = session.desk.fields;
    if (const auto clubs = clubsContent(session.desk.clubs, ClubsFormat::Json))
        json["club_set"] = Json::parse(*clubs, nullptr, false);
    json["data_sets"] = Json::array();
    const auto columns = withNumber(shotColumns());
    const RowWriter writer(Format::Json, columns);
    for (std::size_t i = 0; i < session.desk.runs.size(); ++i) {
        auto cells = shotCells(shotOfRecord(session.desk.runs[i]));
        cells.insert(cells.begin(), static_cast<double>(i + 1));
        std::string text;
        writer.row(text, cells);
        json["data_sets"].push_back(Json::parse(text.substr(1), nullptr, false));
        if (path) {
            text.clear();
            appendJsonPath(text, session.desk.runs[i]);
            json["data_sets"].back()["path"] = Json::parse(text, nullptr, false);
        }
    }
    console.out << json.dump(1, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace

ExitStatus sessionCommand(const SessionOptions& options, const Console& console) {
    auto input = Input::open(options.file, console);
    if (!input)
        return console.complain(input.why(), ExitStatus::FileFailed);
    const auto content = input->readAll(kLongestSessionFile);
    if (!content)
        return console.complain(content.why(), ExitStatus::FileFailed);
    const auto session = decodeSession(*content);
    if (!session)
        return console.complain(options.file + (session.why() == NoSession::Newer
                                                    ? ": A newer program has written it."
                                                    : ": It is no session file."));
    const Format format = options.format.value_or(console.usualFormat());
    if (format == Format::Json) {
        writeJsonSession(*session, options.path, console);
    } else {
        const auto columns = withNumber(options.path ? pathColumns() : shotColumns());
        RowStream rows(console, format, columns);
        options.path ? writePaths(session->desk.runs, rows)
                     : writeFigures(session->desk.runs, rows);
        rows.end();
    }
    return console.finish();
}

} // namespace parabolt::cli
