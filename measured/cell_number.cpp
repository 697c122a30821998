#include "measured/cell_number.h"

#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace parabolt {
namespace {

constexpr std::string_view kSides = "lLrR";

void replaceAll(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
}

bool isSide(std::string_view text) {
    return text.size() == 1 && kSides.find(text.front()) != std::string_view::npos;
}

/// Leaves a point between whole and decimal digits, and nothing between thousands.
void settlePoint(std::string& number, bool decimalComma, bool whole) {
    const std::size_t last = number.find_last_of(".,");
    if (last == std::string::npos)
        return;
    const char mark = number[last];
    const bool alone = std::count(number.begin(), number.end(), mark) == 1;
    const bool both = number.find(mark == ',' ? '.' : ',') != std::string::npos;
    const bool threeBehind = number.size() - last == 4;
    const std::string_view before = trimmed(std::string_view(number).substr(0, last), "+-");
    const bool thousands = threeBehind && !before.empty() && before.size() <= 3 && before != "0";
    const bool decimal = alone && (both || !thousands || (!whole && (mark == '.' || decimalComma)));
    const std::string behind = number.substr(last + 1);
    number.resize(last);
    std::erase_if(number, [](char c) { return c == '.' || c == ','; });
    number += (decimal ? "." : "") + behind;
}

} // namespace

std::string withoutBlanks(std::string_view text) {
    std::string plain(text);
    for (const std::string_view blank : {"\u00A0", "\u202F", "\t", "\r", "\n"})
        replaceAll(plain, blank, " ");
    plain.erase(0, std::min(plain.find_first_not_of(' '), plain.size()));
    plain.erase(plain.find_last_not_of(' ') + 1);
    return plain;
}

bool isMissing(std::string_view cell) {
    constexpr std::array<std::string_view, 7> kMissing = {"", "-", "--", "—", "n/a", "nan", "null"};
    const std::string text = lowerCase(withoutBlanks(cell));
    return std::find(kMissing.begin(), kMissing.end(), text) != kMissing.end();
}

std::optional<CellNumber> cellNumber(std::string_view cell, bool decimalComma, bool whole) {
    std::string text = withoutBlanks(cell);
    replaceAll(text, "\u2212", "-");
    bool left = false;
    const auto takeSide = [&](std::size_t at) {
        left = left || text[at] == 'l' || text[at] == 'L';
        text = withoutBlanks(text.erase(at, 1));
    };
    if (text.size() > 1 && isSide(text.substr(0, 1)))
        takeSide(0);
    else if (text.size() > 1 && isSide(text.substr(text.size() - 1)))
        takeSide(text.size() - 1);

    const std::size_t end = std::min(text.find_first_not_of(".,0123456789eE+-"), text.size());
    const auto unit = unitNamed(std::string_view(text).substr(end));
    if (end < text.size() && !unit)
        return std::nullopt;
    text = withoutBlanks(text.substr(0, end));
    settlePoint(text, decimalComma, whole);
    const auto value = parseNumber(text);
    if (!value || !std::isfinite(*value))
        return std::nullopt;
    return CellNumber{left ? -std::abs(*value) : *value, unit};
}

} // namespace parabolt
