#include "mainform/modes.h"

#include "numbers/text_number.h"
#include "shots/shot.h"

#include <array>

namespace parabolt {
namespace {

/// A control of the form, whatever its kind.
using ControlOf = Control& (*)(ShotControls&);
template <auto Member>
Control& at(ShotControls& form) {
    return form.*Member;
}

constexpr std::array<ControlOf, 11> kClubParameters = {
    at<&ShotControls::Frame5>,         at<&ShotControls::Label6>,
    at<&ShotControls::Label12>,        at<&ShotControls::Label13>,
    at<&ShotControls::Label20>,        at<&ShotControls::Label14>,
    at<&ShotControls::txtCor>,         at<&ShotControls::txtHeadWeight>,
    at<&ShotControls::txtAttackAngle>, at<&ShotControls::txtBending>,
    at<&ShotControls::txtLoftAngle>};

constexpr std::array<ControlOf, 5> kBallFrame = {
    at<&ShotControls::Frame6>, at<&ShotControls::BallOpt1>, at<&ShotControls::BallOpt2>,
    at<&ShotControls::BallOpt3>, at<&ShotControls::BallOpt4>};

/// Whether a control is enabled in each mode. `Left` leaves it as the club parameters were set.
struct ModeRow {
    ControlOf control;
    enum State : std::uint8_t { Off, On, Left };
    std::array<State, 5> state;
};

constexpr auto kOff = ModeRow::Off;
constexpr auto kOn = ModeRow::On;
constexpr auto kLeft = ModeRow::Left;

// The rows stand in the order in which they take effect.
constexpr std::array<ModeRow, 18> kModeTable = {{
    // control              Launch Default Manual Auto Actual
    {at<&ShotControls::Label13>, {kLeft, kLeft, kLeft, kLeft, kOff}},
    {at<&ShotControls::txtAttackAngle>, {kLeft, kLeft, kLeft, kLeft, kOff}},
    {at<&ShotControls::Label2>, {kOn, kOff, kOff, kOff, kOff}},
    {at<&ShotControls::txtBallSpin>, {kOn, kOff, kOff, kOff, kOff}},
    {at<&ShotControls::Label3>, {kOn, kOff, kOff, kOff, kOn}},
    {at<&ShotControls::txtLaunchAngle>, {kOn, kOff, kOff, kOff, kOn}},
    {at<&ShotControls::Label7>, {kOn, kOff, kOff, kOff, kOff}},
    {at<&ShotControls::txtLaunchSpeed>, {kOn, kOff, kOff, kOff, kOff}},
    {at<&ShotControls::Label8>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::cmbClubNo>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::Label9>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::txtHeadSpeed>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::Label10>, {kOff, kOff, kOff, kOn, kOff}},
    {at<&ShotControls::txtSpeedIncrement>, {kOff, kOff, kOff, kOn, kOff}},
    {at<&ShotControls::Frame4>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::optIron>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::optWood>, {kOff, kOn, kOn, kOn, kOn}},
    {at<&ShotControls::chkBatch>, {kOff, kOff, kOff, kOn, kOff}},
}};

template <class Controls>
void setEnabled(ShotControls& form, const Controls& controls, bool enabled) {
    for (const ControlOf control : controls)
        control(form).setEnabled(enabled);
}

void giveClubParameters(ShotControls& form, bool given) {
    setEnabled(form, kClubParameters, given);
    if (given)
        setEnabled(form, kBallFrame, true);
}

/// Brings the controls into the state of the mode in `txtMode`, row by row. `loadClub` is called in
/// mode 1, when the list of clubs has been enabled. A text that is no mode changes nothing.
template <class LoadClub>
void walkModeTable(ShotControls& form, LoadClub loadClub) {
    const int mode = operatingMode(form);
    if (mode != leadingNumber(form.txtMode.text()) || mode < OperatingMode::Launch ||
        mode > OperatingMode::Actual)
        return;
    giveClubParameters(form, mode == OperatingMode::Manual || mode == OperatingMode::Actual);
    for (const ModeRow& row : kModeTable) {
        const auto state = row.state.at(static_cast<std::size_t>(mode));
        if (state != kLeft)
            row.control(form).setEnabled(state == kOn);
        if (mode == OperatingMode::Default && &row.control(form) == &form.cmbClubNo)
            loadClub();
    }
}

} // namespace

Modes::Modes(ShotControls& form, ClubChoice& clubs) : form_(form), clubs_(clubs) {
    form_.optLaunch.Click.connect([this] { form_.txtMode.setText("0"); });
    form_.optStandard.Click.connect([this] { form_.txtMode.setText("1"); });
    form_.optManual.Click.connect([this] { form_.txtMode.setText("2"); });
    form_.optAuto.Click.connect([this] { SetAutoMode(); });
    form_.optActual.Click.connect([this] { form_.txtMode.setText("4"); });
    form_.txtMode.Change.connect([this] { txtMode_Change(); });
}

void Modes::SetAutoMode() {
    form_.txtMode.setText("3");
}

void Modes::EnableClubParameters() {
    giveClubParameters(form_, true);
}

void Modes::DisableClubParameters() {
    giveClubParameters(form_, false);
}

void Modes::txtMode_Change() {
    walkModeTable(form_, [this] { clubs_.cmbClubNo_Click(); });
}

OptionButton& modeButton(ShotControls& form, int mode) {
    constexpr std::array<OptionButton ShotControls::*, 5> kButtons = {
        &ShotControls::optLaunch, &ShotControls::optStandard, &ShotControls::optManual,
        &ShotControls::optAuto, &ShotControls::optActual};
    return form.*kButtons.at(static_cast<std::size_t>(mode));
}

void enableForMode(ShotControls& form) {
    walkModeTable(form, [] {});
}

} // namespace parabolt
