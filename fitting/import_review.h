#pragma once

#include "files/preferences.h"
#include "measured/club_names.h"
#include "measured/shot_import.h"
#include "tables/table_source.h"

#include <set>

namespace parabolt {

/// The choices of columns that the user has made for files that no device knows, the newest first.
class ColumnMemory {
public:
    static constexpr int kMost = 8;

    explicit ColumnMemory(PreferencesStore& preferences) : preferences_(preferences) {}

    std::vector<ColumnChoice> choices() const;
    /// Remembers a choice, in place of one for the same headings. What the store refuses is lost
    /// without a word: the shots come in all the same.
    void remember(const ColumnChoice& choice);

private:
    PreferencesStore& preferences_;
};

/// A file on its way in: what it would bring, and what the user says to that. Nothing is taken yet.
class ImportReview : public TableSource {
public:
    /// Reads a file's bytes. The fault if it is no table of shots, or if it has no rows.
    static Outcome<ImportReview, ImportFault> open(std::string_view bytes,
                                                   std::span<const ColumnChoice> remembered);

    const ImportPreview& preview() const { return preview_; }
    /// The known device; null for a file whose columns the user has to choose, or chose.
    const Device* device() const { return device_; }
    /// The columns, where no device is known.
    const ColumnChoice& choice() const { return choice_; }
    /// Columns of such a file, each by its heading, or by its number and an example.
    std::vector<std::string> columnTitles() const;
    /// The cells of a column in the first rows below the headings, for whoever chooses.
    std::vector<std::string> examples(std::size_t column) const;
    /// The unit that such a column tells for a quantity, by its heading or below it; otherwise the
    /// program's own.
    MeasuredUnit likelyUnit(std::size_t column, Quantity quantity) const;
    /// What the user calls the device, and whether it computes its carry, where no device is known.
    void nameDevice(std::string name, bool computesCarry);
    /// Has another look at the file, by what its columns mean; those of which nothing is said mean
    /// nothing. Headings are those of the file; lines whose box is empty by the user keep it empty.
    void choose(ColumnChoice choice);
    /// False if there is nothing to take, or if two columns are said to mean the same.
    bool canBeTaken() const { return preview_.count() > 0 && !chosenTwice(); }
    /// "Recognised as SkyTrak: 41 of 44 rows will be taken."
    std::string summary() const;

    /// Texts of the clubs of the shots to be taken that tell no club of the set, each once.
    std::vector<std::string> unknownClubs(const ClubTables& tables,
                                          const ClubAnswers& answers) const;

    std::span<const TableColumn> columns() const override;
    std::size_t rowCount() const override { return preview_.rows.size(); }
    TableCell cell(std::size_t row, std::size_t column) const override;
    /// Sets the box of a row; a row with a reason keeps it empty.
    void tick(std::size_t row, std::size_t column, bool ticked) override;

private:
    ImportReview() = default;
    /// What two columns are said to mean, if so.
    std::optional<Quantity> chosenTwice() const;

    ShotFile file_;
    const Device* device_ = nullptr;
    ColumnChoice choice_;
    ColumnChoice remembered_; ///< the choice of last time; without columns if there was none
    std::vector<std::string> headings_; ///< none if no row has texts
    std::vector<CsvRow> examples_;      ///< the first rows below them
    std::set<std::size_t> unticked_;    ///< lines whose box the user has emptied
    ImportPreview preview_;
};

} // namespace parabolt
