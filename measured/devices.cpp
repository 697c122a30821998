#include "measured/devices.h"

#include "exchange/shot_columns.h"

#include <array>

namespace parabolt {
namespace {

using enum MeasuredUnit;

// None stands where no source tells the unit: such a column counts where the file tells it.

constexpr std::array<std::string_view, 4> kTrackManMarks = {"Ball Speed", "Launch Angle",
                                                            "Spin Rate", "Carry Flat - Length"};
constexpr std::array<std::string_view, 4> kTrackManPlainMarks = {"Ball Speed", "Launch Angle",
                                                                 "Spin Rate", "Carry"};
constexpr std::array<DeviceColumn, 14> kTrackManColumns = {{
    {"Club", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Launch Angle", Quantity::LaunchAngle, Degrees},
    {"Spin Rate", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Carry", Quantity::Carry, Yards},
    {"Carry Flat - Length", Quantity::Carry, Yards},
    {"Total", Quantity::Total, Yards},
    {"Est. Total Flat - Length", Quantity::Total, Yards},
    {"Height", Quantity::Height, Feet},
    {"Max Height - Height", Quantity::Height, Feet},
    {"Landing Angle", Quantity::LandingAngle, Degrees},
    {"Carry Flat - Land. Angle", Quantity::LandingAngle, Degrees},
    {"Carry Flat - Time", Quantity::Time, Seconds},
}};

constexpr std::array<std::string_view, 5> kGarminMarks = {"Club Type", "Ball Speed", "Backspin",
                                                          "Spin Rate", "Carry Distance"};
constexpr std::array<DeviceColumn, 14> kGarminColumns = {{
    {"Club Name", Quantity::Club, None},
    {"Club Type", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Launch Angle", Quantity::LaunchAngle, Degrees},
    {"Backspin", Quantity::BackSpin, Rpm},
    {"Spin Rate", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Apex Height", Quantity::Height, Yards},
    {"Carry Distance", Quantity::Carry, Yards},
    {"Total Distance", Quantity::Total, Yards},
    {"Air Density", Quantity::AirDensity, KilogramsPerCubicMetre},
    {"Temperature", Quantity::Temperature, Fahrenheit},
    {"Air Pressure", Quantity::Pressure, Kilopascals},
    {"Relative Humidity", Quantity::Humidity, Percent},
}};

constexpr std::array<std::string_view, 4> kGarminGermanMarks = {
    "Ballgeschwindigkeit", "Abflugwinkel", "Drehrate", "Carry-Distanz"};
constexpr std::array<DeviceColumn, 11> kGarminGermanColumns = {{
    {"Schlägername", Quantity::Club, None},
    {"Schlägerart", Quantity::Club, None},
    {"Ballgeschwindigkeit", Quantity::BallSpeed, KilometresPerHour},
    {"Abflugwinkel", Quantity::LaunchAngle, Degrees},
    {"Backspin", Quantity::BackSpin, Rpm},
    {"Drehrate", Quantity::TotalSpin, Rpm},
    {"Carry-Distanz", Quantity::Carry, Metres},
    {"Luftdichte", Quantity::AirDensity, KilogramsPerCubicMetre},
    {"Temperatur", Quantity::Temperature, Celsius},
    {"Luftdruck", Quantity::Pressure, Kilopascals},
    {"Relative Luftfeuchtigkeit", Quantity::Humidity, Percent},
}};

constexpr std::array<std::string_view, 4> kFlightScopeMarks = {"Shot", "Ball Speed", "Launch V",
                                                               "Spin"};
constexpr std::array<DeviceColumn, 11> kFlightScopeColumns = {{
    {"Shot", Quantity::Shot, None},
    {"Club", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Launch V", Quantity::LaunchAngle, Degrees},
    {"Spin", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Carry", Quantity::Carry, Metres},
    {"Total", Quantity::Total, Metres},
    {"Height", Quantity::Height, Metres},
    {"Descent V", Quantity::LandingAngle, Degrees},
    {"Flight Time", Quantity::Time, Seconds},
}};

constexpr std::array<std::string_view, 4> kTrajectoryMarks = {"Ball", "Launch V", "Spin", "Carry"};
constexpr std::array<DeviceColumn, 8> kTrajectoryColumns = {{
    {"Ball", Quantity::BallSpeed, Mph},
    {"Launch V", Quantity::LaunchAngle, Degrees},
    {"Spin", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Carry", Quantity::Carry, Yards},
    {"Total", Quantity::Total, Yards},
    {"Height", Quantity::Height, Feet},
    {"Time", Quantity::Time, Seconds},
}};

constexpr std::array<std::string_view, 4> kFsxMarks = {"Ball Speed", "Launch Angle", "Back Spin",
                                                       "Descent Angle"};
constexpr std::array<std::string_view, 4> kGc3Marks = {"Ball Speed", "Launch Angle", "Back Spin",
                                                       "Spin Axis Tilt"};
constexpr std::array<DeviceColumn, 12> kForesightColumns = {{
    {"Club Name", Quantity::Club, None},
    {"Club Type", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Launch Angle", Quantity::LaunchAngle, Degrees},
    {"Back Spin", Quantity::BackSpin, Rpm},
    {"Total Spin", Quantity::TotalSpin, Rpm},
    {"Spin Axis Tilt", Quantity::SpinAxis, Degrees},
    {"Carry", Quantity::Carry, Yards},
    {"Total Distance", Quantity::Total, Yards},
    {"Total", Quantity::Total, Yards},
    {"Peak Height", Quantity::Height, None},
    {"Descent Angle", Quantity::LandingAngle, Degrees},
}};

constexpr std::array<std::string_view, 5> kSkyTrakMarks = {"SHOT", "BALL SPEED", "LAUNCH", "BACK",
                                                           "CARRY"};
constexpr std::array<DeviceColumn, 9> kSkyTrakColumns = {{
    {"SHOT", Quantity::Shot, None},
    {"BALL SPEED", Quantity::BallSpeed, Mph},
    {"LAUNCH", Quantity::LaunchAngle, Degrees},
    {"BACK", Quantity::BackSpin, Rpm},
    {"CARRY", Quantity::Carry, Yards},
    {"TOTAL", Quantity::Total, Yards},
    {"HEIGHT", Quantity::Height, None},
    {"DSCNT", Quantity::LandingAngle, Degrees},
    {"FLIGHT", Quantity::Time, Seconds},
}};

constexpr std::array<std::string_view, 5> kRapsodoMarks = {
    "Ball Speed", "Launch Angle", "Carry Distance", "Side Carry", "Spin Rate"};
constexpr std::array<DeviceColumn, 9> kRapsodoColumns = {{
    {"Club Type", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Launch Angle", Quantity::LaunchAngle, Degrees},
    {"Spin Rate", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Carry Distance", Quantity::Carry, Yards},
    {"Total Distance", Quantity::Total, Yards},
    {"Apex", Quantity::Height, Feet},
    {"Descent Angle", Quantity::LandingAngle, Degrees},
}};

constexpr std::array<std::string_view, 4> kAwesomeMarks = {"Ball Speed", "Vertical Launch",
                                                           "Spin Rate", "Carry Distance"};
constexpr std::array<DeviceColumn, 11> kAwesomeColumns = {{
    {"Club Description", Quantity::Club, None},
    {"Club Type", Quantity::Club, None},
    {"Ball Speed", Quantity::BallSpeed, Mph},
    {"Vertical Launch", Quantity::LaunchAngle, Degrees},
    {"Spin Rate", Quantity::TotalSpin, Rpm},
    {"Spin Axis", Quantity::SpinAxis, Degrees},
    {"Carry Distance", Quantity::Carry, Yards},
    {"Total Distance", Quantity::Total, Yards},
    {"Peak Height", Quantity::Height, None},
    {"Descent Angle", Quantity::LandingAngle, Degrees},
    {"Altitude", Quantity::Altitude, None},
}};

constexpr std::array<std::string_view, 4> kGsProMarks = {"BallSpeed", "BackSpin", "VLA", "Carry"};
constexpr std::array<DeviceColumn, 7> kGsProColumns = {{
    {"Club", Quantity::Club, None},
    {"BallSpeed", Quantity::BallSpeed, Mph},
    {"VLA", Quantity::LaunchAngle, Degrees},
    {"BackSpin", Quantity::BackSpin, Rpm},
    {"Carry", Quantity::Carry, Yards},
    {"TotalDistance", Quantity::Total, Yards},
    {"Decent", Quantity::LandingAngle, Degrees},
}};

constexpr std::array<std::string_view, 3> kOwnMarks = {
    shot_columns::kBallSpeed, shot_columns::kLaunchAngle, shot_columns::kSpin};
// The table of measured shots holds the device's figures beside the model's.
constexpr std::array<std::string_view, 4> kOwnMeasuredMarks = {
    shot_columns::kBallSpeed, shot_columns::kLaunchAngle, shot_columns::kSpin,
    "Measured carry [yd]"};
constexpr std::array<DeviceColumn, 27> kOwnColumns = {{
    {shot_columns::kClub, Quantity::Club, None},
    {shot_columns::kBallSpeed, Quantity::BallSpeed, Mph},
    {shot_columns::kLaunchAngle, Quantity::LaunchAngle, Degrees},
    {shot_columns::kSpin, Quantity::BackSpin, Rpm},
    {shot_columns::kCarry, Quantity::Carry, Yards},
    {shot_columns::kTotal, Quantity::Total, Yards},
    {shot_columns::kHeight, Quantity::Height, Yards},
    {shot_columns::kLandingAngle, Quantity::LandingAngle, Degrees},
    {shot_columns::kTime, Quantity::Time, Seconds},
    {shot_columns::kWind, Quantity::Wind, Mph},
    {shot_columns::kAltitude, Quantity::Altitude, Feet},
    {shot_columns::kTemperature, Quantity::Temperature, Fahrenheit},
    {shot_columns::kPressure, Quantity::SeaLevelPressure, InchesOfMercury},
    {shot_columns::kHumidity, Quantity::Humidity, Percent},
    {shot_columns::kPressureAtPlace, Quantity::Pressure, InchesOfMercury},
    {shot_columns::kAirDensity, Quantity::AirDensity, KilogramsPerCubicMetre},
    {"Measured carry [yd]", Quantity::Carry, Yards},
    {"Measured total [yd]", Quantity::Total, Yards},
    {"Measured height [yd]", Quantity::Height, Yards},
    {"Measured landing angle [deg]", Quantity::LandingAngle, Degrees},
    {"Measured time [s]", Quantity::Time, Seconds},
    {"Device carry [yd]", Quantity::Carry, Yards},
    {"Device total [yd]", Quantity::Total, Yards},
    {"Device height [yd]", Quantity::Height, Yards},
    {"Device landing angle [deg]", Quantity::LandingAngle, Degrees},
    {"Device time [s]", Quantity::Time, Seconds},
    {"Out", Quantity::LeftOut, None},
}};

// name, computes its carry, marks, columns. Where the marks of one are among those of another, the
// one with more stands first.
constexpr std::array<Device, 14> kDevices = {{
    {"Garmin", true, kGarminMarks, kGarminColumns},
    {"Garmin", true, kGarminGermanMarks, kGarminGermanColumns},
    {"Rapsodo MLM2PRO", true, kRapsodoMarks, kRapsodoColumns},
    {"Awesome Golf", true, kAwesomeMarks, kAwesomeColumns},
    {"Foresight FSX Play", true, kFsxMarks, kForesightColumns},
    {"Foresight GC3", true, kGc3Marks, kForesightColumns},
    {"SkyTrak", true, kSkyTrakMarks, kSkyTrakColumns},
    {"GSPro", true, kGsProMarks, kGsProColumns},
    {"FlightScope", false, kFlightScopeMarks, kFlightScopeColumns},
    {"FlightScope trajectories", true, kTrajectoryMarks, kTrajectoryColumns},
    {"TrackMan", false, kTrackManMarks, kTrackManColumns},
    {"TrackMan", false, kTrackManPlainMarks, kTrackManColumns},
    {"Parabolt", false, kOwnMeasuredMarks, kOwnColumns, true},
    {"Parabolt", true, kOwnMarks, kOwnColumns, true},
}};

} // namespace

std::span<const Device> devices() {
    return kDevices;
}

} // namespace parabolt
