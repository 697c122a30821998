#include "numbers/characters.h"

#include <algorithm>

namespace parabolt {
namespace {

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// A blank, a control character or a line end of Unicode.
bool isGap(std::string_view character) {
    if (character.size() == 1)
        return static_cast<unsigned char>(character[0]) <= 0x20 || character[0] == 0x7F;
    return (character >= "\u0080" && character <= "\u00A0") || character == "\u2028" ||
           character == "\u2029";
}

} // namespace

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::size_t characterStart(std::string_view text, std::size_t character) {
    for (std::size_t at = 0; at < text.size(); ++at)
        if (startsCharacter(text[at]) && character-- == 0)
            return at;
    return text.size();
}

std::string asName(std::string_view text, std::size_t most) {
    std::string name;
    std::size_t letters = 0;
    bool gap = false; // waits for the next letter
    while (!text.empty()) {
        const std::string_view letter = text.substr(0, characterStart(text, 1));
        text.remove_prefix(letter.size());
        if (isGap(letter)) {
            gap = !name.empty();
            continue;
        }
        letters += gap ? 2 : 1;
        if (letters > most)
            break;
        name.append(gap ? " " : "").append(letter);
        gap = false;
    }
    return name;
}

std::string elided(std::string_view text, double room,
                   const std::function<double(std::string_view)>& widthOf) {
    if (widthOf(text) <= room)
        return std::string(text);
    const std::size_t count = characterCount(text);
    const auto withLetters = [&](std::size_t letters) {
        const std::size_t tail = letters / 2;
        return std::string(text.substr(0, characterStart(text, letters - tail))) + "\u2026" +
               std::string(text.substr(characterStart(text, count - tail)));
    };
    std::size_t fits = 0;
    for (std::size_t tooMany = count; tooMany > fits + 1;) {
        const std::size_t letters = (fits + tooMany) / 2;
        (widthOf(withLetters(letters)) <= room ? fits : tooMany) = letters;
    }
    return withLetters(fits);
}

std::string_view trimmed(std::string_view text, std::string_view what) {
    const std::size_t first = text.find_first_not_of(what);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(what) - first + 1);
}

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

} // namespace parabolt
