#include "cli/batch_command.h"

#include "cli/ordered_work.h"
#include "measured/measured_flights.h"
#include "measured/shot_import.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace parabolt::cli {
namespace {

constexpr std::size_t kMostRows = 2048; ///< of a piece of work

std::string faultText(const CsvFault& fault) {
    return "line " + std::to_string(fault.line) +
           (fault.kind == CsvFault::Kind::QuoteNotClosed ? ": A quote is not closed."
                                                         : ": The row is too long.");
}

/// A table that comes in pieces. It waits for more only where a row needs it.
class TableStream {
public:
    explicit TableStream(std::istream& in) : in_(in), buffer_(std::size_t{64} << 10, '\0') {}

    /// The first row with content. What was read of the text until then stays in `head`.
    Outcome<std::optional<CsvRow>, CsvFault> headings(std::string& head) {
        do
            head += readPiece();
        while (head.find('\n') == std::string::npos && !ended_);
        const std::string_view text = withoutByteOrderMark(head);
        reader_ = CsvReader(delimiterOf(text));
        reader_.feed(text);
        if (ended_)
            reader_.finish();
        CsvRow row;
        while (true) {
            const auto found = reader_.next(row);
            if (!found)
                return because(found.why());
            if (!*found && ended_)
                return std::optional<CsvRow>();
            if (!*found)
                head += feed();
            else if (!isEmpty(row) && !row.cells.front().starts_with("sep="))
                return std::optional(row);
        }
    }

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
    static bool isEmpty(const CsvRow& row) {
        return std::all_of(row.cells.begin(), row.cells.end(),
                           [](const std::string& cell) { return cell.empty(); });
    }

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
            return console_.complain(faultText(headings.why()));
        if (input_.stream().bad())
            return unreadable();
        if (!*headings)
            return console_.complain("There is no table: the input is empty.");
        if (const auto columns = BatchColumns::of(**headings))
            return flyTable(table, *columns);
        return flyMonitorFile(head);
    }

private:
    std::span<const Column> columns() const { return paths_ ? batchPathColumns() : batchColumns(); }

    ExitStatus unreadable() const {
        return console_.complain(options_.file + ": it can't be read to its end.",
                                 ExitStatus::FileFailed);
    }

    BatchText flyShots(std::span<const BatchShot> shots, const RowWriter& writer,
                       const std::stop_token& stop) const {
        return options_.path ? flyBatchPaths(shots, format_, writer, stop)
                             : flyBatch(shots, writer, stop);
    }

    ExitStatus flyTable(TableStream& table, const BatchColumns& columns) {
        for (const std::string& heading : columns.unknown())
            console_.err << "The column \"" << heading << "\" is not read.\n";
        RowStream out(console_, format_, this->columns());
        OrderedWork work(console_, out);
        std::vector<CsvRow> rows;
        bool writable = true;
        const auto submit = [&] {
            if (rows.empty())
                return;
            writable = work.add([&, rows = std::exchange(rows, {})](const std::stop_token& stop) {
                std::vector<BatchShot> shots;
                shots.reserve(rows.size());
                for (const CsvRow& row : rows)
                    shots.push_back(columns.shotOf(row, base_));
                return flyShots(shots, out.writer(), stop);
            });
        };
        Outcome<bool, CsvFault> more{true};
        for (CsvRow row; writable && (more = table.next(row, submit)) && *more;) {
            rows.push_back(std::exchange(row, {}));
            if (rows.size() == kMostRows)
                submit();
        }
        submit();
        const std::size_t failed = work.finish();
        out.end();
        if (!more)
            return console_.finish(console_.complain(faultText(more.why())));
        if (input_.stream().bad())
            return unreadable();
        return console_.finish(failed > 0 ? ExitStatus::SomeFailed : ExitStatus::Done);
    }

    /// The file as a whole; what its preview would leave out is told and left out.
    ExitStatus flyMonitorFile(const std::string& head) {
        const auto rest =
            input_.readAll(kLongestShotFile - std::min(kLongestShotFile, head.size()));
        if (!rest)
            return console_.complain(rest.why());
        const auto preview = importShots(head + *rest);
        if (!preview)
            return console_.complain(preview.why().message);
        const auto conditions = base_.shot();
        std::vector<BatchShot> shots;
        for (const ImportRow& row : preview->rows)
            if (row.reason.empty())
                shots.push_back({row.line, row.shot.club, shotOf(row.shot, *conditions, false)});
            else
                console_.err << "line " << row.line << " is left out: " << row.reason << '\n';
        RowStream out(console_, format_, columns());
        const BatchText text = flyShots(shots, out.writer(), {});
        console_.err << text.complaints;
        out.rows(text.rows);
        out.end();
        return console_.finish(text.failed > 0 ? ExitStatus::SomeFailed : ExitStatus::Done);
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
        return console.complain(clubs.why().message, clubs.why().status);
    const auto base = requestOf(options.shot, *clubs);
    if (!base)
        return console.complain(base.why().message, base.why().status);
    if (const auto shot = base->shot(); !shot)
        return console.complain(shot.why());
    auto input = Input::open(options.file, console);
    if (!input)
        return console.complain(input.why(), ExitStatus::FileFailed);
    return Batch(options, *base, *input, console).run();
}

} // namespace parabolt::cli
