#pragma once

#include "clubs/club_form.h"

#include <string>

namespace parabolt {

/// The content of a text file that shows the club set for reading, in the code page of text files:
/// the texts, and the cells as the grids show them.
std::string composeClubsText(const ClubForm& form, const ClubTables& clubs);

} // namespace parabolt
