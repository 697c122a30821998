#include "sets/data_sets.h"

#include "exchange/shot_columns.h"
#include "numbers/text_number.h"
#include "sets/data_set_words.h"
#include "shots/figures.h"
#include "shots/fly.h"
#include "shots/shot_words.h"

#include <array>

namespace parabolt {
namespace {

/// A data set in its book.
struct SetRow {
    const RunBook& book;
    int number;

    const RunRecord& run() const { return book[number]; }
    const DataSetTag& tag() const { return book.tag(number); }
};

using SetCell = TableCell (*)(const SetRow&);

TableCell textCell(std::string_view text) {
    return {.text = std::string(text)};
}

bool hasLanded(const RunRecord& run) {
    return run.CarryTime > 0;
}

/// The cell of a figure; empty for a flight that failed.
template <double Figures::*Figure>
TableCell figureCell(const SetRow& row, std::string_view pattern) {
    return hasLanded(row.run()) ? numberCell(figuresOf(row.run()).*Figure, pattern) : TableCell();
}

template <double Figures::*Figure>
TableCell tenths(const SetRow& row) {
    return figureCell<Figure>(row, "0.0");
}

/// The cell of what there is from the landing on.
template <TableCell (*Cell)(const SetRow&)>
TableCell landing(const SetRow& row) {
    return hasLanded(row.run()) ? Cell(row) : textCell(kNoLanding);
}

/// The cell of what a swing has; empty for a launch that was typed in.
template <TableCell (*Cell)(const SetRow&)>
TableCell swing(const SetRow& row) {
    return row.run().Mode == OperatingMode::Launch ? TableCell() : Cell(row);
}

/// The colour of the curve, as "#ff0000".
TableCell colourCell(const SetRow& row) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    const Rgb colour = row.run().CurveColor;
    std::string text = "#";
    for (const std::size_t part : {colour.red, colour.green, colour.blue}) {
        text += kHexDigits[part / 16];
        text += kHexDigits[part % 16];
    }
    return {text};
}

/// How far a figure lies above that of the base set.
template <double Figures::*Figure>
TableCell difference(const SetRow& row) {
    const RunRecord& base = row.book[row.book.base()];
    if (!hasLanded(row.run()) || !hasLanded(base))
        return {};
    const double more = figuresOf(row.run()).*Figure - figuresOf(base).*Figure;
    TableCell cell = numberCell(more, "0.0");
    if (cell.text.find_first_not_of("-0.") == std::string::npos)
        cell.text = "0.0"; // without the sign of what is less than a twentieth
    else if (more > 0)
        cell.text.insert(0, 1, '+');
    return cell;
}

template <float RunRecord::*Value>
TableCell shortest(const SetRow& row) {
    return {shortestText(row.run().*Value), row.run().*Value};
}

/// A value that the impact model may have computed: with one digit behind the point.
template <float RunRecord::*Value>
TableCell tenth(const SetRow& row) {
    return numberCell(row.run().*Value, "0.0");
}

template <float RunRecord::*Value>
TableCell whole(const SetRow& row) {
    return numberCell(row.run().*Value, "0");
}

/// A quantity that the air of the shot has; empty where there is no such air.
template <float ShotState::*Quantity>
TableCell ofAir(const SetRow& row, std::string_view pattern) {
    const auto state = deriveAir(shotOf(row.book, row.number));
    return state ? numberCell((*state).*Quantity, pattern) : TableCell();
}

struct SetColumn {
    TableColumn column;
    SetCell cell;
    bool printed = false; ///< on the page of comparison
};

std::string headingOf(std::string_view heading) {
    return std::string(heading);
}

/// The columns, in the order in which a table has them at first.
const std::vector<SetColumn>& allColumns() {
    using enum TableColumn::Holds;
    namespace headings = shot_columns;
    static const std::vector<SetColumn> kSetColumns = {
        {{"ticked", "Show", "Ticked sets stand in the plot, in the close-up and on paper", true,
          Ticks},
         [](const SetRow& row) { return TableCell{.ticked = row.tag().ticked}; }},
        {{"number", "No.", "Number of the data set, and the colour of its curve"},
         [](const SetRow& row) {
             return TableCell{std::to_string(row.number), double(row.number), row.run().CurveColor};
         },
         true},
        {{"name", "Name", "What you call it, in 60 characters: double-click, or F2, to type", true,
          Names},
         [](const SetRow& row) { return textCell(row.tag().name); },
         true},
        {{"club", headingOf(headings::kClub), "Wood or iron, and its number", true, Texts},
         [](const SetRow& row) { return textCell(clubName(row.run())); },
         true},
        {{"mode", "Mode", "What was given of the shot", true, Texts},
         [](const SetRow& row) { return textCell(modeName(row.run().Mode)); },
         true},
        {{"carry", headingOf(headings::kCarry), "Distance to the landing"},
         landing<tenths<&Figures::carry>>,
         true},
        {{"carryMore", "Carry diff. [yd]", "Carry, less that of the base set"},
         difference<&Figures::carry>,
         true},
        {{"total", headingOf(headings::kTotal), "Carry and roll"},
         landing<tenths<&Figures::total>>,
         true},
        {{"totalMore", "Total diff. [yd]", "Total, less that of the base set"},
         difference<&Figures::total>,
         true},
        {{"height", headingOf(headings::kHeight), "Greatest height above the ground"},
         tenths<&Figures::height>,
         true},
        {{"heightAt", "Height at [yd]", "How far downrange the greatest height is"},
         tenths<&Figures::heightAt>,
         true},
        {{"landingAngle", headingOf(headings::kLandingAngle),
          "Angle of the path against the ground at the landing"},
         landing<tenths<&Figures::landingAngle>>,
         true},
        {{"time", headingOf(headings::kTime), "Time in the air"},
         [](const SetRow& row) { return figureCell<&Figures::time>(row, "0.00"); },
         true},
        {{"launchAngle", headingOf(headings::kLaunchAngle), "Angle at which the ball starts"},
         tenth<&RunRecord::LaunchAngle>,
         true},
        {{"ballSpeed", headingOf(headings::kBallSpeed), "Speed at which the ball starts"},
         tenth<&RunRecord::LaunchSpeed>,
         true},
        {{"spin", headingOf(headings::kSpin), "Back spin at the start"},
         whole<&RunRecord::RPM>,
         true},
        {{"wind", headingOf(headings::kWind), "Wind along the line; above 0 against the ball"},
         shortest<&RunRecord::WindSpeed>,
         true},
        {{"altitude", headingOf(headings::kAltitude), "Altitude of the course"},
         shortest<&RunRecord::h>,
         true},
        {{"temperature", headingOf(headings::kTemperature), "Temperature of the air"},
         shortest<&RunRecord::Temperature>,
         true},
        {{"ball", "Ball", "Ball option; none where an old session doesn't tell it", true, Texts},
         [](const SetRow& row) { return textCell(ballName(row.tag().ball)); },
         true},
        {{"heightMore", "Height diff. [yd]", "Greatest height, less that of the base set", false},
         difference<&Figures::height>},
        {{"landingMore", "Landing diff. [deg]", "Landing angle, less that of the base set", false},
         difference<&Figures::landingAngle>},
        {{"roll", "Roll [yd]", "Roll on the green; below 0 when the ball spins back", false},
         landing<tenths<&Figures::roll>>},
        {{"impactSpin", "Landing spin [rpm]", "Back spin at the landing", false},
         landing<whole<&RunRecord::ImpactSpin>>},
        {{"impactSpeed", "Landing speed [mph]", "Horizontal speed at the landing", false},
         landing<tenth<&RunRecord::ImpactSpeed>>},
        {{"headSpeed", "Head speed [mph]", "Speed of the club head at impact", false},
         swing<shortest<&RunRecord::HeadSpeed>>},
        {{"headWeight", "Head weight [g]", "Mass of the club head", false},
         swing<shortest<&RunRecord::HeadWeight>>},
        {{"loft", "Loft [deg]", "Loft of the club", false}, swing<shortest<&RunRecord::LoftAngle>>},
        {{"bend", "Bend [deg]", "Bend of the shaft at impact; adds to the loft", false},
         swing<shortest<&RunRecord::Bending>>},
        {{"attack", "Attack angle [deg]", "Attack angle, positive upward", false},
         swing<tenth<&RunRecord::AttackAngle>>},
        {{"cor", "COR", "Coefficient of restitution between head and ball", false},
         swing<shortest<&RunRecord::COR>>},
        {{"pressure", headingOf(headings::kPressure), "Pressure of the air, as read at sea level",
          false},
         shortest<&RunRecord::BaroPressure>},
        {{"humidity", headingOf(headings::kHumidity), "Relative humidity of the air", false},
         shortest<&RunRecord::RH>},
        {{"stationPressure", "Station pressure [inHg]", "Pressure of the air at the altitude",
          false},
         [](const SetRow& row) { return ofAir<&ShotState::StationPressure>(row, "0.00"); }},
        {{"density", "Air density [kg/m3]", "Density of the air, as the model computes it", false},
         [](const SetRow& row) { return ofAir<&ShotState::AirDensity>(row, "0.0000"); }},
        {{"viscosity", "Air viscosity [Pa s]", "Viscosity of the air, as the model computes it",
          false},
         [](const SetRow& row) { return ofAir<&ShotState::AirViscosity>(row, "0.00000000"); }},
        {{"colour", "Colour", "Red, green and blue part of the curve's colour", false, Texts},
         colourCell},
    };
    return kSetColumns;
}

int numberOf(std::size_t row) {
    return static_cast<int>(row) + 1;
}

} // namespace

