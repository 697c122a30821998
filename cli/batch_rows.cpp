#include "cli/batch_rows.h"

#include "cli/shot_rows.h"
#include "measured/devices.h"
#include "numbers/characters.h"
#include "numbers/text_number.h"
#include "shots/fault_words.h"
#include "shots/shot_words.h"
#include "shots/shown_figures.h"

#include <algorithm>
#include <array>

namespace parabolt::cli {
namespace {

constexpr Column kLine{"line", "Line", "0"};
constexpr Column kProblem{"problem", "Problem", {}};

constexpr decltype(ShotInput::member) kBallSpeedMember = &ShotInputs::LaunchSpeed;

std::vector<Column> composeBatchColumns(Format format) {
    std::vector<Column> columns = {kLine, kClubColumn};
    const auto add = [&](std::span<const Column> part) {
        columns.insert(columns.end(), part.begin(), part.end());
    };
    add(launchColumns());
    add(figureColumns());
    if (format != Format::Table)
        add(conditionColumns());
    columns.push_back(kProblem);
    return columns;
}

std::vector<Column> composePathColumns() {
    std::vector<Column> columns = {kLine};
    columns.insert(columns.end(), pathColumns().begin(), pathColumns().end());
    return columns;
}

/// True for a heading or key of a column, in any letters.
bool namesColumn(std::string_view heading, const Column& column) {
    return lowerCase(heading) == column.key || lowerCase(heading) == lowerCase(column.heading);
}

/// True for a column of results that tells nothing of the shot.
bool isResult(std::string_view heading) {
    const auto isAmong = [&](std::span<const Column> columns) {
        return std::any_of(columns.begin(), columns.end(),
                           [&](const Column& column) { return namesColumn(heading, column); });
    };
    return isAmong(batchColumns(Format::Csv)) || isAmong(shotColumns()) ||
           namesColumn(heading, kDataSetColumn);
}

void complain(BatchText& text, std::size_t line, std::string_view problem) {
    ++text.failed;
    text.complaints.append("line ").append(std::to_string(line)).append(": ");
    text.complaints.append(problem).append("\n");
}

/// What a row begins with.
std::vector<Cell>& beginCells(std::vector<Cell>& cells, const BatchShot& shot,
                              const ShotInputs* launch) {
    cells.clear();
    cells.emplace_back(static_cast<double>(shot.line));
    cells.emplace_back(std::string_view(shot.club));
    if (launch != nullptr)
        appendLaunch(cells, *launch);
    else
        cells.resize(cells.size() + launchColumns().size());
    return cells;
}

/// Writes the row that begins with the cells.
void appendFailure(BatchText& text, const RowWriter& writer, std::vector<Cell>& cells,
                   std::size_t line, std::string_view problem) {
    complain(text, line, problem);
    cells.resize(batchColumns(writer.format()).size() - 1);
    cells.emplace_back(problem);
    writer.row(text.rows, cells);
}

void appendResult(BatchText& text, const RowWriter& writer, std::vector<Cell>& cells,
                  const ShotInputs& shot, const FlightOutcome& flown) {
    appendFigures(cells, flown);
    if (writer.format() != Format::Table)
        appendConditions(cells, shot);
    cells.emplace_back();
    writer.row(text.rows, cells);
}

/// True for a mode, by its code in our results or by its name in the table of data sets.
bool isMode(std::string_view text) {
    constexpr std::array<std::int16_t, 5> kModes = {OperatingMode::Launch, OperatingMode::Default,
                                                    OperatingMode::Manual, OperatingMode::Auto,
                                                    OperatingMode::Actual};
    return std::any_of(kModes.begin(), kModes.end(), [&](std::int16_t mode) {
        return lowerCase(text) == lowerCase(modeCode(mode)) ||
               lowerCase(text) == lowerCase(modeName(mode));
    });
}

} // namespace

BatchColumns::BatchColumns(const CsvRow& headings, char delimiter) : delimiter_(delimiter) {
    bool any = false;
    bool ballSpeed = false;
    for (const std::string& cell : headings.cells) {
        const std::string_view heading = trimmed(cell);
        const std::size_t meaning = meaningOf(heading);
        if (meaning == Ignored && !heading.empty() && !isResult(heading))
            unknown_.emplace_back(heading);
        const bool again = meaning != Ignored && std::find(meanings_.begin(), meanings_.end(),
                                                           meaning) != meanings_.end();
        if (again && repeated_.empty())
            repeated_ = heading;
        any = any || meaning < Mode;
        ballSpeed = ballSpeed ||
                    (meaning < kShotInputs && shotInputs()[meaning].member == kBallSpeedMember);
        meanings_.push_back(meaning);
    }
    // Devices name some columns in the same words, but not all of their marks.
    const Device* device = recognise({delimiter, {headings}});
    const bool ofDevice = device != nullptr && !device->plainNumbers;
    isTable_ = !ofDevice && (ballSpeed || (any && unknown_.empty()));
}

std::size_t BatchColumns::meaningOf(std::string_view heading) const {
    if (const auto input = shotInputNamed(heading))
        return *input;
    for (const auto& [name, meaning] : {std::pair("club", Club),
                                        {"ball", Ball},
                                        {"mode", Mode},
                                        {"problem", Problem},
                                        {"out", Out}})
        if (lowerCase(heading) == name)
            return meaning;
    return Ignored;
}

/// The cell of the row that has the meaning; empty if there is none.
std::string_view BatchColumns::cellOf(const CsvRow& row, std::size_t meaning) const {
    const auto found = std::find(meanings_.begin(), meanings_.end(), meaning);
    const auto column = static_cast<std::size_t>(found - meanings_.begin());
    return column < row.cells.size() && found != meanings_.end() ? trimmed(row.cells[column])
                                                                 : std::string_view();
}

bool BatchColumns::isOut(const CsvRow& row) const {
    return parseNumber(cellOf(row, Out)).value_or(0) != 0;
}

/// Takes what the cells of a row say; the reason if they say what can't be.
Outcome<void, std::string> BatchColumns::take(ShotRequest& request, const CsvRow& row) const {
    if (row.cells.size() > meanings_.size())
        return because(std::string("The row has more cells than there are headings."));
    const std::string_view mode = cellOf(row, Mode);
    if (!mode.empty() && !isMode(mode))
        return because("Mode: There is no mode \"" + std::string(mode) + "\".");
    const auto launch = shotInputs().first<3>();
    std::size_t launchCells = 0;
    for (std::size_t i = 0; i < launch.size(); ++i)
        launchCells += cellOf(row, i).empty() ? 0U : 1U;
    if (const std::string_view problem = cellOf(row, Problem); !problem.empty() && launchCells == 0)
        return because(std::string(problem));
    const bool told = !mode.empty() && launchCells == launch.size();
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const std::size_t meaning = meanings_[i];
        if (meaning >= kShotInputs || trimmed(row.cells[i]).empty())
            continue;
        const ShotInput& input = shotInputs()[meaning];
        if (told && input.of == ShotInput::Of::Swing)
            continue;
        if (const auto taken = request.set(meaning, withDecimalPoint(row.cells[i], delimiter_));
            !taken)
            return because(std::string(input.heading) + ": " + taken.why());
    }
    if (const std::string_view ball = cellOf(row, Ball); !ball.empty())
        if (auto taken = request.setBall(ball); !taken)
            return taken;
    const std::string_view club = cellOf(row, Club);
    if (club.empty() || request.givesLaunch())
        return {};
    return request.setClub(club);
}

