#include "numbers/text_number.h"

#include "numbers/characters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace parabolt {
namespace {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

std::size_t skipBlanks(std::string_view text, std::size_t at) {
    while (at < text.size() && isBlank(text[at]))
        ++at;
    return at;
}

/// Whether a number that no double can hold is too small, and not too large. It is unsigned and not
/// 0.
bool isTiny(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    const double order = static_cast<double>(point) - static_cast<double>(first);
    double exponent = 0;
    if (mark < number.size()) {
        const std::size_t start = mark + (number[mark + 1] == '+' ? 2 : 1);
        const char* begin = number.data() + start;
        const auto read = std::from_chars(begin, number.data() + number.size(), exponent);
        if (read.ec == std::errc::result_out_of_range)
            return *begin == '-';
    }
    return order + exponent < 0;
}

struct Scan {
    double value = 0;
    std::size_t end = 0; ///< first character behind the number; 0 if the text begins with none
};

/// Reads the number at the start of a text. The grammar is checked here, so that `from_chars` never
/// sees what it would accept beyond it (inf, nan) and may see a plus sign that it would refuse.
Scan scanNumber(std::string_view text) {
    const std::size_t start = skipBlanks(text, 0);
    std::size_t at = start;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        ++at;
    const std::size_t digits = at;
    at = skipDigits(text, at);
    std::size_t count = at - digits;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction = at + 1;
        const std::size_t fractionEnd = skipDigits(text, fraction);
        count += fractionEnd - fraction;
        if (count > 0)
            at = fractionEnd;
    }
    if (count == 0)
        return {};
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+'))
            ++exponent;
        const std::size_t exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent)
            at = exponentEnd;
    }
    double value = 0;
    const auto result = std::from_chars(text.data() + digits, text.data() + at, value);
    if (result.ec == std::errc::result_out_of_range)
        value = isTiny(text.substr(digits, at - digits)) ? 0.0
                                                         : std::numeric_limits<double>::infinity();
    return {negative ? -value : value, at};
}

/// Digits and decimal exponent of a value, laid out plainly or with an exponent.
template <class Float>
std::string layOut(Float value, int plainDigits, std::size_t mostDigits) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    if (value == 0)
        return "0";
    std::array<char, 64> buffer{};
    auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                             std::chars_format::scientific)
                   .ptr;
    std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto mantissaDigits = [](std::string_view t) {
        std::size_t n = 0;
        for (const char c : t.substr(0, t.find('e')))
            n += isDigit(c) ? 1U : 0U;
        return n;
    };
    if (mantissaDigits(text) > mostDigits) {
        end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                            std::chars_format::scientific, static_cast<int>(mostDigits) - 1)
                  .ptr;
        text = {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
    }
    std::string digits;
    for (const char c : text.substr(0, text.find('e')))
        if (isDigit(c))
            digits += c;
    while (digits.size() > 1 && digits.back() == '0')
        digits.pop_back();
    std::string_view exponentText = text.substr(text.find('e') + 1);
    if (exponentText.front() == '+')
        exponentText.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);

    const std::string sign = value < 0 ? "-" : "";
    if (exponent < -5 || exponent >= plainDigits) {
        std::string result = sign + digits.substr(0, 1);
        if (digits.size() > 1)
            result += "." + digits.substr(1);
        const std::string power = std::to_string(std::abs(exponent));
        return result + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
    }
    if (exponent < 0)
        return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole)
        return sign + digits + std::string(whole - digits.size(), '0');
    return sign + digits.substr(0, whole) + "." + digits.substr(whole);
}

} // namespace

std::optional<double> parseNumber(std::string_view text) {
    const Scan scan = scanNumber(text);
    if (scan.end == 0 || skipBlanks(text, scan.end) != text.size())
        return std::nullopt;
    return scan.value;
}

double leadingNumber(std::string_view text) {
    return scanNumber(text).value;
}

std::string shortestText(float value) {
    return layOut(value, 7, 7);
}

std::string shortestText(double value) {
    return layOut(value, 15, std::numeric_limits<double>::max_digits10);
}

std::string formatPattern(double value, std::string_view pattern) {
    if (!std::isfinite(value))
        return shortestText(value);
    const std::size_t point = pattern.find('.');
    const auto decimals =
        point == std::string_view::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
    std::array<char, 400> buffer{};
    auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                    std::chars_format::fixed, decimals)
                          .ptr;
    std::string text(buffer.data(), end);
    if (point == 0 && text.starts_with("0."))
        text.erase(0, 1);
    return value < 0 ? "-" + text : text;
}

} // namespace parabolt
