#include "numbers/characters.h"

#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

TEST(Characters, MakeNamesOfOneLine) {
    const std::pair<const char*, const char*> table[] = {
        {"", ""},
        {" \t Ann's  driver\r\nlow ", "Ann's driver low"},
        {"\x01\x7F\u0085\u2028", ""},
        {"a\u00a0b\u2029c\x1B[1m", "a b c [1m"},
        {"\u00e9\u20ac\U0001F3CC \u03b1\u03b2\u03b3\u03b4 and more",
         "\u00e9\u20ac\U0001F3CC \u03b1\u03b2\u03b3\u03b4 and mor"},
        {"123456789012345  tenth", "123456789012345"},
    };
    for (const auto& [typed, name] : table)
        EXPECT_EQ(asName(typed, 16), name) << typed;
}

TEST(Characters, LoseTheMiddleWhereThereIsNoRoom) {
    const auto widthOf = [](std::string_view text) { return double(characterCount(text)); };
    const std::pair<double, const char*> table[] = {{8, "\u03b1bcdefg\u03c9"},
                                                    {7, "\u03b1bc\u2026fg\u03c9"},
                                                    {4, "\u03b1b\u2026\u03c9"},
                                                    {2, "\u03b1\u2026"},
                                                    {1, "\u2026"},
                                                    {0, "\u2026"}};
    for (const auto& [room, shown] : table)
        EXPECT_EQ(elided("\u03b1bcdefg\u03c9", room, widthOf), shown) << room;
}

} // namespace
} // namespace parabolt::support
