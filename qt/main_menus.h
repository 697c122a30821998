#pragma once

#include "mainform/main_form.h"

class QMenuBar;

namespace parabolt {

/// Puts the menus of the main form into a menu bar: an action for each item, under its name and
/// with its keys. What an item does, its binding brings about.
void buildMainMenus(QMenuBar& bar, const MainForm& form);

} // namespace parabolt
