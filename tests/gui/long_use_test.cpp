#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/main_window.h"
#include "qt/print_view_window.h"
#include "qt/printer.h"
#include "tests/support/scripted_form.h"

#include <QApplication>
#include <dlfcn.h>
#include <fstream>

namespace parabolt::support {
namespace {

/// Resident memory of the process in MB.
double residentMegabytes() {
    std::ifstream status("/proc/self/statm");
    double size = 0;
    double resident = 0;
    status >> size >> resident;
    return resident * 4096 / 1e6;
}

TEST(LongUse, TakesNoMoreMemory) {
    ScriptedForm user;
    MainWindow window(user.main);
    window.show();
    QtPrinter printer;
    const auto round = [&] {
        user.run(10);
        user.form.mnuStyLaunch.Click();
        user.messages.answers = {Answer::Yes};
        user.press(user.form.Command2);
        user.messages.texts.clear();
        frmClubParams editor(user.form.clubs, {user.messages, user.files, user.preferences,
                                               user.desktop, "/", [] {}});
        ClubEditorWindow(editor).show();
        PrintView view(user.form.printPlot(), user.form.txtResult, printer, user.messages);
        PrintViewWindow(view).show();
        QApplication::processEvents();
    };
    const char* setting = std::getenv("PARABOLT_ROUNDS");
    const long rounds = setting == nullptr ? 20 : std::atol(setting);
    for (long i = 0; i < rounds / 4 + 5; ++i)
        round();
    const double before = residentMegabytes();
    for (long i = 0; i < rounds; ++i)
        round();
    const double growth = residentMegabytes() - before;
    std::printf("%ld rounds of ten runs, a study and two windows: %.1f MB more\n", rounds, growth);
    // The address sanitizer keeps freed memory for a while, and counts leaks itself.
    if (dlsym(RTLD_DEFAULT, "__asan_init") == nullptr) {
        EXPECT_LT(growth, 4);
    }
}

} // namespace
} // namespace parabolt::support
