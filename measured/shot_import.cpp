#include "measured/shot_import.h"

#include "measured/cell_number.h"
#include "measured/club_names.h"
#include "measured/columns.h"
#include "numbers/characters.h"
#include "numbers/rounding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <utility>

namespace parabolt {
namespace {

/// True for a cell that says that its row sums up others.
bool isSummaryWord(std::string_view cell) {
    constexpr auto kWords = std::to_array<std::string_view>(
        {"average", "averages", "avg", "consistency", "deviation", "max", "maximum", "mean",
         "means", "median", "min", "minimum", "range", "sd", "standarddeviation", "stddev", "stdev",
         "sum", "summary", "total", "totals",
         // Deutsch
         "durchschnitt", "gesamt", "mittel", "mittelwert", "mittelwerte", "stabw",
         "standardabweichung", "streuung", "summe"});
    std::string word = lowerCase(cell);
    std::erase_if(word, [](char c) { return c == ' ' || c == '.' || c == ':' || c == '-'; });
    return std::find(kWords.begin(), kWords.end(), word) != kWords.end();
}

/// True for a word of summaries that is also the name of a player or a club.
bool isAlsoName(std::string_view cell) {
    const std::string word = lowerCase(withoutBlanks(cell));
    return word == "max" || word == "range";
}

/// True for a column under which people write what they like, such as their name.
bool isWrittenByHand(const std::string& heading) {
    constexpr auto kHeadings =
        std::to_array<std::string_view>({"comment", "golfer", "name", "note", "notes", "notiz",
                                         "player", "player name", "spieler"});
    const std::string name = headingParts(heading).name;
    return std::find(kHeadings.begin(), kHeadings.end(), name) != kHeadings.end();
}

/// The text of a row that has no other cell than its first; empty for any other row.
std::string loneText(const CsvRow& row) {
    const auto empty = [](const std::string& cell) { return withoutBlanks(cell).empty(); };
    return std::all_of(row.cells.begin() + 1, row.cells.end(), empty)
               ? withoutBlanks(row.cells.front())
               : std::string();
}

/// The club that a lone text stands for, as printed: of "CLUB: 7 IRON" what is behind the colon.
/// Empty for what tells something else, such as "PLAYER: Ann".
std::string clubOfLabel(const std::string& text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos)
        return text;
    return lowerCase(text.substr(0, colon)).ends_with("club")
               ? withoutBlanks(text.substr(colon + 1))
               : std::string();
}

/// True if the numbers of a file have decimal commas. Between commas they can't, but in quotes.
bool hasDecimalCommas(const ShotFile& file) {
    int commas = 0;
    int points = 0;
    for (const CsvRow& row : file.rows)
        for (const std::string& cell : row.cells) {
            const std::size_t mark = cell.find_first_of(".,");
            // A date may have several points.
            if (mark != std::string::npos && mark == cell.find_last_of(".,") &&
                cell.find_first_not_of("0123456789.,+- ") == std::string::npos)
                ++(cell[mark] == ',' ? commas : points);
        }
    return file.delimiter != ',' && commas > points;
}

constexpr std::string_view kAverageRow = "average row";

/// What a row tells of a quantity.
struct Reading {
    std::optional<double> value; ///< in the program's unit
    std::string problem;         ///< why there is none, if a cell says something else
};

/// What the columns below a row mean, if it is one of headings.
using FindColumns = std::function<std::optional<std::vector<ColumnMeaning>>(const CsvRow&)>;

/// Goes through the rows of a file.
class ShotRows {
public:
    /// Whether a row of units below the headings counts, or only those that the user has chosen.
    enum class Units { OfFile, Chosen };

    /// Columns are given where the rows begin without headings.
    ShotRows(const ShotFile& file, FindColumns findColumns, Units units,
             std::vector<ColumnMeaning> columns = {}, bool plainNumbers = false)
        : findColumns_(std::move(findColumns)),
          units_(units),
          plainNumbers_(plainNumbers),
          decimalComma_(hasDecimalCommas(file)),
          columns_(std::move(columns)) {
        for (const CsvRow& row : file.rows)
            take(row);
    }

    std::vector<ImportRow> rows() && { return std::move(rows_); }

private:
    void take(const CsvRow& row) {
        if (auto found = findColumns_(row)) {
            columns_ = std::move(*found);
            byHand_.assign(row.cells.size(), false);
            std::transform(row.cells.begin(), row.cells.end(), byHand_.begin(), isWrittenByHand);
            unitsMayFollow_ = true;
            afterSummary_ = false;
        } else if (std::exchange(unitsMayFollow_, false) && isOfUnits(row)) {
            return;
        } else if (const std::string label = loneText(row);
                   !label.empty() && !isNumbered(row) && !isSummary(row)) {
            takeLabel(label);
        } else if (!columns_.empty()) {
            rows_.push_back(rowOf(row));
            ImportRow& last = rows_.back();
            last.taken = last.reason.empty();
            afterSummary_ = last.reason == kAverageRow;
        }
    }

