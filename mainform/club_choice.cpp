#include "mainform/club_choice.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "shots/shot.h"

namespace parabolt {

ClubChoice::ClubChoice(ShotControls& form, const ClubTables& clubs, Validators& validators)
    : form_(form),
      clubs_(clubs),
      validators_(validators) {
    form_.optWood.Click.connect([this] { form_.txtType.setText("0"); });
    form_.optIron.Click.connect([this] { form_.txtType.setText("1"); });
    form_.txtType.Change.connect([this] { txtType_Change(); });
    form_.cmbClubNo.Click.connect([this] { cmbClubNo_Click(); });
}

void ClubChoice::cmbClubNo_Click() {
    takeClubNumber(form_);
    if (operatingMode(form_) != OperatingMode::Default)
        return;
    const ClubRecord* club = playableClub(clubs_, form_.optIron.selected(), form_.shot.ClubNo);
    if (club == nullptr)
        return;
    form_.txtCor.setText(formatPattern(club->COR, "0.00"));
    form_.txtHeadSpeed.setText(shortestText(club->HeadSpeed));
    form_.txtAttackAngle.setText(shortestText(club->AttackAngle));
    form_.txtBending.setText(shortestText(club->Bending));
    form_.txtHeadWeight.setText(shortestText(club->HeadWeight));
    form_.txtLoftAngle.setText(shortestText(club->LoftAngle));
    for (const TextBox* field : {&form_.txtCor, &form_.txtHeadSpeed, &form_.txtAttackAngle,
                                 &form_.txtBending, &form_.txtHeadWeight, &form_.txtLoftAngle})
        validators_.validate(*field);
}

void ClubChoice::txtType_Change() {
    const bool iron = leadingNumber(form_.txtType.text()) != 0;
    listClubs(form_.cmbClubNo, iron);
    form_.cmbClubNo.select(0);
    (iron ? form_.optIron : form_.optWood).select();
}

void takeClubNumber(ShotControls& form) {
    form.shot.ClubNo = roundTo<std::int16_t>(leadingNumber(form.cmbClubNo.text())).value_or(0);
}

} // namespace parabolt
