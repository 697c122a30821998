#include "clubs/clubs_file.h"
#include "qt/club_editor_window.h"
#include "qt/text.h"
#include "tests/support/scripted_editor.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <cmath>
#include <limits>

namespace parabolt::support {
namespace {

/// The editor in its window, with real keys.
struct ClubEditorTest : testing::Test, ScriptedEditor {
    ClubEditorTest() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    template <class Widget>
    Widget& part(const char* name) {
        return *window.findChild<Widget*>(name);
    }
    /// Types into whatever has the focus; these characters stand for keys: < > ^ v arrows, E Enter,
    /// K the keypad's Enter, X Escape, B backspace, F the key F2, T Tab.
    static void type(std::string_view text) {
        const std::string_view names = "<>^vEXBFTK";
        const Qt::Key keys[] = {Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,
                                Qt::Key_Return, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_F2,
                                Qt::Key_Tab,    Qt::Key_Enter};
        for (const char c : text)
            if (const std::size_t name = names.find(c); name < names.size())
                QTest::keyClick(QApplication::focusWidget(), keys[name]);
            else
                QTest::keyClick(QApplication::focusWidget(), c);
    }
    static QRect cell(QTableWidget& table, int row, int col) {
        return table.visualItemRect(table.item(row, col));
    }
    static std::string place(const Grid& grid) {
        return std::to_string(grid.row()) + "," + std::to_string(grid.col());
    }
    /// Opens or saves, and returns the messages.
    Texts use(MenuItem& menu, const std::string& fileName) {
        messages.texts.clear();
        dialog.choose(folder.path(fileName));
        menu.Click();
        return messages.texts;
    }