    bool isOfUnits(const CsvRow& row) {
        auto told = columns_;
        if (!takeUnits(row, told))
            return false;
        if (units_ == Units::OfFile)
            columns_ = std::move(told);
        return true;
    }

    /// A label tells the club of the rows that follow where no column does. Before the first
    /// headings it is most often a title: there it must look like a club.
    void takeLabel(const std::string& label) {
        if (has(Quantity::Club))
            return;
        constexpr std::size_t kShort = 4;
        static const ClubTables set = InitClubTables();
        const std::string club = clubOfLabel(label);
        if (!club.empty() && (!columns_.empty() || club.size() <= kShort || clubNamed(club, set)))
            block_ = club;
    }

    /// True if a row has the number of a shot.
    bool isNumbered(const CsvRow& row) const {
        return has(Quantity::Shot) && read(row, Quantity::Shot).value.has_value();
    }

    bool means(std::size_t column, Quantity quantity) const {
        return std::any_of(columns_.begin(), columns_.end(), [&](const auto& known) {
            return known.column == column && known.quantity == quantity;
        });
    }

    bool isSummary(const CsvRow& row) const;

    bool has(Quantity quantity) const {
        return std::any_of(columns_.begin(), columns_.end(),
                           [quantity](const auto& column) { return column.quantity == quantity; });
    }

    Reading read(const CsvRow& row, Quantity quantity) const;
    std::string clubOf(const CsvRow& row) const;
    std::string readLaunch(const CsvRow& row, MeasuredShot& shot, std::string& remark) const;
    Reading backSpin(const CsvRow& row, std::string& remark) const;
    ImportRow rowOf(const CsvRow& row) const;

    FindColumns findColumns_;
    Units units_;
    bool plainNumbers_;
    bool decimalComma_;
    std::vector<ColumnMeaning> columns_;
    std::vector<bool> byHand_; ///< columns whose cells people have written
    bool unitsMayFollow_ = false;
    bool afterSummary_ = false; ///< the row above is a summary
    std::string block_;         ///< the club of the rows that follow
    std::vector<ImportRow> rows_;
};

/// True for a row that sums up others. It says so in its first cell or in the place of the shot's
/// number or club; without such columns, anywhere but where people write what they like.
bool ShotRows::isSummary(const CsvRow& row) const {
    const bool anywhere = !has(Quantity::Shot) && !has(Quantity::Club);
    bool first = true;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        if (withoutBlanks(row.cells[i]).empty())
            continue;
        const bool club = means(i, Quantity::Club);
        const bool byHand = i < byHand_.size() && byHand_[i];
        const bool counts = std::exchange(first, false) || club || means(i, Quantity::Shot) ||
                            (anywhere && !byHand);
        // Averages stand above the greatest and the range.
        const bool named = (club || byHand) && !afterSummary_ && isAlsoName(row.cells[i]);
        if (counts && !named && isSummaryWord(row.cells[i]))
            return true;
    }
    return false;
}

Reading ShotRows::read(const CsvRow& row, Quantity quantity) const {
    const QuantityText& text = textOf(quantity);
    const bool whole =
        !plainNumbers_ && (quantity == Quantity::BackSpin || quantity == Quantity::TotalSpin);
    Reading reading;
    for (const ColumnMeaning& column : columns_) {
        const std::string_view cell = cellOf(row, column.column);
        if (column.quantity != quantity || isMissing(cell))
            continue;
        const auto number = cellNumber(cell, decimalComma_, whole);
        const auto own = number ? number->unit : std::nullopt;
        // "70°" tells no scale.
        const bool told =
            own && !(quantity == Quantity::Temperature && *own == MeasuredUnit::Degrees);
        const MeasuredUnit unit = told ? *own : column.unit;
        if (!told && !column.unknownUnit.empty())
            reading.problem = lowerCase(text.name) + " in an unknown unit, " + column.unknownUnit;
        else if (!number)
            reading.problem =
                lowerCase(text.name) + " \"" + withoutBlanks(cell) + "\" is no number";
        else if (text.units.empty())
            return {number->value, {}};
        else if (told && !suits(unit, quantity))
            reading.problem =
                lowerCase(text.name) + " \"" + withoutBlanks(cell) + "\" is in another unit";
        else if (unit != MeasuredUnit::None)
            return {inUnitOf(quantity, number->value, unit), {}};
    }
    return reading;
}

std::string ShotRows::clubOf(const CsvRow& row) const {
    for (const ColumnMeaning& column : columns_)
        if (column.quantity == Quantity::Club && !isMissing(cellOf(row, column.column)))
            return withoutBlanks(cellOf(row, column.column));
    return block_;
}

Reading ShotRows::backSpin(const CsvRow& row, std::string& remark) const {
    Reading spin = read(row, Quantity::BackSpin);
    if (spin.value)
        return spin;
    const Reading total = read(row, Quantity::TotalSpin);
    if (!total.value)
        return spin.problem.empty() ? total : spin;
    const auto axis = read(row, Quantity::SpinAxis).value;
    if (!axis)
        remark = "total spin taken for back spin: no spin axis";
    return {*total.value * std::cos(axis.value_or(0) * std::numbers::pi / 180), {}};
}

