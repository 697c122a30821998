#include "files/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace parabolt {

namespace {

constexpr unsigned kTableStart = 0x80;

/// Characters of the bytes 0x80 to 0x9F; all other bytes are the characters of their own number.
constexpr std::array<char32_t, 32> kTable{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Takes the next character off a UTF-8 text that isn't empty. A malformed byte is taken off alone
/// and gives nothing.
std::optional<char32_t> takeCharacter(std::string_view& text) {
    struct Form {
        unsigned mask, mark;
        char32_t lowest;
    };
    constexpr std::array<Form, 4> kForms{
        {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};

    const auto byte = [&text](std::size_t at) { return static_cast<std::uint8_t>(text[at]); };
    const unsigned first = byte(0);
    for (std::size_t more = 0; more < kForms.size() && more < text.size(); ++more) {
        const Form& form = kForms[more];
        if ((first & form.mask) != form.mark)
            continue;
        char32_t character = first & ~form.mask;
        for (std::size_t i = 1; i <= more; ++i) {
            if ((byte(i) & 0xC0U) != 0x80U)
                character = 0x110000;
            character = std::min<char32_t>(character << 6 | (byte(i) & 0x3FU), 0x110000);
        }
        const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
        if (character < form.lowest || character >= 0x110000 || surrogate)
            break;
        text.remove_prefix(more + 1);
        return character;
    }
    text.remove_prefix(1);
    return std::nullopt;
}

void append(std::string& text, char32_t character) {
    const auto push = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        push(character);
    } else if (character < 0x800) {
        push(0xC0 | character >> 6);
        push(0x80 | (character & 0x3F));
    } else {
        push(0xE0 | character >> 12);
        push(0x80 | (character >> 6 & 0x3F));
        push(0x80 | (character & 0x3F));
    }
}

char codePageByte(char32_t character) {
    const auto* const found = std::find(kTable.begin(), kTable.end(), character);
    if (found != kTable.end())
        return static_cast<char>(kTableStart + static_cast<unsigned>(found - kTable.begin()));
    const bool ownNumber =
        character < kTableStart || (character >= kTableStart + kTable.size() && character <= 0xFF);
    return ownNumber ? static_cast<char>(character) : '?';
}

} // namespace

std::string toCodePage(std::string_view utf8) {
    std::string result;
    while (!utf8.empty()) {
        const std::optional<char32_t> character = takeCharacter(utf8);
        result.push_back(character ? codePageByte(*character) : '?');
    }
    return result;
}

std::string fromCodePage(std::string_view bytes) {
    std::string result;
    for (const char c : bytes) {
        const unsigned byte = static_cast<std::uint8_t>(c);
        const unsigned row = byte - kTableStart;
        append(result, byte >= kTableStart && row < kTable.size() ? kTable[row] : char32_t{byte});
    }
    return result;
}

} // namespace parabolt
