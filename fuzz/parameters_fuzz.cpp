#include "fuzz/silent_messages.h"
#include "mainform/defaults.h"
#include "mainform/form_shot.h"
#include "mainform/modes.h"
#include "mainform/parameter_handlers.h"
#include "shots/fly.h"

#include <cstdlib>

// Whatever a parameters file holds, in every mode: it is laid into the form or stops half-way, and
// the form goes on working.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace parabolt;
    const ParameterRecord record = decodeParameters({data, size});
    const Bytes bytes = encodeParameters(record);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (bytes[i] != (i < size ? data[i] : 0))
            std::abort();

    MainForm form;
    form.clubs = InitClubTables();
    SilentMessages messages;
    PlotPanel plot(form, form, form.Frame7, messages);
    Validators validators(form, plot, messages);
    ClubChoice clubChoice(form, form.clubs, validators);
    Modes modes(form, clubChoice);
    Defaults defaults(form, messages);
    defaults.SetSwingDefaults();
    defaults.SetEnvironmentDefaults();
    defaults.SetClubDefaults();
    for (const char* mode : {"2", "1", "0"}) {
        form.txtMode.setText(mode);
        const bool known{applyParameters(form, record)};
        if (known && form.cmbClubNo.text() != std::to_string(record.ClubNo))
            std::abort();
        collectParameters(form);
        // The shot flies or doesn't: it must not crash.
        static_cast<void>(prepare(takeShot(form, form.clubs)));
        for (const FieldRule& rule : fieldRules())
            validators.validate(form.*rule.field);
    }
    return 0;
}