BatchShot BatchColumns::shotOf(const CsvRow& row, const ShotRequest& base) const {
    ShotRequest request = base;
    const auto taken = take(request, row);
    return {row.line, std::string(cellOf(row, Club)),
            taken ? request.shot() : because(taken.why())};
}

std::span<const Column> batchColumns(Format format) {
    static const auto kAll = composeBatchColumns(Format::Csv);
    static const auto kForPeople = composeBatchColumns(Format::Table);
    return format == Format::Table ? kForPeople : kAll;
}

std::span<const Column> batchPathColumns() {
    static const auto kColumns = composePathColumns();
    return kColumns;
}

BatchText flyBatch(std::span<const BatchShot> shots, const RowWriter& writer,
                   const std::stop_token& stop) {
    std::vector<Outcome<ShotState, std::string>> prepared;
    std::vector<ShotState> states;
    prepared.reserve(shots.size());
    states.reserve(shots.size());
    for (const BatchShot& shot : shots) {
        if (!shot.shot) {
            prepared.emplace_back(because(shot.shot.why()));
        } else if (auto state = prepare(*shot.shot)) {
            states.push_back(*state);
            prepared.emplace_back(*state);
        } else {
            prepared.emplace_back(because(std::string(faultDescription(state.why()))));
        }
    }
    const auto flights = SimulateFlights(states, stop, {bestFlightMeans().lanes, 1});
    BatchText text;
    text.count = shots.size();
    if (flights.size() != states.size())
        return text;
    auto flight = flights.begin();
    std::vector<Cell> cells;
    for (std::size_t i = 0; i < shots.size(); ++i) {
        const auto& state = prepared[i];
        beginCells(cells, shots[i], state ? &*state : nullptr);
        if (!state) {
            appendFailure(text, writer, cells, shots[i].line, state.why());
            continue;
        }
        const FlightOutcome& flown = *flight++;
        if (flown.fault) {
            appendFailure(text, writer, cells, shots[i].line, faultDescription(*flown.fault));
            continue;
        }
        appendResult(text, writer, cells, *state, flown);
    }
    return text;
}

BatchText flyBatchPaths(std::span<const BatchShot> shots, const RowWriter& writer,
                        const std::stop_token& stop) {
    BatchText text;
    text.count = shots.size();
    std::vector<Cell> cells;
    for (const BatchShot& shot : shots) {
        if (stop.stop_requested())
            break;
        const auto flown = shot.shot ? fly(*shot.shot) : because(NotFlown());
        const std::string problem =
            flown
                ? ""
                : (shot.shot ? std::string(faultDescription(flown.why().fault)) : shot.shot.why());
        if (writer.format() == Format::Json) {
            beginCells(cells, shot, flown ? &flown->shot : nullptr);
            if (flown) {
                appendResult(text, writer, cells, flown->shot, outcomeOf(flown->record));
                text.rows.back() = ',';
                appendJsonPath(text.rows.append("\"path\":"), flown->record);
                text.rows += '}';
            } else {
                appendFailure(text, writer, cells, shot.line, problem);
            }
        } else if (!flown) {
            complain(text, shot.line, problem);
        } else {
            for (std::size_t point = 0; point < flown->record.Path.size(); ++point) {
                cells = pathCells(flown->record, point);
                cells.insert(cells.begin(), static_cast<double>(shot.line));
                writer.row(text.rows, cells);
            }
        }
    }
    return text;
}

} // namespace parabolt::cli
