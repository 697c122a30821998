#pragma once

#include "fitting/carry_chart.h"
#include "fitting/fitting.h"
#include "tables/table_source.h"

namespace parabolt {

/// The bag: all clubs of the set, those that the player owns with their flights and gaps, and the
/// means of the measured shots beside them.
class BagTable : public TableSource {
public:
    /// The club set must outlive the table.
    BagTable(Fitting& fitting, const ClubTables& tables);

    /// Flies the clubs owned, in the weather and with the ball of the conditions.
    void fly(const Shot& conditions);
    bool isFlown() const { return flown_.has_value(); }
    /// True if the flights are those that flying now would give.
    bool isCurrent(const Shot& conditions) const;
    /// The session has changed: the gaps by its limits, the means of its shots.
    void refresh();

    /// The clubs for a chart, a line for each row; one without figures for a club that isn't flown
    /// and that isn't owned or wasn't measured.
    std::vector<CarryLine> carryLines() const;
    /// Gaps between rows: of the computed carries, or, before the bag was flown, of the measured.
    std::span<const BagGap> gaps() const { return isFlown() ? gaps_ : measuredGaps_; }
    /// What the gaps say, in words, why clubs have no flight, and which measured clubs are none of
    /// the bag.
    std::string summary() const;

    std::span<const TableColumn> columns() const override;
    std::size_t rowCount() const override { return fitting_.session().bag.clubs.size(); }
    TableCell cell(std::size_t row, std::size_t column) const override;
    /// A club is owned, or isn't.
    void tick(std::size_t row, std::size_t column, bool ticked) override;
    /// A club gets a name; an empty one gives back the usual name.
    void enter(std::size_t row, std::size_t column, const std::string& text) override;

private:
    /// What decides the flights.
    struct Flown {
        BagChoice bag; ///< without names and limits
        ClubTables tables;
        Shot conditions;
    };
    static BagChoice decisive(BagChoice bag);
    const BagFlight* flightOf(std::size_t row) const;
    const std::string& nameOf(std::size_t row) const {
        return fitting_.session().bag.clubs[row].name;
    }
    std::string verdictOn(std::span<const BagGap> gaps) const;
    std::string problems() const;

    Fitting& fitting_;
    const ClubTables& tables_;
    std::vector<BagFlight> flights_;
    MeasuredBag measured_;
    std::vector<BagGap> gaps_;         ///< of the computed carries, between rows
    std::vector<BagGap> measuredGaps_; ///< of the means that were measured with the clubs owned
    std::optional<Flown> flown_;
};

} // namespace parabolt
