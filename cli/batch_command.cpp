#include "cli/batch_command.h"

#include "cli/monitor_file.h"
#include "cli/ordered_work.h"
#include "measured/measured_flights.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace parabolt::cli {
namespace {

// Of a piece of work: what it holds in memory, with its results, is to be small.
constexpr std::size_t kMostShots = 2048;
constexpr std::size_t kMostPaths = 64;
constexpr std::size_t kMostBytes = std::size_t{1} << 20;

std::string faultText(const CsvFault& fault) {
    return lineText(fault.line, textOf(fault.kind)) + ".";
}

/// Headings in a line: "a", "b" and more.
std::string quoted(std::span<const std::string> headings, std::size_t most) {
    std::string text;
    for (const std::string& heading : headings.first(std::min(most, headings.size()))) {
        text += text.empty() ? "\"" : ", \"";
        text += shownCell(std::string_view(heading), {}) + "\"";
    }
    return headings.size() > most ? text + " and more" : text;
}

/// What a row takes in memory, about.
std::size_t bytesOf(const CsvRow& row) {
    std::size_t bytes = row.cells.size() * sizeof(std::string);
    for (const std::string& cell : row.cells)
        bytes += cell.size();
    return bytes;
}

/// A table that comes in pieces. It waits for more only where a row needs it.
class TableStream {
public:
    explicit TableStream(std::istream& in) : in_(in), buffer_(std::size_t{64} << 10, '\0') {}

    /// The first row with content. What was read of the text until then stays in `head`.
    Outcome<std::optional<CsvRow>, std::string> headings(std::string& head) {
        do
            head += readPiece();
        while (head.find_first_of("\r\n") == std::string::npos && !ended_ &&
               head.size() <= CsvReader::kLongestRow);
        const std::string_view text = withoutByteOrderMark(head);
        delimiter_ = delimiterOf(text);
        reader_ = CsvReader(delimiter_);
        reader_.feed(text);
        if (ended_)
            reader_.finish();
        CsvRow row;
        while (true) {
            const auto found = reader_.next(row);
            if (!found)
                return because(faultText(found.why()));
            if (!*found && ended_)
                return std::optional<CsvRow>();
            if (*found && !isEmpty(row) && !namesDelimiter(row))
                return std::optional(row);
            if (!*found && head.size() > CsvReader::kLongestRow)
                return because(std::string("There are no headings in the first 1 MB."));
            if (!*found)
                head += feed();
        }
    }
    /// What parts the cells.
    char delimiter() const { return delimiter_; }

    /// Takes the next row; false at the end. Calls `beforeWait` where none has arrived yet.
    template <class BeforeWait>
    Outcome<bool, CsvFault> next(CsvRow& row, BeforeWait beforeWait) {
        while (true) {
            const auto found = reader_.next(row);
            if (!found || (*found && !isEmpty(row)))
                return found;
            if (*found)
                continue;
            if (ended_)
                return false;
            if (in_.rdbuf()->in_avail() <= 0)
                beforeWait();
            feed();
        }
    }

private:
    std::string_view feed() {
        const std::string_view piece = readPiece();
        reader_.feed(piece);
        if (ended_)
            reader_.finish();
        return piece;
    }

    std::string_view readPiece() {
        std::streamsize count = 0;
        if (in_.peek() != std::istream::traits_type::eof()) {
            count = std::clamp<std::streamsize>(in_.rdbuf()->in_avail(), 1,
                                                static_cast<std::streamsize>(buffer_.size()));
            in_.read(buffer_.data(), count);
        }
        ended_ = count == 0;
        return std::string_view(buffer_).substr(0, static_cast<std::size_t>(count));
    }

    std::istream& in_;
    std::string buffer_;
    CsvReader reader_;
    char delimiter_ = ',';
    bool ended_ = false;
};

/// One run of the command, once its options make sense.
class Batch {
public:
    Batch(const BatchOptions& options, const ShotRequest& base, Input& input,
          const Console& console)
        : options_(options),
          base_(base),
          input_(input),
          console_(console),
          format_(options.format.value_or(console.usualFormat())),
          paths_(options.path && format_ != Format::Json) {}

    ExitStatus run() {
        TableStream table(input_.stream());
        std::string head;
        const auto headings = table.headings(head);
        if (!headings)
            return console_.complain(input_.name() + ": " + headings.why());
        if (input_.stream().bad())
            return console_.complain(input_.unreadable());
        if (!*headings)
            return console_.complain(input_.name() + ": There is no table: it is empty.");
        const BatchColumns columns(**headings, table.delimiter());
        if (!columns.isTable())
            return flyMonitorFile(std::move(head), columns);
        if (!columns.repeated().empty())
            return console_.complain(input_.name() + ": The heading \"" + columns.repeated() +
                                     "\" says again what another one says.");
        return flyTable(table, columns);
    }

private:
    std::span<const Column> columns() const {
        return paths_ ? batchPathColumns() : batchColumns(format_);
    }
    std::size_t mostShots() const { return options_.path ? kMostPaths : kMostShots; }

