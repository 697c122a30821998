#include "files/code_page.h"
#include "files/dialog_routine.h"
#include "files/file_access.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

#include <cerrno>
#include <clocale>
#include <libintl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {
/// Comes before each wait for the disk, which fails where it returns false.
std::function<bool(int descriptor)> beforeSync;
} // namespace

extern "C" int fsync(int descriptor) {
    if (beforeSync && !beforeSync(descriptor)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

namespace parabolt::support {
namespace {

namespace fs = std::filesystem;
using enum DialogPurpose;

TEST(CodePage, WritesOneByteACharacter) {
    const std::pair<const char*, const char*> table[] = {
        {"7\u00B0 \u00FC", "7\xB0 \xFC"},
        {"\u20AC\u2013\u0178", "\x80\x96\x9F"},
        {"\u0141\u03A9\u4E2D\U0001F3CC", "????"}, // one mark for each that the page lacks
        {"\xC0\xAF", "??"},                       // a slash in two bytes is malformed
        {"\xED\xA0\x80", "???"},                  // half a surrogate pair
        {"\xF4\x90\x80\x80", "????"},             // behind the last character of all
        {"ok\xE2\x82", "ok??"},                   // cut off inside a character
        {"\xE2\x82\x41\xFF\x80", "??A??"},        // broken off by another character
    };
    for (const auto& [utf8, bytes] : table)
        EXPECT_EQ(toCodePage(utf8), bytes) << utf8;
}

struct FileAccess : testing::Test {
    const TemporaryFolder folder;
    const std::string name = folder.path("h\u00F6le in one.opt");

    static Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }
    static std::string readStart(const std::string& name, std::size_t most) {
        const auto data = readFileStart(name, most);
        return data ? std::string(data->begin(), data->end()) : "failed";
    }
};

TEST_F(FileAccess, ReadsAndWritesTheStartOrTheWhole) {
    EXPECT_EQ(readStart(name, 10), "");
    EXPECT_TRUE(fs::exists(name));
    putContent(name, "0123456789");
    EXPECT_EQ(readStart(name, 4), "0123");
    EXPECT_EQ(readStart(name, 1000), "0123456789");
    EXPECT_TRUE(writeFileStart(name, bytesOf("abc")));
    EXPECT_EQ(contentOf(name), "abc3456789");
    EXPECT_TRUE(replaceFile(name, "short"));
    EXPECT_EQ(contentOf(name), "short");
    EXPECT_EQ(folder.entries(), 1) << "a temporary file is left";
}

TEST_F(FileAccess, AFullDiskLeavesTheOldFileWhole) {
    for (std::size_t room = 0; room < 20; ++room) {
        putContent(name, "0123456789");
        std::vector<Outcome<void, Failure>> writes;
        {
            const FailingDisk disk(room);
            writes = {writeFileStart(name, Bytes(20, 'a')), replaceFile(name, std::string(20, 'b')),
                      replaceFile(folder.path("fresh"), std::string(20, 'c'))};
        }
        for (const auto& write : writes)
            EXPECT_TRUE(!write && !write.why().description.empty()) << room;
        EXPECT_EQ(contentOf(name), "0123456789") << room;
        EXPECT_EQ(folder.entries(), 1) << "half a file is left at " << room;
    }
}

TEST_F(FileAccess, SaysWhyAFileCannotBeUsed) {
    const std::pair<std::string, bool> table[] = {
        {folder.path(), false}, // a folder in the file's place
        {folder.path("gone/file"), false},
        {folder.path(std::string(5000, 'x')), true},
        {folder.path("a") + std::string(1, '\0') + "b", true},
        {"", false},
    };
    for (const auto& [bad, badName] : table) {
        const auto read = readFileStart(bad, 10);
        const auto written = writeFileStart(bad, bytesOf("a"));
        const auto replaced = replaceFile(bad, "a");
        ASSERT_FALSE(read || written || replaced) << bad;
        for (const Failure& failure : {read.why(), written.why(), replaced.why()}) {
            EXPECT_EQ(failure.number == kBadFileName, badName) << bad;
            EXPECT_FALSE(failure.description.empty());
        }
    }
    EXPECT_EQ(folder.entries(), 0);
}

TEST_F(FileAccess, OnlyOrdinaryFilesAreUsedAndNothingIsWaitedFor) {
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0666), 0);
    fs::create_symlink("pipe", folder.path("link"));
    for (const std::string& bad : {folder.path("pipe"), folder.path("link"),
                                   std::string("/dev/full"), std::string("/dev/null")}) {
        const auto read = readFileStart(bad, 10);
        const auto written = writeFileStart(bad, bytesOf("a"));
        const auto replaced = replaceFile(bad, "a");
        ASSERT_FALSE(read || written || replaced) << bad;
        for (const Failure& failure : {read.why(), written.why(), replaced.why()})
            EXPECT_NE(failure.description.find("not an ordinary file"), std::string::npos);
    }
    EXPECT_TRUE(fs::is_fifo(folder.path("pipe")) && fs::is_character_file("/dev/full"));
    for (const bool there : {false, true}) {
        fs::create_symlink("target", folder.path("to file" + std::to_string(there)));
        EXPECT_TRUE(replaceFile(folder.path("to file" + std::to_string(there)), "text"));
        EXPECT_EQ(contentOf(folder.path("target")), "text");
        EXPECT_TRUE(fs::is_symlink(folder.path("to file" + std::to_string(there))));
    }
}

TEST_F(FileAccess, TheNewFileStandsOnTheDiskBeforeItTakesThePlaceOfTheOld) {
    putContent(name, "old");
    Texts synced;
    beforeSync = [&](int descriptor) {
        struct ::stat of {};
        ::fstat(descriptor, &of);
        synced.push_back((S_ISDIR(of.st_mode) ? "folder " : "file ") + contentOf(name));
        return true;
    };
    EXPECT_TRUE(replaceFile(name, "new"));
    EXPECT_EQ(synced, (Texts{"file old", "folder new"}));
    beforeSync = [](int) { return false; };
    EXPECT_EQ(replaceFile(name, "newer").why().description, "Input/output error");
    EXPECT_EQ(contentOf(name), "new");
    beforeSync = {};
    EXPECT_EQ(folder.entries(), 1);
}

TEST_F(FileAccess, AWriteRemovesWhatAKilledOneLeftButNotALivingOnes) {
    const ::pid_t child = ::fork();
    if (child == 0) {
        beforeSync = [](int) { return ::raise(SIGKILL) == 0; };
        std::ignore = replaceFile(name, "killed");
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(folder.entries(), 1);
    putContent(folder.path(".parabolt-notes.tmp"), "the user's own");
    beforeSync = [this](int) { // in the middle of the write below
        beforeSync = {};
        return bool(writeFileStart(folder.path("other"), bytesOf("other")));
    };
    EXPECT_TRUE(replaceFile(name, "whole"));
    EXPECT_EQ(contentOf(name) + contentOf(folder.path("other")), "wholeother");
    EXPECT_EQ(folder.entries(), 3);
}

TEST_F(FileAccess, TheTailOfALargeFileIsNotCopied) {
    constexpr std::uintmax_t kSize = 1 << 27;
    putContent(name, "012345");
    fs::resize_file(name, kSize);
    {
        const FailingDisk disk(1000); // has no room for a copy
        EXPECT_TRUE(writeFileStart(name, bytesOf("abc")));
    }
    EXPECT_EQ(readStart(name, 6), "abc345");
    EXPECT_EQ(fs::file_size(name), kSize);
}

/// Makes the process an ordinary user who owns none of the files before, as long as the object
/// lives. A process that is no administrator already is an ordinary user.
struct OrdinaryUser {
    OrdinaryUser() { EXPECT_TRUE(::geteuid() != 0 || ::seteuid(65534) == 0); }
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(::getuid()), 0); }
};

