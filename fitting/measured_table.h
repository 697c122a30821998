#pragma once

#include "fitting/comparison.h"
#include "tables/table_source.h"

namespace parabolt {

/// The measured shots, each with what the device says of it, what the model computes, and what lies
/// between.
class MeasuredTable : public TableSource {
public:
    MeasuredTable(Fitting& fitting, const Comparison& comparison);

    /// The session or the flights are others: headings, and what the shots are told by.
    void refresh();

    std::span<const TableColumn> columns() const override { return columns_; }
    std::size_t rowCount() const override { return fitting_.session().entries.size(); }
    TableCell cell(std::size_t row, std::size_t column) const override;
    /// Checks a shot, or leaves it out.
    void tick(std::size_t row, std::size_t column, bool ticked) override;

    /// Leaves shots out, or takes them in again if all of them are out.
    void strike(std::span<const std::size_t> rows);
    void check(std::span<const std::size_t> rows, bool checked);

private:
    using Tell = std::function<TableCell(const MeasuredEntry&, std::size_t row)>;
    void add(TableColumn column, Tell tell);
    void addLaunch();
    void addFigures();
    void addAir();
    void change(std::span<const std::size_t> rows, bool MeasuredEntry::*member, bool value);
    std::optional<double> modelFigure(const ComparedFigure& figure, std::size_t row) const;

    Fitting& fitting_;
    const Comparison& comparison_;
    std::vector<TableColumn> columns_;
    std::vector<Tell> tells_; ///< what stands in each column
};

/// The shots by club, in short.
class ClubsTable : public TableSource {
public:
    ClubsTable(const Fitting& fitting, const Comparison& comparison);

    void refresh();
    std::span<const ClubStatistics> clubs() const { return clubs_; }

    std::span<const TableColumn> columns() const override { return columns_; }
    std::size_t rowCount() const override { return clubs_.size(); }
    TableCell cell(std::size_t row, std::size_t column) const override;

private:
    const Fitting& fitting_;
    const Comparison& comparison_;
    std::vector<ClubStatistics> clubs_;
    std::vector<TableColumn> columns_;
};

} // namespace parabolt
