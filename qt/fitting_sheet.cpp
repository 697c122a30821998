#include "qt/fitting_sheet.h"

#include "qt/sheet_dialog.h"

namespace parabolt {

void showSheet(Fitting& fitting, SheetContent content, const std::string& today, Printer& printer,
               MessageBoxes& messages, QWidget& window) {
    const MeasuredSession& session = fitting.session();
    const SheetFields before{session.player, session.fitter,
                             session.date.empty() ? today : session.date, session.note};
    content.fields = before;
    SheetDialog dialog(std::move(content), printer, messages, &window);
    dialog.exec();
    window.activateWindow();
    if (const SheetFields& fields = dialog.fields(); !(fields == before))
        fitting.change([&fields](MeasuredSession& changed) {
            changed.player = fields.player;
            changed.fitter = fields.fitter;
            changed.date = fields.date;
            changed.note = fields.note;
        });
}

} // namespace parabolt
