#include "clubs/frm_club_params.h"
#include "qt/club_editor_window.h"
#include "qt/main_window.h"
#include "qt/print_view_window.h"
#include "qt/printer.h"
#include "tests/support/scripted_form.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace parabolt::support {
namespace {

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
        frmPrintView view(user.form.printPlot(), user.form.txtResult, printer, user.messages);
        PrintViewWindow(view).show();
        QApplication::processEvents();
    };
    const char* setting = std::getenv("PARABOLT_ROUNDS");
    const long rounds = setting == nullptr ? 20 : std::atol(setting);
    for (long i = 0; i < rounds / 4 + 5; ++i)
        round();
    const std::size_t before = ::mallinfo2().uordblks;
    for (long i = 0; i < rounds; ++i)
        round();
    // The address sanitizer has a heap of its own, where this reads 0; it counts leaks itself.
    const double growth = static_cast<double>(::mallinfo2().uordblks) - static_cast<double>(before);
    std::printf("%ld rounds of ten runs, a study and two windows: %.0f bytes more\n", rounds,
                growth);
    EXPECT_LT(growth, 4e5);
}

} // namespace
} // namespace parabolt::support
