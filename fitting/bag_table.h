#pragma once

#include "fitting/fitting.h"
#include "tables/table_source.h"

namespace parabolt {

/// The bag: all clubs of the set, those that the player owns with their flights and gaps, and the
/// means of the measured shots beside them.
class BagTable : public TableSource {
public:
    explicit BagTable(Fitting& fitting) : fitting_(fitting) {}

    /// Flies the clubs owned, in the weather and with the ball of the conditions.
    void fly(const ClubTables& tables, const Shot& conditions);
    bool isFlown() const { return flown_.has_value(); }
    /// True if the flights are those that flying now would give.
    bool isCurrent(const ClubTables& tables, const Shot& conditions) const;
    /// The session has changed: the gaps by its limits, the means of its shots beside the flights.
    void refresh();

    std::span<const BagFlight> flights() const { return flights_; }
    std::span<const BagGap> gaps() const { return gaps_; }
    const std::string& nameOf(const BagFlight& flight) const;
    /// What the gaps say, in words, and which measured clubs are none of the bag.
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
    const BagGap* gapBehind(const BagFlight& flight) const;

    Fitting& fitting_;
    std::vector<BagFlight> flights_;
    std::vector<BagGap> gaps_;
    std::vector<std::string> strangers_; ///< measured clubs that are none of the bag
    std::optional<Flown> flown_;
};

} // namespace parabolt
