#pragma once

#include "cli/row_writer.h"
#include "cli/shot_inputs.h"
#include "exchange/csv_reader.h"

#include <stop_token>

namespace parabolt::cli {

/// A shot of a batch, or why the row is none.
struct BatchShot {
    std::size_t line = 0;
    std::string club; ///< as it stands in the row
    Outcome<Shot, std::string> shot{Shot()};
};

/// What the columns of a table of shots mean, by its headings.
class BatchColumns {
public:
    /// Cells with decimal commas are read where another delimiter parts them.
    BatchColumns(const CsvRow& headings, char delimiter);

    /// False if the table is not one of ours: those have our ball speed among their headings, or
    /// only headings of ours.
    bool isTable() const { return isTable_; }
    /// Headings that mean nothing here.
    const std::vector<std::string>& unknown() const { return unknown_; }
    /// A heading that stands for what another one has told; empty if there is none.
    const std::string& repeated() const { return repeated_; }

    /// True for a row that counts nowhere: in the window of measured shots it was left out.
    bool isOut(const CsvRow& row) const;
    /// The shot of a row: `base` with what its cells say. Empty cells say nothing. Beside a ball
    /// speed or a spin, the club is only a name. A row of results is flown by its launch: its mode
    /// says that the swing beside it is told, not asked for. One that had no result has none again,
    /// unless it has got a launch.
    BatchShot shotOf(const CsvRow& row, const ShotRequest& base) const;

private:
    enum Meaning : std::size_t { Club = kShotInputs, Ball, Mode, Problem, Out, Ignored };
    std::size_t meaningOf(std::string_view heading) const;
    std::string_view cellOf(const CsvRow& row, std::size_t meaning) const;
    Outcome<void, std::string> take(ShotRequest& request, const CsvRow& row) const;

    char delimiter_;
    bool isTable_ = false;
    std::vector<std::size_t> meanings_; ///< of each column: an input's place, or a `Meaning`
    std::vector<std::string> unknown_;
    std::string repeated_;
};

/// The columns of the results of a batch: what `BatchColumns` reads, and what came of it. People
/// see them without the weather.
std::span<const Column> batchColumns(Format format);
/// The columns of the paths of a batch.
std::span<const Column> batchPathColumns();

/// The results of some shots as text.
struct BatchText {
    std::string rows;
    std::string complaints; ///< a line for each shot without a result
    std::size_t count = 0;
    std::size_t failed = 0;
};

/// Flies shots on the caller's thread, and writes a row for each in its order. Once a stop is
/// requested it returns soon, with rows that mean nothing.
BatchText flyBatch(std::span<const BatchShot> shots, const RowWriter& writer,
                   const std::stop_token& stop);
/// The same with the points of each path; in JSON, both.
BatchText flyBatchPaths(std::span<const BatchShot> shots, const RowWriter& writer,
                        const std::stop_token& stop);

} // namespace parabolt::cli
