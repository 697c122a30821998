#include "mainform/main_form.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <initializer_list>
#include <utility>

namespace parabolt {

MainForm::MainForm() {
    for (Control* hidden :
         std::initializer_list<Control*>{&txtMode, &txtType, &Picture3, &Picture4})
        hidden->setVisible(false);
    for (Control* disabled :
         std::initializer_list<Control*>{&txtMode, &txtType, &txtRun, &chkBatch})
        disabled->setEnabled(false);
    listClubs(cmbClubNo, false);
}

void listClubs(DropDownList& cmbClubNo, bool iron) {
    std::vector<std::string> numbers;
    for (const std::int16_t number : playableClubs(iron))
        numbers.push_back(std::to_string(number));
    cmbClubNo.setItems(std::move(numbers));
}

int runNumber(const RunControls& form) {
    return roundTo<int>(leadingNumber(form.txtRun.text())).value_or(0);
}

std::int16_t operatingMode(const ShotControls& form) {
    return roundTo<std::int16_t>(leadingNumber(form.txtMode.text())).value_or(0);
}

void showClubsInCaption(MainForm& form) {
    form.caption = std::string(kApplicationTitle) + " - " + form.clubs.ClubsDescription;
    if (form.onCaption)
        form.onCaption();
}

} // namespace parabolt
