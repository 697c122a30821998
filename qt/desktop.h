#pragma once

#include "controls/services.h"
#include "qt/help_window.h"

#include <QPointer>

namespace parabolt {

/// The desktop around the program. The manual opens in a window of our own, but for a system that
/// has a viewer for compiled manuals and a `Parabolt.chm` beside the program.
class QtDesktop : public Desktop {
public:
    ~QtDesktop() override;

    void openHelp() override;
    void openHelpPage(std::string_view file) override;
    void openAddress(std::string_view address) override;

private:
    QPointer<HelpWindow> help_; ///< made when asked for; goes with the dialog that it belongs to
};

} // namespace parabolt
