#pragma once

#include "mainform/main_form.h"
#include "shots/shot.h"

#include <optional>

namespace parabolt {

// The way from the form to a shot and back: what a press of Run takes from the form, and the fields
// that show a group of values. Fields are written in the order in which the form has them.

/// The shot that the form stands for: the values that its fields have passed on, its mode and ball,
/// and the club of the set where the mode asks for one.
Shot takeShot(const ShotControls& form, const ClubTables& clubs);

/// The same without what is still being typed: a measured launch angle counts from its acceptance.
Shot acceptedShot(const ShotControls& form, const ClubTables& clubs);

/// The club of the set that the mode, the club type and `ClubNo` choose; none in the modes that
/// take no club from the set.
std::optional<ClubRecord> clubOfSet(const Shot& shot, const ClubTables& clubs);

/// Shows what the impact model has read and computed; nothing in the mode Launch.
void showLaunch(ShotControls& form, const Shot& shot);

void showSwing(ShotControls& form);
void showClub(ShotControls& form);
void showEnvironment(ShotControls& form);

} // namespace parabolt
