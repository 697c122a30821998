#include "results/result_table.h"

#include "numbers/text_number.h"
#include "printing/matrix_str.h"
#include "shots/shown_figures.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

/// One column of numbers: its three headings, and the cell below them.
struct NumberColumn {
    std::int16_t headingEnd = 0; ///< column of the headings' last character
    std::array<std::string_view, 3> headings;
    clsMatrixStr::Align align = clsMatrixStr::Right;
    std::int16_t cellColumn = 0;
    ShownFigure figure;
};

constexpr auto kRight = clsMatrixStr::Right;
constexpr auto kLeft = clsMatrixStr::Left;

// The blanks at the end of some headings belong to them: they move a text off the column's edge.
constexpr std::array<NumberColumn, 18> kNumberColumns = {{
    {18, {"Carry", "Time ", "(sec)"}, kRight, 18, shown::kCarryTime},
    {24, {"Carry", "Dist ", "(Yrd)"}, kRight, 24, shown::kCarryDist},
    {31, {"Launch", "Speed ", "(mph)"}, kRight, 31, shown::kLaunchSpeed},
    {38, {"Horiz.", "Impact ", "(mph) "}, kRight, 38, shown::kImpactSpeed},
    {45, {"Launch", "Angle ", "(deg.)"}, kRight, 45, shown::kLaunchAngle},
    {51, {"Ball", "Spin ", "(rpm)"}, kRight, 51, shown::kSpin},
    {58, {"Impact", "Spin ", "(rpm)"}, kRight, 58, shown::kImpactSpin},
    {64, {"Green", "Roll ", "(ft)"}, kRight, 63, shown::kGreenRoll},
    {70, {"Head", "Speed", "(mph)"}, kRight, 70, shown::kHeadSpeed},
    {77, {"Head", "Weight", "(gm)"}, kRight, 77, shown::kHeadWeight},
    {83, {"Loft", "Angle", "(deg)"}, kRight, 83, shown::kLoftAngle},
    {90, {"Attack", "Angle ", "(deg)"}, kRight, 90, shown::kAttackAngle},
    {98, {"Bending", "Angle ", "(deg)"}, kRight, 98, shown::kBending},
    {102, {"COR", "", ""}, kLeft, 102, shown::kCor},
    {108, {"Wind", "Speed", "(mph)"}, kRight, 108, shown::kWindSpeed},
    {114, {"Baro", "Pres.", "In-Hg"}, kRight, 114, shown::kPressure},
    {120, {"", "Temp.", "(deg)"}, kRight, 120, shown::kTemperature},
    {124, {"", "RH ", "(%)"}, kRight, 124, shown::kHumidity},
}};

// What stands in them, in the same order.
constexpr std::array<std::string_view, kNumberColumns.size()> kMeanings = {
    "Time in the air, seconds",
    "Carry: distance to the landing, yards",
    "Speed at which the ball starts, mph",
    "Horizontal speed at the landing, mph",
    "Angle at which the ball starts, degrees",
    "Back spin at the start, rpm",
    "Back spin at the landing, rpm",
    "Roll on the green, feet; below 0 when the ball spins back",
    "Speed of the club head at impact, mph",
    "Mass of the club head, grams",
    "Loft of the club, degrees",
    "Attack angle, degrees, positive upward",
    "Bend of the shaft at impact, degrees; adds to the loft",
    "Coefficient of restitution between head and ball",
    "Wind, mph, positive against the ball",
    "Pressure of the air, as read at sea level, inches of mercury",
    "Temperature of the air, degrees Fahrenheit",
    "Relative humidity of the air, percent",
};

constexpr std::int16_t kClubColumn = 7;
constexpr std::int16_t kModeColumn = 12;

/// The box ends its lines with a line feed alone.
std::string boxLines(std::string text) {
    std::erase(text, '\r');
    return text;
}

} // namespace

std::string composeResultHeader() {
    clsMatrixStr lines;
    lines.Field(kRight, kClubColumn, 2, "Club");
    lines.Field(kRight, kClubColumn, 3, "No.");
    lines.Field(kRight, kModeColumn, 3, "Mode");
    for (const NumberColumn& column : kNumberColumns)
        for (std::int16_t line = 1; line <= 3; ++line)
            lines.Field(kRight, column.headingEnd, line,
                        column.headings.at(static_cast<std::size_t>(line) - 1));
    return lines.OutForm();
}

std::string composeResultRow(const RunRecord& run, std::int16_t clubNo, std::string_view number) {
    clsMatrixStr line;
    line.Field(kRight, kClubColumn, 1,
               (run.IsWood ? "W-" : "I-") + std::to_string(clubNo) + "/" + std::string(number));
    line.Field(kRight, kModeColumn, 1, modeCode(run.Mode));
    for (const NumberColumn& column : kNumberColumns)
        line.Field(column.align, column.cellColumn, 1,
                   formatPattern(run.*column.figure.field, column.figure.pattern));
    return line.OutForm();
}

std::string_view columnMeaning(std::size_t character) {
    constexpr int kLeftCell = 3; // characters of a cell behind its first
    const auto column = static_cast<std::int64_t>(character) + 1;
    if (column <= kClubColumn)
        return "Wood or iron, its number, and the number of the data set";
    if (column <= kModeColumn)
        return "Mode: launch, default, manual, auto or actual";
    for (std::size_t i = 0; i < kNumberColumns.size(); ++i) {
        const NumberColumn& number = kNumberColumns.at(i);
        if (column <= number.headingEnd ||
            (number.align == kLeft && column <= number.cellColumn + kLeftCell))
            return kMeanings.at(i);
    }
    return {};
}

void WriteResultHeader(RichTextBox& table) {
    table.clear();
    table.insert(0, boxLines(composeResultHeader()), kBlack);
    table.setSelColor(kBlack);
}

bool holdsOnlyHeadings(const RichTextBox& table) {
    return table.text() == boxLines(composeResultHeader());
}

void WriteResultRow(RichTextBox& table, const RunRecord& run, std::int16_t clubNo,
                    std::string_view number) {
    table.insert(GetInsertPosition(table), boxLines(composeResultRow(run, clubNo, number)),
                 run.CurveColor);
    table.setSelColor(kWhite);
}

std::size_t GetInsertPosition(const RichTextBox& box) {
    constexpr std::size_t kHeadingLines = 3;
    return box.lineStart(std::max(box.lineFromChar(box.caret()), kHeadingLines)).value_or(0);
}

void followTableEnd(RichTextBox& box) {
    constexpr int kLinesInView = 10;
    const auto lines = static_cast<int>(box.lineCount());
    if (lines > kLinesInView)
        box.scroll(lines - kLinesInView);
}

} // namespace parabolt
