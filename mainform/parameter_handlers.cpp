#include "mainform/parameter_handlers.h"

#include "files/file_access.h"
#include "mainform/club_choice.h"
#include "mainform/defaults.h"
#include "mainform/form_shot.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <utility>

namespace parabolt {

namespace {

constexpr std::uint32_t kNoSuchClub = 380; ///< number of the failure

void takeSwingAndClub(ShotInputs& shot, const ParameterRecord& record) {
    shot.AttackAngle = record.AttackAngle;
    shot.Bending = record.Bending;
    shot.LoftAngle = record.LoftAngle;
    shot.HeadWeight = record.HeadWeight;
    shot.COR = record.COR;
    shot.LaunchAngle = record.LaunchAngle;
    shot.RPM = record.RPM;
    shot.LaunchSpeed = record.LaunchSpeed;
    shot.HeadSpeed = record.HeadSpeed;
    shot.ClubNo = record.ClubNo;
    shot.SpeedIncrement = record.SpeedIncrement;
}

Outcome<void, Failure> selectClub(ShotControls& form, std::int16_t clubNo) {
    DropDownList& list = form.cmbClubNo;
    const int index = list.indexOf(std::to_string(clubNo));
    if (index < 0)
        return because(Failure{kNoSuchClub, "There is no club of this number."});
    // The club counts as chosen even if it was before: in mode 1 its table values come in.
    if (list.listIndex() == index)
        list.Click();
    else
        list.select(index);
    takeClubNumber(form);
    return {};
}

void takeWeather(ShotControls& form, const ParameterRecord& record) {
    ShotInputs& shot = form.shot;
    if (record.RH == shot.RH && record.BaroPressure == shot.BaroPressure &&
        record.Temperature == shot.Temperature && record.h == shot.h &&
        static_cast<double>(record.WindSpeed) == shot.WindSpeed)
        return;
    shot.RH = record.RH;
    shot.BaroPressure = record.BaroPressure;
    shot.Temperature = record.Temperature;
    shot.h = record.h;
    shot.WindSpeed = record.WindSpeed;
    showEnvironment(form);
}

void takeBall(ShotControls& form, std::int16_t ballType) {
    for (const BallOption& option : ballOptions()) {
        if (option.BallType != ballType)
            continue;
        option.applyTo(form.shot);
        (form.*option.button).select();
    }
}

} // namespace

ParameterHandlers::ParameterHandlers(ShotControls& form, FileDialog& dialog,
                                     PreferencesStore& preferences, MessageBoxes& messages,
                                     std::string applicationFolder)
    : form_(form),
      messages_(messages),
      dialogs_(dialog, preferences, messages, std::move(applicationFolder)) {}

void ParameterHandlers::mnuOpen_Click() {
    const auto load = [this](const std::string& fileName,
                             std::string_view) -> Outcome<void, Failure> {
        const auto data = readFileStart(fileName, kParametersFileSize);
        if (!data)
            return because(data.why());
        const ParameterRecord record = decodeParameters(*data);
        if (!messages_.ask("Do you want to replace the Club data, and Environment parameters?"))
            return {};
        form_.Wiping();
        return applyParameters(form_, record);
    };
    if (const auto done = dialogs_.run(DialogPurpose::OpenParameters, load); !done)
        messages_.show(readFailureMessage(done.why()));
}

void ParameterHandlers::mnuSave_Click() {
    const auto save = [this](const std::string& fileName, std::string_view) {
        return writeFileStart(fileName, encodeParameters(collectParameters(form_)));
    };
    if (const auto done = dialogs_.run(DialogPurpose::SaveParameters, save); !done)
        messages_.show(done.why().description);
}

ParameterRecord collectParameters(const ShotControls& form) {
    const ShotInputs& shot = form.shot;
    ParameterRecord record;
    record.LaunchAngle = shot.LaunchAngle;
    record.RPM = shot.RPM;
    record.LaunchSpeed = shot.LaunchSpeed;
    record.HeadSpeed = shot.HeadSpeed;
    record.ClubNo = shot.ClubNo;
    record.SpeedIncrement = shot.SpeedIncrement;
    record.ClubType = roundTo<std::int16_t>(leadingNumber(form.txtType.text())).value_or(0);
    record.COR = shot.COR;
    record.HeadWeight = shot.HeadWeight;
    record.AttackAngle = shot.AttackAngle;
    record.Bending = shot.Bending;
    record.LoftAngle = shot.LoftAngle;
    for (const BallOption& option : ballOptions())
        if ((form.*option.button).selected())
            record.BallType = option.BallType;
    record.WindSpeed = store32(shot.WindSpeed);
    record.Temperature = shot.Temperature;
    record.BaroPressure = shot.BaroPressure;
    record.RH = shot.RH;
    record.h = shot.h;
    return record;
}

Outcome<void, Failure> applyParameters(ShotControls& form, const ParameterRecord& record) {
    takeSwingAndClub(form.shot, record);
    form.txtType.setText(std::to_string(record.ClubType));
    if (auto selected = selectClub(form, record.ClubNo); !selected)
        return selected;
    takeWeather(form, record);
    takeBall(form, record.BallType);
    showSwing(form);
    showClub(form);
    return {};
}

} // namespace parabolt
