#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace parabolt {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

using Rows = std::vector<std::pair<std::string, double>>;

TEST(TextNumber, ReadsWholeNumbersAndBeginnings) {
    Rows whole = {{"144", 144},    {" 9.5\t", 9.5},   {"+.5", 0.5},   {"-.5", -0.5},
                  {"5.", 5},       {"1E+2", 100},     {"25e-1", 2.5}, {"007", 7},
                  {"1e999", kInf}, {"-1e999", -kInf}, {"1e-999", 0},  {"0e999", 0}};
    const std::string zeros(400, '0');
    whole.emplace_back("1" + zeros, kInf);
    whole.emplace_back("1" + zeros + "e-400", 1);
    whole.emplace_back("1" + zeros + "e-5", kInf);
    whole.emplace_back("0." + zeros + "1", 0);
    whole.emplace_back("0." + zeros + "1e401", 1);
    for (const auto& [text, value] : whole) {
        EXPECT_EQ(parseNumber(text), value) << text.substr(0, 20);
        EXPECT_EQ(leadingNumber(text), value) << text.substr(0, 20);
    }
    Rows beginnings = {{"", 0},    {"   ", 0},     {".", 0},       {"-", 0},      {"+-3", 0},
                       {"- 3", 0}, {"abc", 0},     {"12a", 12},    {"12 34", 12}, {"1,5", 1},
                       {"1e", 1},  {"1e+", 1},     {"1.2.3", 1.2}, {"0x1F", 0},   {"nan", 0},
                       {"inf", 0}, {"2.5e-x", 2.5}};
    beginnings.emplace_back(std::string("7\0", 2), 7);
    for (const auto& [text, value] : beginnings) {
        EXPECT_EQ(parseNumber(text), std::nullopt) << text;
        EXPECT_EQ(leadingNumber(text), value) << text;
    }
}

TEST(TextNumber, ShowsTheFewestDigits) {
    const std::pair<float, const char*> table[] = {
        {0.83F, "0.83"},       {9.5F, "9.5"},        {29.92F, "29.92"},
        {-0.1F, "-0.1"},       {-0.0F, "0"},         {1234567, "1234567"},
        {1e10F, "1E+10"},      {0.001F, "0.001"},    {12345678, "1.234568E+07"},
        {66.6F, "66.6"},       {2.5e-8F, "2.5E-08"}, {1.0F / 3, "0.3333333"},
        {148.356F, "148.356"}, {8.7744F, "8.7744"},  {-16777216, "-1.677722E+07"}};
    for (const auto& [value, text] : table)
        EXPECT_EQ(shortestText(value), text);
    std::mt19937 bits(1);
    for (int i = 0; i < 20000; ++i) {
        const double value = std::uniform_real_distribution(-1e6, 1e6)(bits);
        EXPECT_EQ(parseNumber(shortestText(value)), value);
        const double narrow = store32(value);
        EXPECT_NEAR(parseNumber(shortestText(store32(value))).value_or(kInf), narrow,
                    std::fabs(narrow) * 5e-7);
    }
}

TEST(TextNumber, PatternsSetTheDecimals) {
    const std::tuple<double, const char*, const char*> table[] = {
        {0.5, ".0", ".5"},      {0, ".0", ".0"},       {148.356, ".0", "148.4"},
        {-0.5, ".0", "-.5"},    {0.8, "0.00", "0.80"}, {-3.456, "0.00", "-3.46"},
        {2304.4, "0", "2304"},  {2.5, "0", "2"},       {3.5, "0", "4"},
        {99.96, ".0", "100.0"}, {0.96, ".0", "1.0"},   {1e20, "0", "100000000000000000000"}};
    for (const auto& [value, pattern, text] : table)
        EXPECT_EQ(formatPattern(value, pattern), text) << value;
}

TEST(TextNumber, ALocaleWithACommaChangesNothing) {
    ASSERT_EQ(setenv("LOCPATH", PARABOLT_TEST_LOCALES, 1), 0);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(parseNumber("9.5"), 9.5);
    EXPECT_EQ(leadingNumber("9,5"), 9);
    EXPECT_EQ(shortestText(9.5F) + shortestText(1234.5), "9.51234.5");
    EXPECT_EQ(formatPattern(1234.56, "0.0"), "1234.6");
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
}

TEST(Rounding, GoesHalfToEvenWithinTheWidth) {
    const std::pair<double, std::optional<int>> table[] = {
        {2.5, 2},      {3.5, 4},     {-2.5, -2}, {32767.4, 32767}, {32768, {}},
        {32767.5, {}}, {-32769, {}}, {kInf, {}}, {-kInf, {}},      {std::nan(""), {}}};
    for (const auto& [value, rounded] : table)
        EXPECT_EQ(roundTo<std::int16_t>(value), rounded) << value;
}

} // namespace
} // namespace parabolt
