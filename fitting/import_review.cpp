#include "fitting/import_review.h"

#include "exchange/shot_columns.h"
#include "measured/cell_number.h"
#include "measured/columns.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr std::string_view kStore = "Parabolt";
constexpr std::string_view kSection = "Measured";

std::string memoryKey(int place) {
    return "Columns" + std::to_string(place);
}

bool forSameHeadings(const ColumnChoice& one, const ColumnChoice& other) {
    return std::equal(one.columns.begin(), one.columns.end(), other.columns.begin(),
                      other.columns.end(), [](const auto& a, const auto& b) {
                          return a.column == b.column && a.heading == b.heading;
                      });
}

enum class ReviewColumn { Take, Line, Club, BallSpeed, LaunchAngle, Spin, Carry, Total, Note };

const std::array<TableColumn, 9>& reviewColumns() {
    using Holds = TableColumn::Holds;
    static const std::array<TableColumn, 9> kColumns = {{
        {"take", "Take", "Ticked rows are taken", true, Holds::Ticks},
        {"line", "Line", "Line of the file"},
        {"club", "Club", "Club, as the file names it", true, Holds::Texts},
        {"ballSpeed", std::string(shot_columns::kBallSpeed), "Speed of the ball behind the club"},
        {"launchAngle", std::string(shot_columns::kLaunchAngle), "Angle of the launch"},
        {"spin", std::string(shot_columns::kSpin), "Back spin"},
        {"carry", std::string(shot_columns::kCarry), "Carry that the file brings"},
        {"total", std::string(shot_columns::kTotal), "Total that the file brings"},
        {"note", "Note", "Why a row is left out, or what was made of its values", true,
         Holds::Texts},
    }};
    return kColumns;
}

/// The row of a file with the most cells.
std::vector<std::string> widestRow(const ShotFile& file) {
    const auto widest = std::max_element(
        file.rows.begin(), file.rows.end(),
        [](const auto& one, const auto& other) { return one.cells.size() < other.cells.size(); });
    return widest == file.rows.end() ? std::vector<std::string>() : widest->cells;
}

TableCell launchCell(const ImportRow& row, float MeasuredShot::*member, std::string_view pattern) {
    const float value = row.shot.*member;
    return value == 0 && !row.reason.empty() ? TableCell() : numberCell(value, pattern);
}

TableCell figureCell(const std::optional<double>& figure) {
    return figure ? numberCell(*figure, "0.0") : TableCell();
}

} // namespace

std::vector<ColumnChoice> ColumnMemory::choices() const {
    std::vector<ColumnChoice> choices;
    for (int place = 1; place <= kMost; ++place) {
        const auto text = GetRegString(preferences_, kStore, kSection, memoryKey(place), "");
        if (const auto choice = text ? choiceOf(*text) : std::nullopt)
            choices.push_back(*choice);
    }
    return choices;
}

void ColumnMemory::remember(const ColumnChoice& choice) {
    auto kept = choices();
    std::erase_if(kept, [&](const auto& other) { return forSameHeadings(choice, other); });
    kept.insert(kept.begin(), choice);
    kept.resize(std::min(kept.size(), std::size_t{kMost}));
    int place = 0;
    for (const ColumnChoice& one : kept)
        if (!SaveRegString(preferences_, kStore, kSection, memoryKey(++place), choiceText(one)))
            return;
}

Outcome<ImportReview, ImportFault> ImportReview::open(std::string_view bytes,
                                                      std::span<const ColumnChoice> remembered) {
    auto file = readShotFile(bytes);
    if (!file)
        return because(file.why());
    if (file->rows.empty())
        return because(ImportFault{0, "The file is empty."});
    ImportReview review;
    review.file_ = std::move(*file);
    review.device_ = recognise(review.file_);
    if (review.device_ != nullptr) {
        review.preview_ = previewOf(review.file_, *review.device_);
        return review;
    }
    review.headings_ = guessedHeadings(review.file_);
    constexpr std::size_t kExamples = 3;
    const auto examples = exampleRows(review.file_, kExamples);
    review.examples_.assign(examples.begin(), examples.end());
    const auto known = std::find_if(remembered.begin(), remembered.end(), [&](const auto& choice) {
        return recognises(choice, review.file_);
    });
    review.choose(known == remembered.end() ? guessedChoice(review.file_) : *known);
    if (known != remembered.end())
        review.remembered_ = review.choice_;
    return review;
}

void ImportReview::choose(ColumnChoice choice) {
    choice_ = std::move(choice);
    for (ChosenColumn& column : choice_.columns)
        column.heading = column.column < headings_.size() ? headings_[column.column] : "";
    preview_ = previewOf(file_, choice_);
    for (ImportRow& row : preview_.rows)
        row.taken = row.taken && !unticked_.contains(row.line);
}

