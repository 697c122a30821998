#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace parabolt {

/// The value of a text that reads as a number as a whole, blanks around it allowed: an optional
/// sign, decimal digits with an optional point, an optional exponent. Anything else gives nothing:
/// the empty text, "12a", "nan", "inf", "0x1F", a decimal comma. Never depends on the locale.
/// A number beyond the range of a double gives an infinity, one too small gives 0.
std::optional<double> parseNumber(std::string_view text);

/// The numeric value of a text: the number with which it begins, in the grammar of `parseNumber`,
/// leading blanks skipped; 0 if it begins with none.
double leadingNumber(std::string_view text);

/// Fewest digits that show a 32-bit value, at most seven significant ones: 0.83, 9.5, 3200.
/// Very large and very small values take an exponent ("1E+10"); -0 is "0".
std::string shortestText(float value);

/// Fewest digits that give back a 64-bit value.
std::string shortestText(double value);

/// A number in a display pattern: the digits behind the point of the pattern are the decimals, a
/// digit before the point is always printed. ".0" shows 0.5 as ".5", "0.00" as "0.50", "0" rounds
/// to a whole number (ties to even). A negative value keeps its minus sign.
std::string formatPattern(double value, std::string_view pattern);

} // namespace parabolt