TEST_F(FileAccess, AFileKeepsItsOwnerItsGroupAndWhoMayUseIt) {
    const auto replaced = [this](const std::string& content) {
        struct ::stat before {
        }, after{};
        ::stat(name.c_str(), &before);
        EXPECT_TRUE(replaceFile(name, content));
        EXPECT_EQ(contentOf(name), content);
        ::stat(name.c_str(), &after);
        EXPECT_EQ(std::tie(after.st_uid, after.st_gid, after.st_mode),
                  std::tie(before.st_uid, before.st_gid, before.st_mode));
    };
    putContent(name, "something longer than what comes");
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(name, fs::perms(0666));
    // Its user 1234 may read and write, as the system keeps such a list.
    const Bytes list{2, 0,   0,   0,   1,   0,   6,  0, 255, 255, 255, 255, 2,   0,  6,
                     0, 210, 4,   0,   0,   4,   0,  4, 0,   255, 255, 255, 255, 16, 0,
                     6, 0,   255, 255, 255, 255, 32, 0, 4,   0,   255, 255, 255, 255};
    const char* const attribute = "system.posix_acl_access";
    if (::setxattr(name.c_str(), attribute, list.data(), list.size(), 0) == 0) {
        replaced("with a list");
        EXPECT_GT(::getxattr(name.c_str(), attribute, nullptr, 0), 0);
        ::removexattr(name.c_str(), attribute);
    }
    fs::permissions(name, fs::perms(0666));
    if (::geteuid() != 0)
        GTEST_SKIP() << "only an administrator can give files away";
    ASSERT_EQ(::chown(name.c_str(), 12345, 54321), 0);
    replaced("by an administrator");
    const OrdinaryUser user;
    replaced("by another");
}

