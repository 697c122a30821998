#include "mainform/modes.h"

#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<std::string_view, 11> kClubParameters = {
    "Frame5", "Label6",        "Label12",        "Label13",    "Label20",     "Label14",
    "txtCor", "txtHeadWeight", "txtAttackAngle", "txtBending", "txtLoftAngle"};

constexpr std::array<std::string_view, 5> kBallOptions = {"Frame6", "BallOpt1", "BallOpt2",
                                                          "BallOpt3", "BallOpt4"};

/// Whether a control is enabled in each mode. `Left` leaves it as the club parameters were set.
struct ModeRow {
    std::string_view control;
    enum State : std::uint8_t { Off, On, Left };
    std::array<State, 5> state;
};

constexpr auto kOff = ModeRow::Off;
constexpr auto kOn = ModeRow::On;
constexpr auto kLeft = ModeRow::Left;

// The rows stand in the order in which they take effect.
constexpr std::array<ModeRow, 18> kModeTable = {{
    // control              Launch Default Manual Auto Actual
    {"Label13", {kLeft, kLeft, kLeft, kLeft, kOff}},
    {"txtAttackAngle", {kLeft, kLeft, kLeft, kLeft, kOff}},
    {"Label2", {kOn, kOff, kOff, kOff, kOff}},
    {"txtBallSpin", {kOn, kOff, kOff, kOff, kOff}},
    {"Label3", {kOn, kOff, kOff, kOff, kOn}},
    {"txtLaunchAngle", {kOn, kOff, kOff, kOff, kOn}},
    {"Label7", {kOn, kOff, kOff, kOff, kOff}},
    {"txtLaunchSpeed", {kOn, kOff, kOff, kOff, kOff}},
    {"Label8", {kOff, kOn, kOn, kOn, kOn}},
    {"cmbClubNo", {kOff, kOn, kOn, kOn, kOn}},
    {"Label9", {kOff, kOn, kOn, kOn, kOn}},
    {"txtHeadSpeed", {kOff, kOn, kOn, kOn, kOn}},
    {"Label10", {kOff, kOff, kOff, kOn, kOff}},
    {"txtSpeedIncrement", {kOff, kOff, kOff, kOn, kOff}},
    {"Frame4", {kOff, kOn, kOn, kOn, kOn}},
    {"optIron", {kOff, kOn, kOn, kOn, kOn}},
    {"optWood", {kOff, kOn, kOn, kOn, kOn}},
    {"chkBatch", {kOff, kOff, kOff, kOn, kOff}},
}};

template <class Names>
void setEnabled(const MainForm& form, const Names& names, bool enabled) {
    for (const std::string_view name : names)
        form.controls.find(name)->setEnabled(enabled);
}

} // namespace

Modes::Modes(MainForm& form, ClubChoice& clubs) : form_(form), clubs_(clubs) {
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
    setEnabled(form_, kClubParameters, true);
    setEnabled(form_, kBallOptions, true);
}

void Modes::DisableClubParameters() {
    setEnabled(form_, kClubParameters, false);
}

void Modes::txtMode_Change() {
    const int mode = operatingMode(form_);
    if (mode != leadingNumber(form_.txtMode.text()) || mode < OperatingMode::Launch ||
        mode > OperatingMode::Actual)
        return;
    if (mode == OperatingMode::Manual || mode == OperatingMode::Actual)
        EnableClubParameters();
    else
        DisableClubParameters();
    for (const ModeRow& row : kModeTable) {
        const auto state = row.state.at(static_cast<std::size_t>(mode));
        if (state != kLeft)
            form_.controls.find(row.control)->setEnabled(state == kOn);
        if (mode == OperatingMode::Default && row.control == "cmbClubNo")
            clubs_.cmbClubNo_Click();
    }
}

} // namespace parabolt
