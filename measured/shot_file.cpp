#include "measured/shot_file.h"

#include "files/code_page.h"
#include "measured/cell_number.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace parabolt {
namespace {

ImportFault aboutFile(std::string message) {
    return {0, std::move(message)};
}

ImportFault aboutLine(std::size_t line, const std::string& message) {
    return {line, "Line " + std::to_string(line) + ": " + message};
}

/// Bytes of the character that begins here in well-formed UTF-8; 0 if none does.
std::size_t lengthInUtf8(std::string_view text) {
    const auto byte = [&text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    struct Length {
        unsigned first; ///< of the first bytes, and of the characters, that take so many bytes
        std::uint32_t least;
    };
    constexpr std::array<Length, 4> kUtf8Lengths = {
        {{0x00, 0}, {0xC0, 0x80}, {0xE0, 0x800}, {0xF0, 0x10000}}};
    std::size_t length = kUtf8Lengths.size();
    while (byte(0) < kUtf8Lengths[length - 1].first)
        --length;
    if (length == 1)
        return byte(0) < 0x80 ? 1 : 0;
    if (length > text.size())
        return 0;
    std::uint32_t character = byte(0) - kUtf8Lengths[length - 1].first;
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0U) != 0x80U)
            return 0;
        character = character << 6U | (byte(at) & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    return character >= kUtf8Lengths[length - 1].least && character < 0x110000 && !surrogate
               ? length
               : 0;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = lengthInUtf8(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

void appendUtf8(std::string& text, std::uint32_t character) {
    const auto append = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | character >> 6U);
        append(0x80U | (character & 0x3FU));
    } else {
        if (character < 0x10000) {
            append(0xE0U | character >> 12U);
        } else {
            append(0xF0U | character >> 18U);
            append(0x80U | (character >> 12U & 0x3FU));
        }
        append(0x80U | (character >> 6U & 0x3FU));
        append(0x80U | (character & 0x3FU));
    }
}

/// UTF-16, of which each unit has its high byte first or last. Half a pair becomes a question mark.
std::string fromUtf16(std::string_view bytes, bool highFirst) {
    const auto unit = [&](std::size_t at) -> std::uint32_t {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return highFirst ? first * 256U + second : second * 256U + first;
    };
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        std::uint32_t character = unit(at);
        if (character >= 0xD800 && character < 0xE000) {
            const std::uint32_t low = at + 3 < bytes.size() ? unit(at + 2) : 0;
            const bool pair = character < 0xDC00 && low >= 0xDC00 && low < 0xE000;
            character = pair ? 0x10000 + ((character - 0xD800) << 10U) + (low - 0xDC00) : '?';
            at += pair ? 2U : 0U;
        }
        appendUtf8(text, character);
    }
    return text;
}

Outcome<std::string, ImportFault> textOfFile(std::string_view bytes) {
    constexpr std::string_view kHighFirst = "\xFE\xFF";
    constexpr std::string_view kLowFirst = "\xFF\xFE";
    std::string text;
    if (bytes.starts_with(kHighFirst) || bytes.starts_with(kLowFirst))
        text = fromUtf16(bytes.substr(2), bytes.starts_with(kHighFirst));
    else if (bytes.size() > 1 && bytes[1] == '\0' && bytes[0] != '\0')
        text = fromUtf16(bytes, false);
    else if (isUtf8(bytes))
        text = withoutByteOrderMark(bytes);
    else
        text = fromCodePage(bytes);
    if (text.find('\0') != std::string::npos)
        return because(aboutFile("This is no text file: tables of shots are read from CSV and text "
                                 "files."));
    return text;
}

} // namespace

Outcome<ShotFile, ImportFault> readShotFile(std::string_view bytes) {
    if (bytes.size() > kLongestShotFile)
        return because(aboutFile("The file is larger than 10 MB."));
    const auto text = textOfFile(bytes);
    if (!text)
        return because(text.why());
    ShotFile file{delimiterOf(*text), {}};
    std::size_t figureRows = 0;
    CsvReader reader(file.delimiter);
    reader.feed(*text);
    reader.finish();
    for (CsvRow row;;) {
        const auto read = reader.next(row);
        if (!read)
            return because(aboutLine(read.why().line, std::string(textOf(read.why().kind)) + "."));
        if (!*read)
            break;
        const bool empty = std::all_of(row.cells.begin(), row.cells.end(), [](const auto& cell) {
            return withoutBlanks(cell).empty();
        });
        if (empty || namesDelimiter(row))
            continue;
        if (row.cells.size() > kMostShotColumns) // spreadsheets may end a row with empty cells
            while (withoutBlanks(row.cells.back()).empty())
                row.cells.pop_back();
        if (row.cells.size() > kMostShotColumns)
            return because(aboutLine(row.line, "the file has more than 200 columns."));
        const bool figures = std::any_of(row.cells.begin(), row.cells.end(), [](const auto& cell) {
            return cell.find_first_of("0123456789") != std::string::npos;
        });
        if (figures && ++figureRows > kMostShotRows)
            return because(aboutLine(row.line, "the file has more than 10,000 rows."));
        file.rows.push_back(row);
    }
    if (file.rows.empty())
        return because(aboutFile("The file is empty."));
    return file;
}

} // namespace parabolt