/// Reads what is flown; why that isn't there, if so.
std::string ShotRows::readLaunch(const CsvRow& row, MeasuredShot& shot, std::string& remark) const {
    struct Launch {
        Reading reading;
        float MeasuredShot::*member;
        std::string_view missing;
    };
    const std::array<Launch, 3> launch = {{
        {read(row, Quantity::BallSpeed), &MeasuredShot::ballSpeed, "no ball speed"},
        {read(row, Quantity::LaunchAngle), &MeasuredShot::launchAngle, "no launch angle"},
        {backSpin(row, remark), &MeasuredShot::backSpin, "no spin"},
    }};
    std::string reason;
    for (const Launch& part : launch) {
        if (part.reading.value)
            shot.*part.member = store32(*part.reading.value);
        else if (reason.empty())
            reason = part.reading.problem.empty() ? part.missing : part.reading.problem;
    }
    return reason;
}

ImportRow ShotRows::rowOf(const CsvRow& row) const {
    ImportRow result;
    result.line = row.line;
    MeasuredShot& shot = result.shot;
    shot.line = row.line;
    shot.club = clubOf(row);
    const std::string notMeasured = readLaunch(row, shot, result.remark);
    const auto value = [&](Quantity quantity) { return read(row, quantity).value; };
    shot.device = {value(Quantity::Carry), value(Quantity::Total), value(Quantity::Height),
                   value(Quantity::LandingAngle), value(Quantity::Time)};
    if (shot.device.landingAngle) // downward, whichever sign the device gives that
        shot.device.landingAngle = std::abs(*shot.device.landingAngle);
    shot.air = {value(Quantity::Wind),       value(Quantity::Altitude),
                value(Quantity::AirDensity), value(Quantity::Temperature),
                value(Quantity::Pressure),   value(Quantity::SeaLevelPressure),
                value(Quantity::Humidity)};
    if (const std::string dropped = dropImpossible(shot.air); !dropped.empty())
        result.remark += (result.remark.empty() ? "" : "; ") + dropped;
    result.leftOut = value(Quantity::LeftOut).value_or(0) != 0;
    if (isSummary(row))
        result.reason = kAverageRow;
    else if (has(Quantity::Shot) && !isNumbered(row))
        result.reason = "no shot number";
    else
        result.reason = notMeasured.empty() ? whyNotFlown(shot) : notMeasured;
    return result;
}

} // namespace

std::size_t ImportPreview::count() const {
    return static_cast<std::size_t>(
        std::count_if(rows.begin(), rows.end(), [](const ImportRow& row) { return row.taken; }));
}

std::vector<MeasuredShot> ImportPreview::taken() const {
    std::vector<MeasuredShot> shots;
    for (const ImportRow& row : rows)
        if (row.taken)
            shots.push_back(row.shot);
    return shots;
}

ImportPreview previewOf(const ShotFile& file, const Device& device) {
    const auto find = [&device](const CsvRow& row) -> std::optional<std::vector<ColumnMeaning>> {
        if (!hasMarks(row, device))
            return std::nullopt;
        return columnsBelow(row, device);
    };
    return {std::string(device.name), device.computesCarry,
            ShotRows(file, find, ShotRows::Units::OfFile, {}, device.plainNumbers).rows()};
}

ImportPreview previewOf(const ShotFile& file, const ColumnChoice& choice) {
    std::vector<ColumnMeaning> columns;
    for (const ChosenColumn& column : choice.columns)
        columns.push_back({column.column, column.quantity, column.unit});
    const auto find = [&](const CsvRow& row) -> std::optional<std::vector<ColumnMeaning>> {
        if (!hasHeadings(row, choice))
            return std::nullopt;
        return columns;
    };
    // Without headings each row counts from the first on.
    const bool below = !recognises(choice, file);
    return {choice.name, choice.computesCarry,
            ShotRows(file, find, ShotRows::Units::Chosen,
                     below ? columns : std::vector<ColumnMeaning>())
                .rows()};
}

Outcome<ImportPreview, ImportFault> importShots(std::string_view bytes) {
    const auto file = readShotFile(bytes);
    if (!file)
        return because(file.why());
    const Device* device = recognise(*file);
    if (device == nullptr)
        return because(ImportFault{0, "No known launch monitor's headings stand in the first sixty "
                                      "rows."});
    ImportPreview preview = previewOf(*file, *device);
    if (preview.count() == 0)
        return because(preview.rows.empty()
                           ? ImportFault{0, "The file has headings, but no shot."}
                           : ImportFault{preview.rows.front().line,
                                         "No row can be flown; line " +
                                             std::to_string(preview.rows.front().line) + ": " +
                                             preview.rows.front().reason + "."});
    return preview;
}

std::string_view figuresHeading(bool computesCarry) {
    return computesCarry ? "Device" : "Measured";
}

} // namespace parabolt
