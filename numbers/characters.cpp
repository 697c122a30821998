#include "numbers/characters.h"

#include <algorithm>

namespace parabolt {
namespace {

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
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