    ClubEditor& editor = frm.editor;
    Grid& irons = form.GridIrons;
    Grid& woods = form.GridWoods;
    TemporaryFolder folder;
    ClubEditorWindow window{frm};
};

TEST_F(ClubEditorTest, KeysInBothGrids) {
    const struct {
        const char* what;
        int row, col; // where it starts; the cell holds "18" at the start
        const char* keys;
        const char* cell;       // what the cell holds in the end
        const char* box;        // what the open edit box holds; "-" if it is hidden
        const char* ironsPlace; // the current cell in the end
        const char* woodsPlace;
    } table[] = {
        {"no number shows 0", 2, 2, "ab", "0", "ab", "2,2", "2,2"},
        {"the shortest text", 2, 2, "007.50xE", "7.5", "-", "2,3", "3,2"},
        {"too large for any number", 2, 2, "1e999E", "1.7976931348623157E+308", "-", "2,3", "3,2"},
        {"a lone Enter", 2, 2, "E", "18", "-", "2,3", "3,2"},
        {"the keypad's Enter", 2, 2, "5K", "5", "-", "2,3", "3,2"},
        {"backspace on the cell", 2, 2, "B", "1", "1", "2,2", "2,2"},
        {"backspace empties it", 2, 2, "BBB", "0", "", "2,2", "2,2"},
        {"backspace inside", 2, 2, "F5<B", "15", "15", "2,2", "2,2"},
        {"inside, the cell is wrong till the end", 2, 2, "F<9", "189", "198", "2,2", "2,2"},
        {"inside, then the arrow up", 2, 2, "F<9^", "198", "-", "1,2", "1,2"},
        {"the arrow down", 2, 2, "F9v", "189", "-", "3,2", "3,2"},
        {"Escape takes back", 2, 2, "99X", "18", "18", "2,2", "2,2"},
        {"the first row has none above", 1, 2, "F5^", "185", "185", "1,2", "1,2"},
        {"the last row has none below", 6, 2, "F5v", "185", "185", "6,2", "6,2"},
        {"left out of a row", 3, 1, "F<<<", "18", "-", "2,14", "2,8"},
        {"left of the first cell", 1, 1, "F<<<", "18", "18", "1,1", "1,1"},
        {"the end of a row", 2, 14, "5E", "5", "-", "3,1", ""},
        {"the end of a row, by arrow", 2, 8, "5>", "5", "-", "2,9", "3,1"},
        {"the last cell", 6, 14, "5E", "5", "-", "6,14", ""},
        {"the last cell", 6, 8, "5E", "5", "-", "6,9", "6,8"},
        {"the last cell, by arrow", 6, 14, "5>", "5", "5", "6,14", ""},
    };
    for (const auto& row : table)
        for (Grid* grid : {&irons, &woods}) {
            const std::string end = grid == &irons ? row.ironsPlace : row.woodsPlace;
            TextBox& box = grid == &irons ? form.txtIronEdit : form.txtWoodEdit;
            if (end.empty()) // not in this grid
                continue;
            SCOPED_TRACE(std::string(row.what) + " in " + grid->name());
            form.focus.give(form.txtComment);
            grid->moveTo(4, 4);
            grid->setText(row.row, row.col, "18");
            grid->moveTo(row.row, row.col);
            form.focus.give(*grid);
            type(row.keys);
            EXPECT_EQ(grid->text(row.row, row.col), row.cell);
            EXPECT_EQ(box.visible() ? box.text() : "-", row.box);
            EXPECT_EQ(place(*grid), end);
            EXPECT_EQ(QApplication::focusWidget()->objectName(),
                      toQt(box.visible() ? box.name() : grid->name()));
            EXPECT_EQ(grid->cellBackColor(grid->row(), grid->col()).has_value(), !box.visible());
        }
}

TEST_F(ClubEditorTest, ProceduresTellTheGridsApart) {
    for (const std::int16_t unknown : std::initializer_list<std::int16_t>{-1, 2})
        editor.EditClubCell(unknown);
    EXPECT_FALSE(form.txtIronEdit.visible() || form.txtWoodEdit.visible());
    editor.EditClubCell(1);
    EXPECT_TRUE(form.txtWoodEdit.visible() && !form.txtIronEdit.visible());
    editor.NextClubCell(0);
    editor.NextClubCell(1);
    EXPECT_EQ(place(irons) + " " + place(woods), "1,2 2,1");
}

TEST_F(ClubEditorTest, ASessionWithMouseAndKeys) {
    EXPECT_LE(window.minimumSizeHint().width(), 1024);
    auto& table = part<QTableWidget>("GridIrons");
    auto& edit = part<QLineEdit>("txtIronEdit");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(table, 1, 4).center());
    type("28");
    EXPECT_EQ(edit.geometry(), cell(table, 1, 4));
    type("E");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(table, 1, 8).center());
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell(table, 1, 8).center());
    EXPECT_TRUE(edit.isVisible() && edit.geometry() == cell(table, 1, 8));
    EXPECT_EQ(edit.text().toStdString() + place(irons), irons.text(2, 9) + "2,9");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(table, 1, 5).center());
    EXPECT_EQ(table.item(1, 5)->background().color(), QColor(0xC0, 0xFF, 0xC0));
    type("FBB");
    QApplication::clipboard()->setText("32");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    auto& woods2 = part<QTableWidget>("GridWoods");
    QTest::mouseClick(woods2.viewport(), Qt::LeftButton, {}, cell(woods2, 0, 0).center());
    EXPECT_TRUE(woods2.hasFocus() && edit.isHidden());
    type("F<7T"); // inside the text
    EXPECT_EQ(woods2.item(0, 0)->text(), "1978");
    EXPECT_EQ(form.txtWoodEdit.text(), "1978");
    woods.setText(1, 1, "198");
    form.txtWoodEdit.setText("");
    QLineEdit& description = part<QLineEdit>("txtDescription");
    description.setText(QString(40, 'd'));
    description.home(false);
    QTest::keyClicks(&description, "x"); // there is no room, and nothing gives way to it
    EXPECT_EQ(description.text(), QString(40, 'd'));
    part<QPlainTextEdit>("txtComment").setFocus();
    type("dryEfastT");
    QTest::mouseClick(&part<QPushButton>("Command3"), Qt::LeftButton);
    EXPECT_EQ(messages.texts, Texts());
    EXPECT_EQ(clubs.Irons[5].LoftAngle, 28);
    EXPECT_EQ(clubs.Irons[6].LoftAngle, 32);
    EXPECT_EQ(clubs.Comment, "dry\r\nfast");
    EXPECT_EQ(mainCaption, std::string(40, 'd'));
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(desktop.opened, Texts{"help"});
    window.close(); // nothing to ask
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ClubEditorTest, AsksBeforeEditsAreLost) {
    // What is edited, the answers, whether the window closes then, and how many questions come up.
    const std::tuple<std::function<void()>, std::deque<Answer>, bool, std::size_t> table[] = {
        {[] {}, {}, true, 0},
        {[this] { woods.setText(3, 1, "0.830"); }, {}, true, 0},
        {[this] { form.txtIronsDes.setText("default Irons Parameter"); }, {Answer::No}, true, 1},
        {[this] { form.txtComment.setText(" "); }, {Answer::No}, true, 1},
        {[this] { irons.setText(1, 2, "7"); }, {Answer::Yes}, false, 2},
        {[this] { irons.setText(1, 2, "307"); }, {Answer::Yes}, true, 1},
    };
    clubs.Irons[4].LoftAngle = 23.456789F; // more digits than its cell shows are no change
    for (const auto& [edit, answers, closes, questions] : table) {
        showClubs(form, clubs);
        messages.texts.clear();
        messages.answers = answers;
        edit();
        window.show();
        if (questions == 2)
            window.close();
        else
            form.Command1.Click();
        EXPECT_EQ(!window.isVisible(), closes);
        ASSERT_EQ(messages.texts.size(), questions);
        if (questions > 0) {
            EXPECT_EQ(messages.texts[0], "Do you want to apply changes?");
        }
    }
    window.show();
    form.mnuExit.Click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(clubs.Irons[2].HeadWeight, 307);
    for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Yes}) {
        irons.setText(1, 1, "300");
        messages.answers = {answer};
        form.Command2.Click();
        EXPECT_EQ(irons.text(1, 1), answer == Answer::Yes ? "225" : "300");
    }
    EXPECT_EQ(messages.texts.back(), "Abort edited and restore previous datas?");
}

