#include "sessions/form_desk.h"

#include "mainform/defaults.h"
#include "mainform/modes.h"
#include "results/result_table.h"
#include "shots/shot.h"

namespace parabolt {
namespace {

/// The text boxes whose text isn't told by the rest of a desk.
template <class Visit>
void everyField(const MainForm& form, Visit visit) {
    for (Control* control : form.controls.all())
        if (auto* field = dynamic_cast<TextBox*>(control);
            field != nullptr && field != &form.txtMode && field != &form.txtRun)
            visit(*field);
}

} // namespace

Desk takeDesk(const MainForm& form) {
    Desk desk;
    desk.shot = form.shot;
    desk.mode = operatingMode(form);
    desk.iron = form.optIron.selected();
    desk.club = form.cmbClubNo.listIndex();
    for (const BallOption& option : ballOptions())
        if ((form.*option.button).selected())
            desk.ball = option.BallType;
    desk.fillIn = form.chkBatch.checked();
    everyField(form, [&](const TextBox& field) { desk.fields[field.name()] = field.text(); });
    desk.scale = form.sRange;
    desk.clubs = form.clubs;
    const auto records = form.Runs.records().subspan(1);
    desk.runs.assign(records.begin(), records.end());
    for (int number = 1; number <= form.Runs.count(); ++number)
        desk.tags.push_back(form.Runs.tag(number));
    desk.base = form.Runs.base();
    desk.table = form.txtResult.content();
    desk.caret = form.txtResult.caret();
    desk.typingColour = form.txtResult.selColor();
    desk.reportCaption = form.reportCaption;
    desk.windows = form.windows;
    return desk;
}

void layDesk(MainForm& form, const Desk& desk) {
    form.shot = desk.shot;
    form.clubs = desk.clubs;
    modeButton(form, desk.mode).lay();
    form.txtMode.layText(std::to_string(desk.mode));
    enableForMode(form);
    (desk.iron ? form.optIron : form.optWood).lay();
    listClubs(form.cmbClubNo, desk.iron);
    form.cmbClubNo.lay(desk.club);
    for (const BallOption& option : ballOptions())
        if (option.BallType == desk.ball)
            (form.*option.button).lay();
    form.chkBatch.setChecked(desk.fillIn);
    everyField(form, [&](TextBox& field) {
        if (const auto text = desk.fields.find(field.name()); text != desk.fields.end())
            field.layText(text->second);
    });
    form.sRange = desk.scale;
    form.Runs.clear();
    for (std::size_t i = 0; i < desk.runs.size(); ++i) {
        form.Runs.add();
        form.Runs.newest() = desk.runs[i];
        form.Runs.setTag(form.Runs.count(), desk.tagOf(i));
    }
    form.Runs.setBase(desk.base);
    form.txtRun.layText(std::to_string(form.Runs.count()));
    form.txtResult.replace(desk.table, desk.caret);
    if (desk.typingColour)
        form.txtResult.setSelColor(*desk.typingColour);
    form.reportCaption = desk.reportCaption;
    form.reportCaptionLaid = true;
    form.windows = desk.windows;
    showClubsInCaption(form);
}

void rewriteTable(MainForm& form) {
    WriteResultHeader(form.txtResult);
    for (int number = 1; number <= form.Runs.count(); ++number)
        WriteResultRow(form.txtResult, form.Runs[number], form.Runs[number].ClubNo,
                       std::to_string(number));
}

} // namespace parabolt
