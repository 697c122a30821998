#pragma once

#include "mainform/main_form.h"
#include "sessions/desk.h"

namespace parabolt {

/// The desk as it stands on the form.
Desk takeDesk(const MainForm& form);

/// Lays a desk on the form. No handler runs, and no validator judges: all that they had made of it
/// is on the desk. The plot is left to the caller.
void layDesk(MainForm& form, const Desk& desk);

/// Writes the table anew: the headings, and the rows of all data sets in order.
void rewriteTable(MainForm& form);

} // namespace parabolt
