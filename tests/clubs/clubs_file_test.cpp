#include "clubs/clubs_file.h"
#include "clubs/clubs_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace parabolt {
namespace {

Bytes defaultFile() {
    return *encodeClubs(InitClubTables());
}

TEST(ClubsFile, TheDefaultSetIsTheseBytes) {
    const Bytes file = defaultFile();
    ASSERT_EQ(file.size(), 701U);
    const std::pair<std::ptrdiff_t, Bytes> known[] = {
        {0, {0x17, 0x00, 'D', 'e', 'f', 'a', 'u', 'l', 't', ' ', 'C'}},
        {25, {0x17, 0x00, 'D', 'e', 'f', 'a', 'u', 'l', 't', ' ', 'W'}},
        {50, {0x17, 0x00, 'D', 'e', 'f', 'a', 'u', 'l', 't', ' ', 'I'}},
        {75, Bytes(26)},
        // Iron 1: 16, 225, 100, 0.76, 0, 0.
        {101, {0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0x61, 0x43, 0x00, 0x00, 0xC8, 0x42,
               0x5C, 0x8F, 0x42, 0x3F, 0,    0,    0,    0,    0,    0,    0,    0}},
        {437, Bytes(24)},
        {437 + 6 * 24, Bytes(24)},
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
    clubs.ClubsDescription = "Müller 漢";
    clubs.Comment = "dry\r\nfast";
    clubs.Irons[1].LoftAngle = std::numeric_limits<float>::quiet_NaN();
    ClubForm form;
    showClubs(form, clubs);
    form.GridWoods.setText(3, 8, "0.9");
    std::istringstream text(composeClubsText(form, clubs));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    ASSERT_EQ(lines.size(), 25U);
    const std::pair<std::size_t, std::string> known[] = {
        {1, "Clubs Description: M\xFCller ?"},
        {3, "Irons Clubs Description: Default Irons Parameter"},
        {4, "Club No.\tNo. 1\tNo. 2\tNo. 3\tNo. 4\tNo. 5\tNo. 6\tNo. 7\tNo. 8\tNo. 9\tNo. 10\t"
            "No. 11\tNo. 12\tNo. 13\tNo. 14\t"},
        {6, "Loft Angle\t0\t18\t21\t24\t27\t31\t35\t39\t43\t47\t52\t56\t60\t64\t"},
        {14, "Woods Clubs Description: Default Woods Parameter"},
        {15, "No. 1\tNo. 2\tNo. 3\tNo. 4\tNo. 5\tNo. 7\tNo. 9\tNo. 10\t"},
        {18, "0.83\t0.83\t0.83\t0.83\t0.83\t0.8\t0.8\t0.9\t"},
        {25, "fast"}};
    for (const auto& [number, line] : known)
        EXPECT_EQ(lines[number - 1], line + "\r") << number;
}

} // namespace
} // namespace parabolt
