#include "qt/file_dialog.h"
#include "qt/settings_store.h"
#include "qt/text.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <sys/stat.h>

namespace parabolt::support {
namespace {

struct FileDialogTest : testing::Test {
    FileDialogTest() {
        dialog.filter = "Clubs(*.clb)|*.clb|Text|*.txt";
        dialog.initialFolder = folder.path();
        QObject::connect(&user, &QTimer::timeout, [this] { look(); });
        user.start(20);
    }
    /// Acts as the user: once at each file dialog, and at its messages: whether to overwrite, or
    /// that another name is needed.
    void look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* question = qobject_cast<QMessageBox*>(modal)) {
            ++questions;
            if (auto* ok = question->button(QMessageBox::Ok)) {
                act = typing("short.txt");
                ok->click();
                return;
            }
            question->button(overwrite ? QMessageBox::Yes : QMessageBox::No)->click();
        } else if (auto* shown = qobject_cast<QFileDialog*>(modal)) {
            if (act)
                QTimer::singleShot(0, shown, [this, shown] { std::exchange(act, {})(*shown); });
            else if (!overwrite) // back in the dialog
                shown->reject();
        }
    }
    void save(const std::string& name) {
        act = typing(name);
        questions = 0;
        dialog.showSave();
    }
    static std::function<void(QFileDialog&)> typing(const std::string& name) {
        return [name](QFileDialog& shown) {
            shown.findChild<QLineEdit*>("fileNameEdit")->setText(toQt(name));
            static_cast<QDialog&>(shown).accept();
        };
    }

    TemporaryFolder folder;
    QtFileDialog dialog;
    QTimer user;
    std::function<void(QFileDialog&)> act;
    bool overwrite = false;
    int questions = 0;
};

TEST_F(FileDialogTest, TakesANameAsTypedAndAsksOnceBeforeOverwriting) {
    for (const std::string name : {"bare", "sch\u00F6n.TXT", "other.opt"}) {
        save(name);
        EXPECT_EQ(dialog.fileName, folder.path(name));
        EXPECT_EQ(dialog.pickedName, name);
        EXPECT_EQ(dialog.finalFolder, folder.path());
        EXPECT_EQ(questions, 0);
    }
    dialog.suggestedName = "notes.clb";
    for (const auto& [typed, taken] :
         {std::pair("work 1.2", "work 1.2.clb"), {"bare", "bare.clb"}, {"mine.Txt", "mine.Txt"}}) {
        save(typed);
        EXPECT_EQ(dialog.pickedName, taken);
    }
    putContent(folder.path("old.clb"), "old");
    for (const bool yes : {false, true}) {
        overwrite = yes;
        save("old.clb");
        EXPECT_EQ(questions, 1);
        EXPECT_EQ(dialog.fileName, yes ? folder.path("old.clb") : "");
    }
}

TEST_F(FileDialogTest, OpensWhatExistsAndTellsTheFolderItEndedIn) {
    std::filesystem::create_directory(folder.path("deeper"));
    putContent(folder.path("deeper/set.clb"), "x");
    act = typing(folder.path("deeper/set.clb"));
    dialog.showOpen();
    EXPECT_EQ(dialog.pickedName, "set.clb");
    act = [&](QFileDialog& shown) {
        EXPECT_EQ(shown.nameFilters(), QStringList({"Clubs(*.clb)", "Text (*.txt)"}));
        EXPECT_EQ(fromQt(shown.directory().absolutePath()), folder.path());
        shown.setDirectory(toQt(folder.path("deeper")));
        shown.reject();
    };
    dialog.showOpen();
    EXPECT_EQ(dialog.fileName + dialog.pickedName, "");
    EXPECT_EQ(dialog.finalFolder, folder.path("deeper"));
    dialog.initialFolder = folder.path("gone");
    act = [](QFileDialog& shown) { shown.reject(); };
    dialog.showOpen();
    EXPECT_EQ(dialog.finalFolder, fromQt(QDir::homePath()));
}

TEST_F(FileDialogTest, SaysThatANameIsTooLongAndStays) {
    for (const std::string letter : {"n", "\u00F6"}) {
        std::string name = ".txt";
        for (int i = 0; i < 252 / std::ssize(letter); ++i)
            name.insert(0, letter);
        save(name); // closes the message, then types a name that goes
        EXPECT_EQ(questions, 1) << letter;
        EXPECT_EQ(dialog.pickedName, "short.txt");
    }
}

TEST(SettingsStore, GivesTextsBackWholeOrSaysWhyNot) {
    ScriptedMessageBoxes messages;
    SettingsStore store(messages);
    std::string application = "SettingsStoreTest";
    std::string file = fromQt(
        QSettings(QSettings::NativeFormat, QSettings::UserScope, toQt(application)).fileName());
    const auto text = [&] { // or why there is none
        const auto value = GetRegString(store, application, "startup", "LastPath", "default");
        return value ? *value : value.why().description;
    };
    const auto save = [&](std::string_view value) {
        const auto saved = SaveRegString(store, application, "Startup", "LastPath", value);
        return saved ? "" : saved.why().description;
    };
    EXPECT_EQ(text(), "default");
    EXPECT_FALSE(std::filesystem::exists(file)) << "reading must not create it";
    for (const char* value : {"/home/j\u00F6rg/\u0141\u00F3d\u017A", "", "a, b;c=\"d\"\\",
                              "@Invalid()", " blanks ", "%41[x]\n/#", "/home"}) {
        EXPECT_EQ(save(value), "");
        EXPECT_EQ(text(), value);
    }
    {
        const FailingDisk disk(10);
        EXPECT_EQ(save(std::string(50, 'x')), "Could not set key value");
    }
    EXPECT_NE(contentOf(file).find("/home"), std::string::npos);
    application += "2"; // what Qt knows of a file outlives it
    std::filesystem::create_directory(file.insert(file.rfind('.'), "2"));
    EXPECT_TRUE(messages.texts.empty());
    // What can't be used is set aside, and is told once: a folder, a pipe, a broken file.
    EXPECT_EQ(text(), "default");
    EXPECT_TRUE(std::filesystem::is_directory(file + ".unreadable"));
    EXPECT_EQ(save("/home"), "");
    EXPECT_EQ(text(), "/home");
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0666), 0);
    EXPECT_EQ(text(), "default");
    putContent(file, "[startup\nno line of it");
    EXPECT_EQ(text(), "default");
    EXPECT_EQ(contentOf(file + ".unreadable3"), "[startup\nno line of it");
    EXPECT_EQ(save("/home"), "");
    EXPECT_EQ(text(), "/home");
    // What can't even be set aside, as its new name would be too long, leaves the session.
    application = std::string(245, 'x');
    const auto stuck = std::filesystem::path(file).replace_filename(application + ".conf");
    std::filesystem::create_directory(stuck);
    EXPECT_EQ(text(), "default");
    EXPECT_EQ(save("/home"), "");
    EXPECT_EQ(text(), "/home");
    EXPECT_TRUE(std::filesystem::is_directory(stuck));
    ASSERT_EQ(messages.texts.size(), 1U);
    EXPECT_NE(messages.texts[0].find(".unreadable"), std::string::npos);
}

} // namespace
} // namespace parabolt::support
