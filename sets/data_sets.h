#pragma once

#include "shots/run_book.h"
#include "tables/table_source.h"

#include <functional>

namespace parabolt {

/// The data sets of a book as a table, a row for each: what they are called, what was flown, what
/// came of it, and how it differs from the base set. Ticks, names and the base stay with the book.
class DataSets : public TableSource {
public:
    /// The book must outlive it.
    explicit DataSets(RunBook& book) : book_(book) {}

    std::span<const TableColumn> columns() const override;
    std::size_t rowCount() const override { return static_cast<std::size_t>(book_.count()); }
    TableCell cell(std::size_t row, std::size_t column) const override;
    void tick(std::size_t row, std::size_t column, bool ticked) override;
    void enter(std::size_t row, std::size_t column, const std::string& text) override;

    void tickRows(std::span<const std::size_t> rows, bool ticked);
    void tickAll();

    /// What a printed page shows: the ticked rows, with name, figures and conditions.
    TableExtract ticked() const;

    /// Set by the view: other data sets are ticked now.
    std::function<void()> onTicks;

private:
    void setTick(std::size_t row, bool ticked);

    RunBook& book_;
};

} // namespace parabolt
