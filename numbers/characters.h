#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace parabolt {

/// True for 0 to 9, in every locale.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Number of characters of a UTF-8 text.
std::size_t characterCount(std::string_view text);
/// Where a character, counted from 0, starts in a UTF-8 text; the text's size if it has no such.
std::size_t characterStart(std::string_view text, std::size_t character);

/// A UTF-8 text as a name: runs of blanks, control characters and line ends become one blank, none
/// stands at its ends, and at most so many characters stay.
std::string asName(std::string_view text, std::size_t most);

/// A UTF-8 text that takes no more than the room: as it is, or with an ellipsis for what its middle
/// loses. `widthOf` measures a text.
std::string elided(std::string_view text, double room,
                   const std::function<double(std::string_view)>& widthOf);

/// The text without certain characters around it: blanks and tabs, if no others are named.
std::string_view trimmed(std::string_view text, std::string_view what = " \t");

/// The text with its letters A to Z in lower case; all other bytes stay, in every locale.
std::string lowerCase(std::string_view text);

} // namespace parabolt