    BatchText flyShots(std::span<const BatchShot> shots, const RowWriter& writer,
                       const std::stop_token& stop) const {
        return options_.path ? flyBatchPaths(shots, writer, stop) : flyBatch(shots, writer, stop);
    }

    ExitStatus flyTable(TableStream& table, const BatchColumns& columns) {
        if (!columns.unknown().empty())
            console_.err << input_.name() << ": not read are the columns "
                         << quoted(columns.unknown(), columns.unknown().size()) << ".\n";
        RowStream out(console_, format_, this->columns());
        OrderedWork work(console_, out);
        std::vector<CsvRow> rows;
        std::size_t bytes = 0;
        bool writable = true;
        const auto submit = [&] {
            if (rows.empty())
                return;
            bytes = 0;
            writable = work.add([&, rows = std::exchange(rows, {})](const std::stop_token& stop) {
                std::vector<BatchShot> shots;
                shots.reserve(rows.size());
                std::string leftOut;
                for (const CsvRow& row : rows)
                    if (columns.isOut(row))
                        leftOut += leftOutText(row.line, kMarkedOut);
                    else
                        shots.push_back(columns.shotOf(row, base_));
                BatchText text = flyShots(shots, out.writer(), stop);
                text.complaints.insert(0, leftOut);
                return text;
            });
        };
        Outcome<bool, CsvFault> more{true};
        for (CsvRow row; writable && (more = table.next(row, submit)) && *more;) {
            bytes += bytesOf(row);
            rows.push_back(std::exchange(row, {}));
            if (rows.size() == mostShots() || bytes > kMostBytes)
                submit();
        }
        submit();
        const std::size_t failed = work.finish();
        out.end();
        if (!more)
            return console_.finish(console_.complain(input_.name() + ": " + faultText(more.why())));
        if (input_.stream().bad())
            return console_.finish(console_.complain(input_.unreadable()));
        return console_.finish(failed > 0 ? ExitStatus::SomeFailed : ExitStatus::Done);
    }

    /// The file as a whole; what its preview would leave out is told and left out.
    ExitStatus flyMonitorFile(std::string head, const BatchColumns& columns) {
        const auto content = input_.readAll(kLongestShotFile, std::move(head));
        if (!content)
            return console_.complain(content.why());
        const auto file = importMonitorFile(*content, input_.name(), console_);
        if (!file)
            return console_.complain(file.why() + unknownHeadings(*content, columns));
        if (const std::string given = launchOptions(options_.shot); !given.empty())
            return console_.complain(input_.name() +
                                     ": It is a launch monitor's file, which tells "
                                     "the launches itself. These options don't go "
                                     "with it: " +
                                     given + ".");
        const auto conditions = base_.shot();
        RowStream out(console_, format_, this->columns());
        OrderedWork work(console_, out);
        std::vector<MeasuredShot> shots = file->taken();
        for (std::size_t first = 0; first < shots.size(); first += mostShots()) {
            const auto piece = std::span<const MeasuredShot>(shots).subspan(
                first, std::min(mostShots(), shots.size() - first));
            const bool writable = work.add([&, piece](const std::stop_token& stop) {
                std::vector<BatchShot> flights;
                for (const MeasuredShot& shot : piece)
                    flights.push_back(
                        {shot.line, shot.club, shotOf(shot, *conditions, options_.ownAir)});
                return flyShots(flights, out.writer(), stop);
            });
            if (!writable)
                break;
        }
        const std::size_t failed = work.finish();
        out.end();
        return console_.finish(failed > 0 ? ExitStatus::SomeFailed : ExitStatus::Done);
    }

    /// Behind the message that nobody knows a file: what a table would have to name otherwise.
    static std::string unknownHeadings(std::string_view content, const BatchColumns& columns) {
        const auto file = readShotFile(content);
        if (!file || recognise(*file) != nullptr || columns.unknown().empty())
            return {};
        constexpr std::size_t kMostNamed = 8;
        return " As a table of shots it would have headings such as \"Ball speed [mph]\" or "
               "ball_speed; not known are " +
               quoted(columns.unknown(), kMostNamed) + ".";
    }

    const BatchOptions& options_;
    const ShotRequest& base_;
    Input& input_;
    const Console& console_;
    Format format_;
    bool paths_; ///< rows of points, in the place of figures
};

} // namespace

ExitStatus batchCommand(const BatchOptions& options, const Console& console) {
    const auto clubs = clubsFor(options.shot, console);
    if (!clubs)
        return console.complain(clubs.why());
    const auto base = requestOf(options.shot, *clubs);
    if (!base)
        return console.complain(base.why());
    if (const auto shot = base->shot(); !shot)
        return console.complain(shot.why());
    auto input = Input::open(options.file, console);
    if (!input)
        return console.complain(input.why());
    return Batch(options, *base, *input, console).run();
}

} // namespace parabolt::cli
