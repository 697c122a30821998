#include "cli/batch_rows.h"

#include "cli/shot_rows.h"
#include "exchange/shot_columns.h"
#include "numbers/characters.h"
#include "shots/fault_words.h"

#include <algorithm>

namespace parabolt::cli {
namespace {

constexpr Column kLine{"line", "Line", "0"};
constexpr Column kClubColumn{"club", shot_columns::kClub, {}};
constexpr Column kProblem{"problem", "Problem", {}};

constexpr decltype(ShotInput::member) kBallSpeedMember = &ShotInputs::LaunchSpeed;

std::vector<Column> composeBatchColumns() {
    std::vector<Column> columns = {kLine, kClubColumn};
    for (const auto part : {launchColumns(), figureColumns()})
        columns.insert(columns.end(), part.begin(), part.end());
    columns.push_back(kProblem);
    return columns;
}

std::vector<Column> composePathColumns() {
    std::vector<Column> columns = {kLine};
    columns.insert(columns.end(), pathColumns().begin(), pathColumns().end());
    return columns;
}

bool isResult(std::string_view heading) {
    return std::any_of(batchColumns().begin(), batchColumns().end(), [&](const Column& column) {
        return heading == column.key || heading == column.heading;
    });
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

void appendFailure(BatchText& text, const RowWriter& writer, std::vector<Cell>& cells,
                   std::size_t line, std::string_view problem) {
    complain(text, line, problem);
    appendNoFigures(cells);
    cells.emplace_back(problem);
    writer.row(text.rows, cells);
}

} // namespace

std::optional<BatchColumns> BatchColumns::of(const CsvRow& headings) {
    BatchColumns columns;
    bool any = false;
    bool ours = false;
    for (const std::string& heading : headings.cells) {
        std::size_t meaning = Ignored;
        if (const auto input = shotInputNamed(heading)) {
            meaning = *input;
            ours = ours || shotInputs()[*input].member == kBallSpeedMember;
        } else if (lowerCase(heading) == "club" || lowerCase(heading) == "ball") {
            meaning = lowerCase(heading) == "club" ? Club : Ball;
        } else if (!isResult(heading)) {
            columns.unknown_.push_back(heading);
        }
        any = any || meaning != Ignored;
        columns.meanings_.push_back(meaning);
    }
    return ours || (any && columns.unknown_.empty()) ? std::optional(columns) : std::nullopt;
}

BatchShot BatchColumns::shotOf(const CsvRow& row, const ShotRequest& base) const {
    BatchShot result;
    result.line = row.line;
    ShotRequest request = base;
    Outcome<void, std::string> taken;
    const std::size_t count = std::min(row.cells.size(), meanings_.size());
    for (std::size_t i = 0; i < count; ++i) {
        const std::string& cell = row.cells[i];
        if (meanings_[i] == Club)
            result.club = cell;
        if (!taken || cell.empty() || meanings_[i] == Club || meanings_[i] == Ignored)
            continue;
        if (meanings_[i] == Ball)
            taken = request.setBall(cell);
        else if (taken = request.set(meanings_[i], cell); !taken)
            taken = because(std::string(shotInputs()[meanings_[i]].heading) + ": " + taken.why());
    }
    if (row.cells.size() > meanings_.size())
        taken = because(std::string("The row has more cells than there are headings."));
    if (taken && !result.club.empty() && !request.givesLaunch())
        taken = request.setClub(result.club);
    result.shot = taken ? request.shot() : because(taken.why());
    return result;
}

std::span<const Column> batchColumns() {
    static const auto kColumns = composeBatchColumns();
    return kColumns;
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
        appendFigures(cells, flown);
        cells.emplace_back();
        writer.row(text.rows, cells);
    }
    return text;
}

BatchText flyBatchPaths(std::span<const BatchShot> shots, Format format, const RowWriter& writer,
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
        if (format == Format::Json) {
            beginCells(cells, shot, flown ? &flown->shot : nullptr);
            if (flown) {
                appendFigures(cells, outcomeOf(flown->record));
                cells.emplace_back();
                writer.row(text.rows, cells);
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
