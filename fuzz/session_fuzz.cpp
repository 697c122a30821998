#include "fuzz/silent_messages.h"
#include "mainform/plot_panel.h"
#include "mainform/validators.h"
#include "sessions/form_desk.h"
#include "sessions/session_codec.h"
#include "sets/data_sets.h"
#include "tables/table_text.h"

#include <cstdlib>

// Whatever a session file holds: it is refused, or it can be laid on the form, which shows it and
// has the same desk again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace parabolt;
    const auto session = decodeSession({reinterpret_cast<const char*>(data), size});
    if (!session)
        return 0;
    MainForm form;
    SilentMessages messages;
    PlotPanel plot(form, form, form.Frame7, messages);
    layDesk(form, session->desk);
    plot.Form_Resize({20000, 12000, 300}, false);
    plot.PreparePrintPlots();
    static_cast<void>(plot.inWords());
    const DataSets sets(form.Runs);
    static_cast<void>(tableAsCsv(sets, completeTable(sets)));
    const std::string once = encodeSession({takeDesk(form), session->time});
    const auto again = decodeSession(once);
    if (!again)
        std::abort();
    layDesk(form, again->desk);
    rewriteTable(form);
    layDesk(form, again->desk);
    if (encodeSession({takeDesk(form), again->time}) != once)
        std::abort();
    return 0;
}