void ImportReview::nameDevice(std::string name, bool computesCarry) {
    choice_.name = std::move(name);
    choice_.computesCarry = computesCarry;
    preview_.device = choice_.name;
    preview_.computesCarry = computesCarry;
}

std::vector<std::string> ImportReview::columnTitles() const {
    const auto example = widestRow(file_);
    std::vector<std::string> titles;
    for (std::size_t i = 0; i < std::max(headings_.size(), example.size()); ++i)
        titles.push_back(i < headings_.size() && !headings_[i].empty()
                             ? headings_[i]
                             : "Column " + std::to_string(i + 1) +
                                   (i < example.size() ? ": " + example[i] : ""));
    return titles;
}

std::vector<std::string> ImportReview::examples(std::size_t column) const {
    std::vector<std::string> cells;
    cells.reserve(examples_.size());
    for (const CsvRow& row : examples_)
        cells.emplace_back(cellOf(row, column));
    return cells;
}

MeasuredUnit ImportReview::likelyUnit(std::size_t column, Quantity quantity) const {
    auto texts = examples(column);
    if (column < headings_.size())
        texts.push_back(headingParts(headings_[column]).unit);
    for (const std::string& text : texts) {
        const auto number = cellNumber(text, false, false);
        if (const auto unit = number ? number->unit : unitNamed(text);
            unit && suits(*unit, quantity))
            return *unit;
    }
    return textOf(quantity).unit;
}

std::optional<Quantity> ImportReview::chosenTwice() const {
    std::set<Quantity> met;
    for (const ChosenColumn& column : choice_.columns)
        if (!met.insert(column.quantity).second)
            return column.quantity;
    return std::nullopt;
}

std::string ImportReview::summary() const {
    const std::string count = std::to_string(preview_.count()) + " of " +
                              std::to_string(preview_.rows.size()) + " rows will be taken.";
    if (device_ != nullptr)
        return "Recognised as " + preview_.device + ": " + count;
    if (const auto twice = chosenTwice())
        return "Two columns are chosen as " + std::string(textOf(*twice).name) +
               ". Nothing can be taken until each meaning has one column.";
    if (!choice_.columns.empty() && choice_ == remembered_)
        return "Columns as you chose them last time: " + count;
    return "No known launch monitor writes such headings. Choose what the columns mean: " + count;
}

std::vector<std::string> ImportReview::unknownClubs(const ClubTables& tables,
                                                    const ClubAnswers& answers) const {
    std::vector<std::string> seen;
    for (const ImportRow& row : preview_.rows)
        if (row.taken && !row.shot.club.empty() &&
            std::find(seen.begin(), seen.end(), row.shot.club) == seen.end())
            seen.push_back(row.shot.club);
    std::erase_if(seen,
                  [&](const auto& text) { return clubNamed(text, tables, answers).has_value(); });
    return seen;
}

std::span<const TableColumn> ImportReview::columns() const {
    return reviewColumns();
}

TableCell ImportReview::cell(std::size_t row, std::size_t column) const {
    const ImportRow& shown = preview_.rows[row];
    TableCell cell;
    switch (static_cast<ReviewColumn>(column)) {
    case ReviewColumn::Take:
        cell.ticked = shown.taken;
        break;
    case ReviewColumn::Line:
        cell = numberCell(static_cast<double>(shown.line), "0");
        break;
    case ReviewColumn::Club:
        cell.text = shown.shot.club;
        break;
    case ReviewColumn::BallSpeed:
        cell = launchCell(shown, &MeasuredShot::ballSpeed, "0.0");
        break;
    case ReviewColumn::LaunchAngle:
        cell = launchCell(shown, &MeasuredShot::launchAngle, "0.0");
        break;
    case ReviewColumn::Spin:
        cell = launchCell(shown, &MeasuredShot::backSpin, "0");
        break;
    case ReviewColumn::Carry:
        cell = figureCell(shown.shot.device.carry);
        break;
    case ReviewColumn::Total:
        cell = figureCell(shown.shot.device.total);
        break;
    case ReviewColumn::Note:
        cell.text = shown.reason.empty() ? shown.remark : shown.reason;
    }
    if (!shown.reason.empty())
        cell.look = TableCell::Look::Faint;
    return cell;
}

void ImportReview::tick(std::size_t row, std::size_t column, bool ticked) {
    ImportRow& shown = preview_.rows[row];
    if (static_cast<ReviewColumn>(column) != ReviewColumn::Take || !shown.reason.empty())
        return;
    shown.taken = ticked;
    if (ticked)
        unticked_.erase(shown.line);
    else
        unticked_.insert(shown.line);
}

} // namespace parabolt
