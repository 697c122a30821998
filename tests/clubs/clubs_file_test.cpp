#include "clubs/clubs_file.h"
#include "clubs/clubs_text.h"
#include "tests/support/golden.h"
#include "tests/support/scripted_editor.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace parabolt {
namespace {

Bytes defaultFile() {
    return *encodeClubs(InitClubTables());
}

TEST(ClubsFile, TheDefaultSetIsTheseBytes) {
    const Bytes file = defaultFile();
    ASSERT_EQ(file.size(), 701U);
    const std::pair<std::ptrdiff_t, Bytes> known[] = {
        {75, Bytes(26)}, // no comment, and no iron 0
        // Iron 1: 16, 225, 100, 0.76, 0, 0.
        {101, {0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0x61, 0x43, 0x00, 0x00, 0xC8, 0x42,
               0x5C, 0x8F, 0x42, 0x3F, 0,    0,    0,    0,    0,    0,    0,    0}},
        // Wood 10: 24, 233, 91, 0.8, 0, 0.
        {677, {0x00, 0x00, 0xC0, 0x41, 0x00, 0x00, 0x69, 0x43, 0x00, 0x00, 0xB6, 0x42,
               0xCD, 0xCC, 0x4C, 0x3F, 0,    0,    0,    0,    0,    0,    0,    0}}};
    for (const auto& [offset, bytes] : known)
        EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), file.begin() + offset)) << offset;
}

TEST(ClubsFile, EndsWhereTheLastRecordEnds) {
    Bytes file = defaultFile();
    for (std::size_t length = 0; length < file.size(); ++length)
        EXPECT_FALSE(decodeClubs(std::span(file).first(length))) << length;
    file.insert(file.end(), 100, 0xEE);
    EXPECT_TRUE(decodeClubs(file));
    for (const std::size_t lengthOfText : {0U, 25U, 50U, 75U})
        for (const int high : {0x03, 0x80, 0xFF}) {
            Bytes broken = defaultFile();
            broken[lengthOfText + 1] = static_cast<std::uint8_t>(high);
            EXPECT_FALSE(decodeClubs(broken)) << lengthOfText;
        }
    ClubTables clubs; // the length counts bytes of the file
    for (int i = 0; i < 65535; ++i)
        clubs.Comment += "€";
    EXPECT_EQ(decodeClubs(*encodeClubs(clubs))->Comment, clubs.Comment);
    clubs.Comment += "x";
    EXPECT_FALSE(encodeClubs(clubs));
}

TEST(ClubsText, ShowsTextsAndGridsLineByLine) {
    ClubTables clubs = InitClubTables();
    ClubForm form;
    showClubs(form, clubs);
    std::string text = composeClubsText(form, clubs);
    EXPECT_EQ(std::erase(text, '\r'), 24);
    EXPECT_EQ(text, support::goldenText("default_clubs.txt"));
    clubs.ClubsDescription = "Müller 漢";
    clubs.Comment = "dry\r\nfast";
    showClubs(form, clubs);
    form.GridWoods.setText(3, 8, "0.9");
    text = composeClubsText(form, clubs);
    EXPECT_TRUE(text.starts_with("Clubs Description: M\xFCller ?\r\n"));
    for (const char* line : {"Loft Angle\t16\t18\t", "\t0.8\t0.8\t0.9\t\r\n", "dry\r\nfast\r\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
}

struct ClubEditing : testing::Test, support::ScriptedEditor {};

TEST_F(ClubEditing, LimitsItsTexts) {
    for (const auto& [box, most] : {std::pair{&form.txtDescription, 40U},
                                    {&form.txtIronsDes, 120U},
                                    {&form.txtWoodsDes, 120U}}) {
        box->setText(std::string(200, 'x'));
        EXPECT_EQ(box->text().size(), most);
    }
}

TEST_F(ClubEditing, AppliesWhatIsWithinItsBounds) {
    for (const auto& row : support::goldenRows("club_bounds.txt")) {
        Grid& grid = row.at(0) == "0" ? form.GridIrons : form.GridWoods;
        const int line = std::stoi(row.at(1));
        const std::string before = grid.text(line, 3);
        const std::string below = std::to_string(std::stod(row.at(2)) - 0.01);
        const std::string above = std::to_string(std::stod(row.at(3)) + 0.01);
        for (const std::string& value : {row.at(2), row.at(3), below, above}) {
            const bool refused = value == below || value == above;
            messages.texts.clear();
            grid.setText(line, 3, value);
            form.Command3.Click();
            EXPECT_EQ(messages.texts, refused ? support::Texts{row.at(4)} : support::Texts());
            EXPECT_EQ(frm.editor.ClubGridsChanged(), refused) << value;
        }
        EXPECT_EQ(form.focus.active(), &grid);
        EXPECT_EQ(grid.row() * 100 + grid.col(), line * 100 + 3);
        grid.setText(line, 3, before);
    }
    // The first bad cell is told, and nothing applied.
    form.GridIrons.setText(1, 1, "200");
    form.GridIrons.setText(3, 9, "no number");
    form.GridIrons.setText(6, 8, "99");
    form.Command3.Click();
    EXPECT_EQ(messages.texts.back(), "Then bend angle must between -10 and 10 degrees.");
    EXPECT_EQ(clubs.Irons[1].HeadWeight, 225);
}

} // namespace
} // namespace parabolt