TEST_F(FileAccess, AFileThatMayNotBeUsedSaysSoInEnglish) {
    putContent(name, "mine");
    fs::permissions(name, fs::perms::none);
    fs::permissions(folder.path(), fs::perms::all);
    // A desktop in a language where the system says "Nein.", as a catalogue of one message has it.
    const std::string key = "Permission denied", text = "Nein.";
    ByteWriter catalogue;
    for (const int number :
         {0x12DE, 0x9504, 0, 0, 1, 0, 28, 0, 36, 0, 0, 0, 0, 0, 17, 0, 44, 0, 5, 0, 62, 0})
        catalogue.u16(static_cast<std::uint16_t>(number));
    catalogue.bytes(key + '\0' + text + '\0');
    const TemporaryFolder messages;
    fs::create_directories(messages.path("de/LC_MESSAGES"));
    putContent(messages.path("de/LC_MESSAGES/libc.mo"),
               {catalogue.data().begin(), catalogue.data().end()});
    fs::permissions(messages.path(), fs::perms::all);
    const std::string before = ::bindtextdomain("libc", nullptr);
    ASSERT_EQ(::setenv("LOCPATH", PARABOLT_TEST_LOCALES, 1), 0);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ::bindtextdomain("libc", messages.path().c_str());
    EXPECT_EQ(std::generic_category().message(EACCES), text);
    {
        const OrdinaryUser user;
        EXPECT_EQ(readFileStart(name, 1).why().description, key);
        EXPECT_EQ(writeFileStart(name, bytesOf("a")).why().description, key);
        EXPECT_EQ(replaceFile(name, "a").why().description, key);
    }
    std::setlocale(LC_ALL, "C");
    ::bindtextdomain("libc", before.c_str());
}

TEST(Preferences, FailsWithNumberAndDescription) {
    using Of = PreferencesStore::Refusal::Of;
    MemoryPreferences store;
    std::map<std::uint32_t, std::string> failures;
    const auto use = [&](const char* app, const char* section, const char* key) {
        const auto read = GetRegString(store, app, section, key, "");
        const auto written = SaveRegString(store, app, section, key, "x");
        for (const Failure& failure : {read.why(), written.why()})
            failures[failure.number] += failure.description + ".";
    };
    use("a", "s", " ");
    use("a", "  ", "");
    use("  ", "", "");
    store.readRefusal = {Of::Section, 5};
    store.writeRefusal = {Of::Section, 6};
    use("a", "s", "k");
    store.readRefusal = {Of::Value, 4};
    store.writeRefusal = {Of::Value, 112};
    use("a", "s", "k");
    const decltype(failures) expected{
        {0x800403E8, "AppName may not be empty.AppName may not be empty."},
        {0x800403E9, "Section may not be empty.Section may not be empty."},
        {0x800403EA, "Key may not be empty.Key may not be empty."},
        {0x800407D4, "Registry data not a string."},
        {0x800407D5, "Could not open registry section."},
        {0x800407D6, "Could not open/create registry section."},
        {0x80040840, "Could not set key value."}};
    EXPECT_EQ(failures, expected);
}

