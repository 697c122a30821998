#include "measured/measured_codec.h"
#include "measured/shot_import.h"

#include <cstdlib>

namespace {

using namespace parabolt;

void require(bool sound) {
    if (!sound)
        std::abort();
}

/// All rows of a text, as far as it is a table, that comes in pieces.
std::vector<CsvRow> rowsOf(std::string_view text, std::size_t piece) {
    CsvReader reader(delimiterOf(text));
    std::vector<CsvRow> rows;
    CsvRow row;
    const auto takeRows = [&] {
        for (auto read = reader.next(row); read && *read; read = reader.next(row))
            rows.push_back(row);
    };
    for (std::string_view rest = text; !rest.empty();) {
        reader.feed(rest.substr(0, piece));
        rest.remove_prefix(std::min(piece, rest.size()));
        takeRows();
    }
    reader.finish();
    takeRows();
    return rows;
}

void judge(const ImportPreview& preview) {
    MeasuredSession session;
    for (const ImportRow& row : preview.rows) {
        require(row.taken == row.reason.empty());
        require(!row.taken || whyNotFlown(row.shot).empty());
        if (row.taken)
            session.entries.push_back({row.shot, false, false});
    }
    const auto decoded = decodeMeasured(encodeMeasured(session));
    require(decoded && *decoded == session);
    if (!session.entries.empty())
        static_cast<void>(shotOf(session.entries.front().shot, Shot(), true));
}

} // namespace

// Whatever the bytes are, they are refused as a whole, or give rows of which all that are taken can
// be flown and kept; however they come, the rows are the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    require(rowsOf(bytes, bytes.size()) == rowsOf(bytes, 97));
    const std::string head = bytes.substr(0, 200); // single bytes take their time
    require(rowsOf(head, head.size()) == rowsOf(head, 1));
    if (const auto choice = choiceOf(bytes))
        require(choiceOf(choiceText(*choice)) == choice);
    if (const auto session = decodeMeasured(bytes))
        require(decodeMeasured(encodeMeasured(*session)) == session);
    const auto file = readShotFile(bytes);
    if (!file)
        return 0;
    if (const Device* device = recognise(*file))
        judge(previewOf(*file, *device));
    const ColumnChoice guess = guessedChoice(*file);
    require(choiceOf(choiceText(guess)) == guess);
    judge(previewOf(*file, guess));
    return 0;
}
