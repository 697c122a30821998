#include "cli/normalise_command.h"

#include "cli/monitor_file.h"
#include "cli/shot_rows.h"
#include "measured/measured_flights.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "shots/fault_words.h"

#include <tuple>

namespace parabolt::cli {
namespace {

namespace heading = shot_columns;

constexpr std::array<Column, 9> kColumns = {{
    {"line", "Line", "0"},
    kClubColumn,
    {"ball_speed_mph", heading::kBallSpeed, "0.0"},
    {"launch_angle_deg", heading::kLaunchAngle, "0.0"},
    {"spin_rpm", heading::kSpin, "0"},
    {"device_carry_yd", "Device carry [yd]", "0.0"},
    {"model_carry_yd", "Model carry [yd]", "0.0"},
    {"normalised_carry_yd", "Normalised carry [yd]", "0.0"},
    {"problem", "Problem", {}},
}};

/// The air of the options; the option with the reason why it is refused.
Outcome<CalmAir, std::string> airOf(const NormaliseOptions& options) {
    CalmAir air;
    for (const auto& [option, text, limits, member] :
         {std::tuple("--to-altitude-ft", &options.altitude, &limits::kAltitude, &CalmAir::altitude),
          std::tuple("--to-temperature-deg-f", &options.temperature, &limits::kTemperature,
                     &CalmAir::temperature),
          std::tuple("--to-pressure-inhg", &options.pressure, &limits::kPressure,
                     &CalmAir::pressure),
          std::tuple("--to-humidity-percent", &options.humidity, &limits::kHumidity,
                     &CalmAir::humidity)}) {
        if (!*text)
            continue;
        const auto value = parseNumber(**text);
        if (!value || !limits->hold(*value))
            return because(std::string(option) + ": " +
                           std::string(value ? limits->rangeMessage : limits->noNumber()));
        air.*member = store32(*value);
    }
    return air;
}

/// Writes a row for each shot; the number of those without a normalised carry.
std::size_t writeRows(std::span<const MeasuredShot> shots, std::span<const ModelFlight> flights,
                      std::span<const std::optional<double>> carries, RowStream& rows) {
    std::size_t without = 0;
    for (std::size_t i = 0; i < shots.size(); ++i) {
        const MeasuredShot& shot = shots[i];
        const auto orNone = [](const std::optional<double>& yards) {
            return yards ? Cell(*yards) : Cell();
        };
        const auto& fault = flights[i].fault;
        std::string_view problem;
        if (fault)
            problem = faultDescription(*fault);
        else if (!shot.device.carry)
            problem = "The device tells no carry.";
        else if (!(flights[i].figures.carry > 0))
            problem = "The model's carry is not above 0 yards: it gives no ratio.";
        else if (!carries[i])
            problem = "The shot can't be flown in the calm air.";
        without += carries[i] ? 0U : 1U;
        rows.row(std::array<Cell, kColumns.size()>{
            static_cast<double>(shot.line), std::string_view(shot.club), shot.ballSpeed,
            shot.launchAngle, shot.backSpin, orNone(shot.device.carry),
            fault ? Cell() : Cell(store32(flights[i].figures.carry)), orNone(carries[i]), problem});
    }
    return without;
}

} // namespace

ExitStatus normaliseCommand(const NormaliseOptions& options, const Console& console) {
    const auto conditions = shotOf(options.shot, console);
    if (!conditions)
        return console.complain(conditions.why());
    const auto air = airOf(options);
    if (!air)
        return console.complain(air.why());
    auto input = Input::open(options.file, console);
    if (!input)
        return console.complain(input.why());
    const auto content = input->readAll(kLongestShotFile);
    if (!content)
        return console.complain(content.why());
    const auto file = importMonitorFile(*content, input->name(), console);
    if (!file)
        return console.complain(file.why());
    const auto shots = file->taken();
    const auto flights = flyMeasured(shots, *conditions, options.ownAir);
    const auto carries = normalisedCarries(shots, flights, *conditions, *air);
    const Format format = options.format.value_or(console.usualFormat());
    RowStream rows(console, format, kColumns);
    const std::size_t without = writeRows(shots, flights, carries, rows);
    rows.end();
    // Beside the figures for people; other programs read what is on the standard output.
    (format == Format::Table ? console.out << '\n' : console.err) << kNormalisedNote << '\n';
    return console.finish(without > 0 ? ExitStatus::SomeFailed : ExitStatus::Done);
}

} // namespace parabolt::cli
