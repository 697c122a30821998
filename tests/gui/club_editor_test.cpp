#include "qt/club_editor_window.h"
#include "tests/support/scripted_services.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace parabolt::support {
namespace {

struct ClubEditorShown : testing::Test {
    ClubEditorShown() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    template <class Widget>
    Widget& part(const char* name) {
        return *window.findChild<Widget*>(name);
    }
    /// Sends keys to whatever has the focus, and returns what has it then.
    QString key(Qt::Key code) {
        QTest::keyClick(QApplication::focusWidget(), code);
        return QApplication::focusWidget()->objectName();
    }
    void type(const char* text) {
        for (; *text != '\0'; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    }
    void clickCell(QTableWidget& table, int row, int col) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualItemRect(table.item(row, col)).center());
    }
    void click(const char* button) {
        QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
    }

    ClubTables clubs = InitClubTables();
    ScriptedMessageBoxes messages;
    ScriptedFileDialog dialog;
    MemoryPreferences preferences;
    RecordingDesktop desktop;
    frmClubParams frm{clubs, {messages, dialog, preferences, desktop, "/", [] {}}};
    ClubEditorWindow window{frm};
    QTableWidget& irons = part<QTableWidget>("GridIrons");
    QTableWidget& woods = part<QTableWidget>("GridWoods");
    QLineEdit& ironEdit = part<QLineEdit>("txtIronEdit");
};

TEST_F(ClubEditorShown, ASessionOfTyping) {
    EXPECT_LE(window.minimumSizeHint().width(), 1024);
    for (const Control* control : frm.form.controls.all())
        EXPECT_TRUE(window.findChild<QObject*>(toQt(control->name()))) << control->name();
    clickCell(irons, 1, 4);
    type("28");
    EXPECT_TRUE(ironEdit.hasFocus());
    EXPECT_EQ(ironEdit.geometry(), irons.visualItemRect(irons.item(1, 4)));
    EXPECT_EQ(key(Qt::Key_Return), "GridIrons");
    EXPECT_EQ(irons.currentColumn(), 5);
    EXPECT_EQ(irons.item(1, 5)->background().color(), QColor(0xC0, 0xFF, 0xC0));
    key(Qt::Key_F2);
    key(Qt::Key_Left);
    type("4"); // 31 becomes 341
    key(Qt::Key_Up);
    EXPECT_EQ(irons.item(1, 5)->text(), "341");
    key(Qt::Key_Down);
    type("7");
    key(Qt::Key_Escape);
    EXPECT_EQ(ironEdit.text(), "341");
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Backspace);
    QApplication::clipboard()->setText("32");
    QTest::keyClick(&ironEdit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(key(Qt::Key_Tab), "txtWoodsDes");
    clickCell(woods, 0, 0);
    EXPECT_TRUE(woods.hasFocus() && ironEdit.isHidden());
    part<QPlainTextEdit>("txtComment").setFocus();
    type("dry");
    key(Qt::Key_Return);
    type("fast");
    click("Command3");
    EXPECT_TRUE(messages.texts.empty());
    EXPECT_EQ(clubs.Irons[5].LoftAngle, 28);
    EXPECT_EQ(clubs.Irons[6].LoftAngle, 32);
    EXPECT_EQ(clubs.Comment, "dry\r\nfast");
    EXPECT_EQ(key(Qt::Key_F1), "txtDescription");
    EXPECT_EQ(desktop.opened, Texts{"help"});
    window.close(); // nothing to ask
    EXPECT_FALSE(window.isVisible());
}

} // namespace
} // namespace parabolt::support