std::span<const TableColumn> DataSets::columns() const {
    static const std::vector<TableColumn> kSetColumns = [] {
        std::vector<TableColumn> columns;
        for (const SetColumn& column : allColumns())
            columns.push_back(column.column);
        return columns;
    }();
    return kSetColumns;
}

TableCell DataSets::cell(std::size_t row, std::size_t column) const {
    return allColumns().at(column).cell({book_, numberOf(row)});
}

void DataSets::setTick(std::size_t row, bool ticked) {
    DataSetTag tag = book_.tag(numberOf(row));
    tag.ticked = ticked;
    book_.setTag(numberOf(row), std::move(tag));
}

void DataSets::tick(std::size_t row, std::size_t /*column*/, bool ticked) {
    tickRows(std::array{row}, ticked);
}

void DataSets::enter(std::size_t row, std::size_t /*column*/, const std::string& text) {
    DataSetTag tag = book_.tag(numberOf(row));
    tag.name = text;
    book_.setTag(numberOf(row), std::move(tag));
}

void DataSets::tickRows(std::span<const std::size_t> rows, bool ticked) {
    for (const std::size_t row : rows)
        setTick(row, ticked);
    if (onTicks)
        onTicks();
}

void DataSets::tickAll() {
    tickRows(completeTable(*this).rows, true);
}

TableExtract DataSets::ticked() const {
    TableExtract extract;
    for (const int number : book_.ticked())
        extract.rows.push_back(static_cast<std::size_t>(number) - 1);
    for (std::size_t i = 0; i < allColumns().size(); ++i)
        if (allColumns()[i].printed)
            extract.columns.push_back(i);
    return extract;
}

} // namespace parabolt