TEST_F(ClubEditorTest, ASavedSetComesBackIntoTheGridsOnly) {
    putContent(folder.path("my.CLB"), std::string(800, 'x'));
    irons.setText(2, 13, "61.5");
    woods.setText(2, 8, "25");
    woods.setText(4, 7, "-1.5");
    form.txtDescription.setText("Käthe €5");
    mainCaption.clear();
    EXPECT_EQ(use(form.mnuSave, "my.CLB"), Texts());
    EXPECT_EQ(mainCaption, "Käthe €5");
    EXPECT_EQ(clubs.Woods[10].LoftAngle, 25); // each cell has its own field
    EXPECT_EQ(clubs.Woods[9].AttackAngle, -1.5F);
    EXPECT_EQ(clubs.Irons[13].LoftAngle, 61.5F);
    EXPECT_EQ(form.caption, "Clubs Parameter - my.CLB");
    EXPECT_EQ(use(form.mnuSave, "my.TXT"), Texts());
    EXPECT_TRUE(contentOf(dialog.fileName)
                    .starts_with("Clubs Description: K\xE4the \x80"
                                 "5\r\n"));
    EXPECT_EQ(use(form.mnuSave, "my.CLB"), Texts());
    const std::string content = contentOf(dialog.fileName);
    EXPECT_EQ(content.substr(701 - 15), std::string(114, 'x'));
    EXPECT_EQ(content.substr(654, 4), std::string("\0\0\xC0\xBF", 4)); // the attack of wood 9
    clubs = InitClubTables();
    showClubs(form, clubs);
    EXPECT_EQ(use(form.mnuOpenClub, "my.CLB"), Texts());
    EXPECT_EQ(irons.text(2, 13) + " " + woods.text(2, 8), "61.5 25");
    EXPECT_EQ(form.txtDescription.text(), "Käthe €5");
    EXPECT_EQ(clubs.Woods[10].LoftAngle, 24);
    // What is being typed is done with before the file comes in.
    irons.moveTo(2, 13);
    form.focus.give(irons);
    type("7");
    EXPECT_EQ(use(form.mnuOpenClub, "my.CLB"), Texts());
    irons.moveTo(1, 1);
    EXPECT_EQ(irons.text(2, 13), "61.5");
    for (const Grid* grid : {&irons, &woods}) { // as the table shows it
        const auto& table = part<QTableWidget>(grid->name().c_str());
        for (int col = 1; col < grid->cols(); ++col) {
            EXPECT_EQ(table.horizontalHeaderItem(col - 1)->text(), toQt(grid->text(0, col)));
            for (int row = 1; row < grid->rows(); ++row)
                EXPECT_EQ(table.item(row - 1, col - 1)->text(), toQt(grid->text(row, col)));
        }
        for (int row = 1; row < grid->rows(); ++row)
            EXPECT_EQ(table.verticalHeaderItem(row - 1)->text(), toQt(grid->text(row, 0)));
    }
    EXPECT_EQ(preferences.lastPath(), folder.path());
}

TEST_F(ClubEditorTest, FilesThatCannotBeUsed) {
    putContent(folder.path("short.clb"), std::string(600, '\0'));
    EXPECT_EQ(use(form.mnuOpenClub, "short.clb"), Texts{"File mismatch!"});
    EXPECT_EQ(use(form.mnuOpenClub, std::string(300, 'n') + ".clb"), Texts{"File not found!"});
    EXPECT_TRUE(form.caption.starts_with("Clubs Parameter - nn"));
    EXPECT_EQ(irons.text(1, 1), "225");
    form.txtComment.setText(std::string(70000, 'c'));
    EXPECT_EQ(use(form.mnuSave, "long.clb").size(), 1U);
    irons.setText(1, 1, "1");
    EXPECT_EQ(use(form.mnuSave, "bad.clb"),
              Texts{"Then head weight must between 180 and 320 grams."});
    EXPECT_EQ(folder.entries(), 1);
}

TEST_F(ClubEditorTest, WhatIsNoNumberInAFileIsRefused) {
    constexpr float kInf = std::numeric_limits<float>::infinity();
    for (const float broken : {std::nanf(""), -std::nanf(""), kInf, -kInf}) {
        ClubTables set = InitClubTables();
        set.Woods[2].Bending = broken; // where 0 would do
        const Bytes bytes = *encodeClubs(set);
        putContent(folder.path("broken.clb"), {bytes.begin(), bytes.end()});
        EXPECT_EQ(use(form.mnuOpenClub, "broken.clb"), Texts());
        EXPECT_EQ(use(form.mnuSave, "broken.clb"),
                  Texts{"Then bend angle must between -10 and 10 degrees."});
    }
}

} // namespace
} // namespace parabolt::support
