#include "printing/sheet.h"

#include "controls/units.h"
#include "numbers/text_number.h"

#include <algorithm>

namespace parabolt {
namespace {

// Inches from the corner of the printable area; sizes in points.
constexpr double kLeft = 0.2;
constexpr double kTop = 0.2;
constexpr double kRight = 11;
constexpr double kBottom = 7.5;
constexpr double kAcross = kRight - kLeft;
constexpr double kGap = 0.12;
constexpr double kCellGap = 0.1;
constexpr double kLeastPictures = 2; ///< height that the table leaves to them
constexpr double kLeastChart = 1.6;  ///< height of a chart below the plot
constexpr double kPlotShare = 0.62;  ///< of the width, beside charts

constexpr double kTitleSize = 16;
constexpr double kFieldSize = 9;
constexpr double kTableSize = 9;
constexpr double kSmallestSize = 4;

/// A heading above its unit.
std::pair<std::string, std::string> twoLines(const std::string& heading) {
    const std::size_t unit = heading.rfind(" [");
    if (unit == std::string::npos)
        return {{}, heading};
    return {heading.substr(0, unit), heading.substr(unit + 1)};
}

/// The table at one size of its text.
class SheetTable {
public:
    SheetTable(Page& target, double Ratio, const std::vector<std::vector<std::string>>& rows)
        : target_(target),
          ratio_(Ratio),
          rows_(rows) {}

    void setSize(double points) {
        target_.FontSize = points * ratio_;
        line_ = target_.TextHeight("7");
        widths_.clear();
        for (std::size_t column = 0; !rows_.empty() && column < rows_.front().size(); ++column)
            widths_.push_back(widthOf(column) + kCellGap * points / kTableSize);
    }
    double width() const {
        double sum = 0;
        for (const double width : widths_)
            sum += width;
        return sum;
    }
    /// With a line of headings' units and half a line below the headings.
    double height() const {
        return rows_.empty() ? 0 : line_ * (static_cast<double>(rows_.size()) + 1.5);
    }

    void write(double top) {
        double left = kLeft;
        for (std::size_t column = 0; column < widths_.size(); ++column) {
            const bool right = holdsNumbers(column);
            const double edge = left + widths_[column] - (right ? widths_[column] - used(column) : 0);
            const auto put = [&](double y, const std::string& text) {
                target_.CurrentX = right ? edge - target_.TextWidth(text) : left;
                target_.CurrentY = y;
                target_.Print(text);
            };
            target_.FontBold = true;
            const auto [name, unit] = twoLines(rows_.front()[column]);
            put(top, name);
            put(top + line_, unit);
            target_.FontBold = false;
            double y = top + 2.5 * line_;
            for (std::size_t row = 1; row < rows_.size(); ++row, y += line_)
                put(y, rows_[row][column]);
            left += widths_[column];
        }
        target_.Box({kLeft, top + 2.2 * line_}, {kLeft + width(), top + 2.2 * line_});
    }

private:
    double used(std::size_t column) const {
        return widths_[column] - kCellGap * line_ / lineAtTableSize();
    }
    double lineAtTableSize() const {
        const double size = target_.FontSize;
        target_.FontSize = kTableSize * ratio_;
        const double line = target_.TextHeight("7");
        target_.FontSize = size;
        return line;
    }
    double widthOf(std::size_t column) const {
        const auto [name, unit] = twoLines(rows_.front()[column]);
        target_.FontBold = true;
        double width = std::max(target_.TextWidth(name), target_.TextWidth(unit));
        target_.FontBold = false;
        for (std::size_t row = 1; row < rows_.size(); ++row)
            width = std::max(width, target_.TextWidth(rows_[row][column]));
        return width;
    }
    bool holdsNumbers(std::size_t column) const {
        return std::all_of(rows_.begin() + 1, rows_.end(), [column](const auto& row) {
            return row[column].empty() || parseNumber(row[column]);
        });
    }

    Page& target_;
    double ratio_;
    const std::vector<std::vector<std::string>>& rows_;
    double line_ = 0;
    std::vector<double> widths_; ///< with the gap to the next
};

} // namespace
} // namespace parabolt
