#pragma once

#include "fitting/fitting.h"
#include "printing/printer.h"
#include "printing/sheet.h"

class QWidget;

namespace parabolt {

class MessageBoxes;

/// Shows a page with the player, fitter, date and note of the session, and prints it if the user
/// wants; `today` stands where there is no date. What the user types becomes the session's.
void showSheet(Fitting& fitting, SheetContent content, const std::string& today, Printer& printer,
               MessageBoxes& messages, QWidget& window);

} // namespace parabolt
