#include "cli/session_command.h"

#include "cli/club_files.h"
#include "cli/shot_rows.h"
#include "sessions/session_codec.h"
#include "shots/run_shot.h"
#include "shots/shown_figures.h"

#include <nlohmann/json.hpp>

namespace parabolt::cli {
namespace {

using Json = nlohmann::ordered_json;

std::vector<Column> withNumber(std::span<const Column> columns) {
    std::vector<Column> all = {kDataSetColumn};
    all.insert(all.end(), columns.begin(), columns.end());
    return all;
}

/// A data set as the rows of shots show it.
FlownShot flownOf(const Desk& desk, std::size_t run) {
    const RunRecord& record = desk.runs[run];
    FlownShot flown{parabolt::shotOf(record, desk.tagOf(run).ball), record};
    if (record.Mode == OperatingMode::Default || record.Mode == OperatingMode::Auto)
        flown.shot.sources.club = ClubRecord();
    return flown;
}

std::vector<Cell> numberedCells(const Desk& desk, std::size_t run) {
    auto cells = shotCells(flownOf(desk, run));
    cells.insert(cells.begin(), static_cast<double>(run + 1));
    return cells;
}

void writeNumberedPath(const RunRecord& run, std::size_t number, RowStream& rows) {
    for (std::size_t point = 0; point < run.Path.size(); ++point) {
        auto cells = pathCells(run, point);
        cells.insert(cells.begin(), static_cast<double>(number));
        rows.row(cells);
    }
}

Json colourJson(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

/// A data set: its row, what the user has made of it, and the path if it is asked for.
Json dataSetJson(const Desk& desk, std::size_t run, const RowWriter& writer, bool path) {
    std::string text;
    writer.row(text, numberedCells(desk, run));
    Json json = Json::parse(text.substr(1), nullptr, false);
    const DataSetTag tag = desk.tagOf(run);
    json["name"] = tag.name;
    json["ticked"] = tag.ticked;
    json["colour"] = colourJson(desk.runs[run].CurveColor);
    if (path) {
        text.clear();
        appendJsonPath(text, desk.runs[run]);
        json["path"] = Json::parse(text, nullptr, false);
    }
    return json;
}

/// What stands in the fields of the form, and the values that they have passed on.
void addForm(Json& json, const Desk& desk) {
    const ClubId club{desk.iron, playableClubs(desk.iron)[static_cast<std::size_t>(desk.club)]};
    json["mode"] = modeCode(static_cast<std::int16_t>(desk.mode));
    json["club"] = usualName(club);
    json["ball"] = desk.ball;
    json["fill_in"] = desk.fillIn;
    json["fields"] = desk.fields;
    for (const ShotInput& input : shotInputs())
        json["shot"][input.key] = std::visit(
            [&](auto member) {
                std::string digits;
                appendJsonCell(digits, desk.shot.*member);
                return Json::parse(digits);
            },
            input.member);
    json["shot"]["speed_increment_mph"] = withFewestDigits(desk.shot.SpeedIncrement);
}

/// All that the file holds, in one object.
void writeJsonSession(const Session& session, bool path, const Console& console) {
    const Desk& desk = session.desk;
    Json json;
    json["time"] = session.time;
    addForm(json, desk);
    json["scale_yd"] = withFewestDigits(desk.scale);
    if (const auto clubs = clubsContent(desk.clubs, ClubsFormat::Json))
        json["club_set"] = Json::parse(*clubs, nullptr, false);
    json["data_sets"] = Json::array();
    const auto columns = withNumber(shotColumns());
    const RowWriter writer(Format::Json, columns);
    for (std::size_t run = 0; run < desk.runs.size(); ++run)
        json["data_sets"].push_back(dataSetJson(desk, run, writer, path));
    json["base_data_set"] = desk.base;
    json["table"] = Json::array();
    for (const ColouredText& piece : desk.table)
        json["table"].push_back({{"text", piece.text}, {"colour", colourJson(piece.colour)}});
    json["table_caret"] = desk.caret;
    json["typing_colour"] = desk.typingColour ? colourJson(*desk.typingColour) : Json();
    json["report_caption"] = desk.reportCaption;
    json["windows"] = Json::object();
    for (const auto& [window, state] : desk.windows) {
        // Most keep their state as JSON; the others as a text of their own.
        Json content = Json::parse(state.text(), nullptr, false);
        json["windows"][window] = content.is_discarded() ? Json(state.text()) : std::move(content);
    }
    console.out << json.dump(1, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace

Outcome<Session, Refusal> readSession(const std::string& name, const Console& console) {
    auto input = Input::open(name, console);
    if (!input)
        return because(input.why());
    const auto content = input->readAll(kLongestSessionFile);
    if (!content)
        return because(content.why());
    auto session = decodeSession(*content);
    if (!session)
        return because(Refusal{input->name() + (session.why() == NoSession::Newer
                                                    ? ": A newer program has written it."
                                                    : ": It is no session file.")});
    return *std::move(session);
}

ExitStatus sessionCommand(const SessionOptions& options, const Console& console) {
    const auto session = readSession(options.file, console);
    if (!session)
        return console.complain(session.why());
    const Format format = options.format.value_or(console.usualFormat());
    if (format == Format::Json) {
        writeJsonSession(*session, options.path, console);
    } else {
        const auto columns = withNumber(options.path ? pathColumns() : shotColumns());
        RowStream rows(console, format, columns);
        for (std::size_t run = 0; run < session->desk.runs.size(); ++run)
            if (options.path)
                writeNumberedPath(session->desk.runs[run], run + 1, rows);
            else
                rows.row(numberedCells(session->desk, run));
        rows.end();
    }
    return console.finish();
}

} // namespace parabolt::cli
