#include "mainform/parameter_handlers.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <cstring>

namespace parabolt::support {
namespace {

/// The default set-up, laid out by hand from the binary form of each number: launch 9.5, 3200, 144,
/// 100; wood 1; step 1; COR 0.83, 198, 0, 0, 10; ball 4; wind 0, 70, 29.92, 50, 0.
const std::string
    kDefaultFile("\0\0\x18\x41\0\0\x48\x45\0\0\x10\x43\0\0\xC8\x42\1\0\0\0\x80\x3F\0\0"
                 "\xE1\x7A\x54\x3F\0\0\x46\x43\0\0\0\0\0\0\0\0\0\0\x20\x41\4\0"
                 "\0\0\0\0\0\0\x8C\x42\x29\x5C\xEF\x41\0\0\x48\x42\0\0\0\0",
                 66);
constexpr std::size_t kClubNo = 16;
constexpr std::size_t kClubType = 22;
constexpr std::size_t kLoftAngle = 40;
constexpr std::size_t kBallType = 44;
constexpr std::size_t kNumbers[] = {0, 4, 8, 12, 18, 24, 28, 32, 36, 40, 46, 50, 54, 58, 62};

const Texts kNone;
const Texts kMismatch{"File mismatch!"};

struct ParameterFile : testing::Test, ScriptedForm {
    TemporaryFolder folder;
    std::string file = folder.path("shot.opt");

    ParameterFile() { files.choose(file); }

    /// Opens a file of this content, and returns the messages behind the question.
    Texts open(const std::string& content, Answer answer = Answer::Yes) {
        putContent(file, content);
        messages.texts.clear();
        messages.answers = {answer};
        form.mnuOpen.Click();
        EXPECT_EQ(messages.texts.at(0),
                  "Do you want to replace the Club data, and Environment parameters?");
        return {messages.texts.begin() + 1, messages.texts.end()};
    }
    /// The default file with other bytes at an offset.
    static std::string with(std::size_t offset, const std::string& bytes) {
        return std::string(kDefaultFile).replace(offset, bytes.size(), bytes);
    }
    std::string bytesOfForm() const {
        const Bytes data = encodeParameters(collectParameters(form));
        return {data.begin(), data.end()};
    }
};

TEST_F(ParameterFile, HoldsTheDefaultSetUpByteForByte) {
    for (const std::string behind : {"", "what stands behind"}) {
        putContent(file, std::string(66, 'x') + behind);
        form.mnuSave.Click();
        EXPECT_EQ(contentOf(file), kDefaultFile + behind);
    }
}

TEST_F(ParameterFile, BringsASetUpIntoVariablesAndFields) {
    std::string content = with(kClubNo, "\v"); // iron 11
    content[kClubType] = 1;
    content[kBallType] = 2;
    float value = 0.125F;
    for (const std::size_t offset : kNumbers) {
        value += 1;
        std::memcpy(&content[offset], &value, sizeof value);
    }
    EXPECT_EQ(open(content), kNone);
    EXPECT_EQ(bytesOfForm(), content);
    EXPECT_TRUE(form.optIron.selected() && form.BallOpt2.selected());
    std::string fields = form.cmbClubNo.text() + " ";
    for (const TextBox* field :
         {&form.txtLaunchAngle, &form.txtBallSpin, &form.txtLaunchSpeed, &form.txtHeadSpeed,
          &form.txtSpeedIncrement, &form.txtCor, &form.txtHeadWeight, &form.txtAttackAngle,
          &form.txtBending, &form.txtLoftAngle, &form.txtWind, &form.txtTemperature,
          &form.txtPressure, &form.txtRelativeHumidity, &form.txtAltitude})
        fields += field->text() + " ";
    EXPECT_EQ(fields,
              "11 1.125 2.125 3.125 4.125 5.125 6.12 7.125 8.125 9.125 10.125 11.125 12.125 "
              "13.125 14.125 15.125 ");
}

TEST_F(ParameterFile, TheClubIsLookedUpByItsNumber) {
    const std::tuple<char, char, bool> table[] = {
        {0, 7, true}, {0, 9, true},  {0, 6, false},  {0, 0, false}, {0, 12, false},
        {1, 6, true}, {1, 12, true}, {1, 13, false}, {7, 6, true},  {0, 8, false}};
    for (const auto& [type, number, known] : table) {
        std::string content = with(kClubNo, {number});
        content[kClubType] = type;
        EXPECT_EQ(open(content), known ? kNone : kMismatch) << int{number};
        EXPECT_EQ(form.cmbClubNo.text() == std::to_string(number), known);
        EXPECT_EQ(form.optIron.selected(), type != 0);
    }
    // It stopped half-way: variables in front are taken, fields and what stands behind are not.
    std::string content(66, '\2');
    content[kClubNo] = 13;
    EXPECT_EQ(open(content.replace(kClubNo + 1, 1, 1, '\0')), kMismatch);
    EXPECT_NE(form.shot.LoftAngle, 10);
    EXPECT_EQ(form.txtLoftAngle.text(), "10");
    EXPECT_EQ(form.shot.RH, 50);
}

TEST_F(ParameterFile, TheClubTablesHaveTheLastWordInModeOne) {
    form.txtMode.setText("1");
    EXPECT_EQ(open(with(kLoftAngle, {0, 0, 0x04, 0x42})), kNone); // 33 degrees
    EXPECT_EQ(form.shot.LoftAngle, form.clubs.Woods[1].LoftAngle);
}

TEST_F(ParameterFile, OfEveryLengthIsReadAsIfZerosFollowed) {
    for (std::size_t length = 0; length <= kDefaultFile.size() + 4; ++length) {
        const std::string content = (kDefaultFile + "tail").substr(0, length);
        EXPECT_EQ(open(content), length > kClubNo ? kNone : kMismatch) << length;
        if (length > kBallType) {
            EXPECT_EQ(bytesOfForm(), (content + std::string(66, '\0')).substr(0, 66)) << length;
        }
        EXPECT_EQ(contentOf(file), content);
    }
    // Not a number, in every place: it is taken, and the form goes on working.
    for (const std::size_t offset : kNumbers) {
        EXPECT_EQ(open(with(offset, {0, 0, '\xC0', 0x7F})), kNone);
        EXPECT_EQ(bytesOfForm(), contentOf(file));
        run();
    }
}

TEST_F(ParameterFile, FailuresAreToldAndCancelRemembersTheFolder) {
    EXPECT_EQ(open(std::string(66, '\1'), Answer::No), kNone);
    EXPECT_EQ(preferences.lastPath(), folder.path());
    files.cancel("/open");
    form.mnuOpen.Click();
    EXPECT_EQ(preferences.lastPath(), "/open");
    EXPECT_EQ(bytesOfForm(), kDefaultFile);
    messages.texts.clear();
    files.choose(folder.path("gone/shot.opt"));
    form.mnuOpen.Click();
    form.mnuSave.Click();
    EXPECT_EQ(messages.texts, Texts({"File mismatch!", "No such file or directory"}));
}

} // namespace
} // namespace parabolt::support
