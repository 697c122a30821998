#include "clubs/clubs_file.h"
#include "clubs/clubs_text.h"

#include <algorithm>
#include <cstdlib>

// Whatever a clubs file holds, it is refused or fills the editor, and can be saved again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace parabolt;
    const auto clubs = decodeClubs({data, size});
    if (!clubs)
        return 0;
    static ClubForm form;
    showClubs(form, *clubs);
    composeClubsText(form, *clubs);
    const auto bytes = encodeClubs(*clubs);
    // Reading and writing again gives the same bytes, NaN payloads included.
    if (!bytes || bytes->size() > size || !std::equal(bytes->begin(), bytes->end(), data))
        std::abort();
    return 0;
}
