#include "clubs/clubs_file.h"
#include "clubs/grid_paste.h"
#include "files/file_access.h"
#include "tests/support/scripted_editor.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

namespace parabolt::support {
namespace {

TEST(ClubPaste, TakesRowsOfNumbersFromTheCurrentCellOn) {
    ScriptedEditor editor;
    Grid& grid = editor.form.GridIrons;
    grid.moveTo(2, 3);
    grid.Paste("Loft\t21.5\t24,25\t1e1\r\nCOR\t0.75\t0.76\t0.77\r\n");
    EXPECT_EQ(grid.text(2, 3) + grid.text(2, 4) + grid.text(2, 5), "21.524.2510");
    EXPECT_EQ(grid.text(3, 5), "0.77");
    EXPECT_EQ(editor.clubs, InitClubTables()) << "until it is applied";
    const std::string after = grid.text(2, 6);
    for (const char* refused : {"1\tx\t3", "", "Loft\tAngle", "1\n\n2", "1.5.2"})
        grid.Paste(refused);
    EXPECT_EQ(editor.messages.texts.size(), 5U);
    EXPECT_EQ(grid.text(2, 3), "21.5");
    EXPECT_EQ(grid.text(2, 6), after);
    grid.moveTo(kClubRows - 1, kIronCols - 1);
    EXPECT_TRUE(pasteCells(grid, "1\t2\n3\t4")) << "beyond the edges nothing";
    EXPECT_EQ(grid.text(), "1");
    // An open edit box gives way.
    grid.moveTo(1, 1);
    editor.frm.editor.EditClubCell(0);
    editor.form.txtIronEdit.setText("999");
    grid.Paste("230\t240");
    EXPECT_FALSE(editor.form.txtIronEdit.visible());
    EXPECT_EQ(grid.text(1, 1) + grid.text(1, 2), "230240");
}

TEST(ClubReopening, TakesTheSetOfTheLastFile) {
    const TemporaryFolder folder;
    ScriptedForm user;
    user.form.mnuReopenClubs.Click();
    EXPECT_EQ(user.messages.texts, Texts{"There is no last clubs file to reopen."});
    ClubTables clubs = InitClubTables();
    clubs.ClubsDescription = "Ann's";
    clubs.Irons[7].LoftAngle = 31.5F;
    ASSERT_TRUE(writeFileStart(folder.path("ann.clb"), *encodeClubs(clubs)));
    {
        ClubTables own = user.form.clubs;
        frmClubParams editor(
            own, {user.messages, user.files, user.preferences, user.desktop, "/", [] {}});
        user.files.choose(folder.path("ann.clb"));
        editor.form.mnuOpenClub.Click();
    }
    user.form.mnuReopenClubs.Click();
    EXPECT_EQ(user.form.clubs, clubs);
    EXPECT_EQ(user.form.caption, "Parabolt - Ann's");
    user.form.mnuGoBack.Click();
    EXPECT_EQ(user.form.clubs, InitClubTables());
    clubs.Irons[7].LoftAngle = 99; // beyond its bounds
    ASSERT_TRUE(writeFileStart(folder.path("ann.clb"), *encodeClubs(clubs)));
    user.form.mnuReopenClubs.Click();
    EXPECT_EQ(user.messages.texts.size(), 2U);
    std::filesystem::remove(folder.path("ann.clb"));
    user.form.mnuReopenClubs.Click();
    EXPECT_EQ(user.messages.texts.size(), 3U);
    EXPECT_EQ(user.form.clubs, InitClubTables());
    EXPECT_EQ(folder.entries(), 0) << "no file comes into being";
}

} // namespace
} // namespace parabolt::support