struct DialogRoutineTest : testing::Test {
    ScriptedFileDialog dialog;
    MemoryPreferences preferences;
    ScriptedMessageBoxes messages;
    DialogRoutine routine{dialog, preferences, messages, "/program"};
    Texts worked; ///< the ending that each piece of work was for
    Outcome<void, Failure> work;

    Outcome<void, Failure> run(DialogPurpose purpose) {
        return routine.run(purpose, [this](const std::string&, std::string_view ending) {
            worked.emplace_back(ending);
            return work;
        });
    }
};

TEST_F(DialogRoutineTest, JudgesANameByItsLastThreeCharacters) {
    const std::string noOpen = "The file type is not correct!";
    const std::string noSave = "The file type is not support!";
    // A name, and the ending that is worked on or the message.
    const std::tuple<DialogPurpose, const char*, std::string> table[] = {
        {OpenParameters, "/f/A.OPT", "opt"},  {OpenParameters, "/f/myopt", "opt"},
        {OpenParameters, "/f/a.clb", noOpen}, {OpenParameters, "a", noOpen},
        {SaveParameters, "/f/a.oPt", "opt"},  {SaveParameters, "/f/a", noSave},
        {SaveResult, "/f/a.TXT", "txt"},      {SaveResult, "/f/a.txt.bak", noSave},
        {OpenClubs, "/f/a.clb", "clb"},       {OpenClubs, "/f/a.txt", noOpen},
        {SaveClubs, "/f/a.Clb", "clb"},       {SaveClubs, "/f/a.TXT", "txt"},
        {SaveClubs, "/f/a.opt", noSave}};
    for (const auto& [purpose, name, outcome] : table) {
        worked.clear();
        messages.texts.clear();
        dialog.choose(name);
        EXPECT_TRUE(run(purpose));
        (outcome.size() == 3 ? messages.texts : worked).push_back(outcome);
        EXPECT_EQ(worked, Texts{outcome}) << name;
        EXPECT_EQ(messages.texts, Texts{outcome}) << name;
        EXPECT_EQ(preferences.lastPath(), dialog.finalFolder) << name;
    }
}

TEST_F(DialogRoutineTest, AllFiveStartWhereTheLastOneEnded) {
    dialog.cancel("/1");
    for (const auto purpose : {OpenParameters, SaveParameters, SaveResult, OpenClubs, SaveClubs}) {
        EXPECT_TRUE(run(purpose));
        dialog.cancel(dialog.finalFolder + "/2");
    }
    const Texts expected{
        "open in /program: Open Parameters File, Parameter File(*.opt)|*.opt",
        "save in /1: Save All Parameters To File, Parameters File(*.opt)|*.opt",
        "save in /1/2: Save Result To A Text File, Text File(*.txt)|*.txt",
        "open in /1/2/2: Open Clubs Parameter File, Clubs Parameter File(*.clb)|*.clb",
        "save in /1/2/2/2: Save Clubs Parameter To File, "
        "Clubs Parameter File(*.clb)|*.clb|Save As Text File(*.txt)|*.txt"};
    EXPECT_EQ(dialog.shows, expected);
}

TEST_F(DialogRoutineTest, AFailureEndsItWhereItHappens) {
    dialog.choose("/f/a.txt");
    preferences.readRefusal = {PreferencesStore::Refusal::Of::Section, 5};
    EXPECT_FALSE(run(SaveResult));
    EXPECT_TRUE(dialog.shows.empty());
    preferences.readRefusal.reset();
    work = because(Failure{1, "disk full"});
    EXPECT_EQ(run(SaveResult).why().description, "disk full");
    EXPECT_EQ(preferences.lastPath(), "");
    work = {};
    preferences.writeRefusal = {PreferencesStore::Refusal::Of::Value, 5};
    EXPECT_EQ(run(SaveResult).why().description, "Could not set key value");
    EXPECT_EQ(worked.size(), 2U);
}

} // namespace
} // namespace parabolt::support
