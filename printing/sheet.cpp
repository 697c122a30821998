#include "printing/sheet.h"

#include "controls/units.h"
#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>

namespace parabolt {
namespace {

// Inches from the corner of the printable area; sizes in points.
constexpr double kSheetLeft = 0.2;
constexpr double kSheetTop = 0.2;
constexpr double kSheetRight = 11;
constexpr double kSheetBottom = 7.5;
constexpr double kSheetAcross = kSheetRight - kSheetLeft;
constexpr double kSheetGap = 0.12;
constexpr double kCellGap = 0.1;    ///< between columns at the usual size
constexpr double kLeastCharts = 2;  ///< height that the table leaves to them
constexpr double kLeastUpper = 2.6; ///< height of a chart above others
constexpr double kMostUpper = 3.6;
constexpr double kWidestText = 2.2;    ///< of a column of texts
constexpr double kNarrowestText = 0.5; ///< likewise

constexpr double kTitleSize = 16;
constexpr double kSheetTextSize = 9;
constexpr double kSmallestSize = 6;

// Each is a line of the text.
constexpr std::array<std::string SheetFields::*, 4> kFieldLines = {
    &SheetFields::player, &SheetFields::fitter, &SheetFields::date, &SheetFields::note};

/// Name and unit of a heading, in a line each; a heading without unit stands in the second.
std::pair<std::string, std::string> headingLines(const std::string& heading) {
    const std::size_t unit = heading.rfind(" [");
    if (unit == std::string::npos)
        return {{}, heading};
    return {heading.substr(0, unit), heading.substr(unit + 1)};
}

/// The table at one size of its text.
class SheetTable {
public:
    using Rows = std::vector<std::vector<std::string>>;

    SheetTable(Page& target, double Ratio, const Rows& rows)
        : target_(target),
          ratio_(Ratio),
          rows_(rows) {}

    /// Finds the size and the widths with which it fits, as far as that can be.
    void fit(double width, double height) {
        const auto tooWide = [&] { return this->width() > width; };
        const auto trySize = [&](double points) {
            setSize(points);
            if (tooWide())
                narrowTexts(kWidestText);
        };
        trySize(kSheetTextSize);
        while (points_ > kSmallestSize && (tooWide() || this->height() > height))
            trySize(points_ - 0.25);
        for (double widest = kWidestText; tooWide() && widest > kNarrowestText;) {
            widest -= 0.1;
            narrowTexts(widest);
        }
        if (tooWide()) { // rather tiny than cut off
            const double share = width / this->width();
            setSize(points_ * share);
            narrowTexts(kNarrowestText * share);
        }
    }
    double width() const {
        return std::accumulate(widths_.begin(), widths_.end(),
                               gap_ * (static_cast<double>(widths_.size()) - 1));
    }
    double height() const {
        return rows_.empty() ? 0 : line_ * (static_cast<double>(rows_.size()) + kHeadingLines - 1);
    }

    void write(double top) const {
        target_.FontSize = points_ * ratio_;
        double left = kSheetLeft;
        for (std::size_t column = 0; column < widths_.size(); ++column) {
            const double right = left + widths_[column];
            const bool numbers = holdsNumbers(column);
            const auto put = [&](double y, const std::string& whole) {
                const std::string text = elided(whole, widths_[column] + kRounding, measure());
                target_.CurrentX = numbers ? right - target_.TextWidth(text) : left;
                target_.CurrentY = y;
                target_.Print(text);
            };
            target_.FontBold = true;
            const auto [name, unit] = headingLines(rows_.front()[column]);
            put(top, name);
            put(top + line_, unit);
            target_.FontBold = false;
            double y = top + kHeadingLines * line_;
            for (std::size_t row = 1; row < rows_.size(); ++row, y += line_)
                put(y, rows_[row][column]);
            left = right + gap_;
        }
        const double rule = top + (kHeadingLines - 0.15) * line_;
        target_.Box({kSheetLeft, rule}, {kSheetRight, rule});
    }

private:
    static constexpr double kHeadingLines = 2.4;
    static constexpr double kRounding = 1e-6;

    void setSize(double points) {
        points_ = points;
        target_.FontSize = points * ratio_;
        line_ = target_.TextHeight("7");
        gap_ = kCellGap * points / kSheetTextSize;
        widths_.clear();
        for (std::size_t column = 0; !rows_.empty() && column < rows_.front().size(); ++column)
            widths_.push_back(widthOf(column));
    }
    void narrowTexts(double widest) {
        for (std::size_t column = 0; column < widths_.size(); ++column)
            if (!holdsNumbers(column))
                widths_[column] = std::min(widths_[column], widest);
    }
    std::function<double(std::string_view)> measure() const {
        return [this](std::string_view text) { return target_.TextWidth(text); };
    }

    double widthOf(std::size_t column) const {
        const auto [name, unit] = headingLines(rows_.front()[column]);
        target_.FontBold = true;
        double width = std::max(target_.TextWidth(name), target_.TextWidth(unit));
        target_.FontBold = false;
        for (std::size_t row = 1; row < rows_.size(); ++row)
            width = std::max(width, target_.TextWidth(rows_[row][column]));
        return width;
    }
    bool holdsNumbers(std::size_t column) const {
        return !headingLines(rows_.front()[column]).first.empty() ||
               std::all_of(rows_.begin() + 1, rows_.end(), [column](const auto& row) {
                   return row[column].empty() || parseNumber(row[column]);
               });
    }

    Page& target_;
    double ratio_;
    const Rows& rows_;
    double points_ = kSheetTextSize;
    double line_ = 0;
    double gap_ = 0;
    std::vector<double> widths_;
};

/// Draws a sheet from the top down.
class SheetComposer {
public:
    SheetComposer(Page& target, double Ratio, const SheetContent& content)
        : target_(target),
          ratio_(Ratio),
          content_(content),
          table_(target, Ratio, content.table) {}

    void compose() {
        target_.FontName = "Liberation Sans";
        target_.DrawWidth = 1;
        line(kTitleSize, true, content_.title);
        top_ += kSheetGap / 2;
        fields();
        const double remark = content_.remark.empty() ? 0 : heightOfLine() + kSheetGap;
        const double charts = content_.charts.empty() ? 0 : kLeastCharts;
        table_.fit(kSheetAcross, kSheetBottom - top_ - remark - charts);
        if (charts > 0)
            paintCharts(kSheetBottom - top_ - remark - table_.height() - kSheetGap);
        table_.write(top_);
        top_ += table_.height() + kSheetGap;
        if (remark > 0)
            line(kSheetTextSize, false, content_.remark);
    }

private:
    /// Writes a line, smaller where it would be too wide, and goes on below it.
    void line(double points, bool bold, const std::string& text) {
        target_.FontSize = points * ratio_;
        target_.FontBold = bold;
        const double width = target_.TextWidth(text);
        if (width > kSheetAcross)
            target_.FontSize *= kSheetAcross / width;
        target_.CurrentX = kSheetLeft;
        target_.CurrentY = top_;
        target_.Print(text);
        target_.FontBold = false;
        top_ = target_.CurrentY;
    }

    double heightOfLine() {
        target_.FontSize = kSheetTextSize * ratio_;
        return target_.TextHeight("7");
    }

    void fields() {
        std::string people;
        const auto fields = std::to_array<std::pair<const char*, std::string>>(
            {{"Player: ", content_.fields.player},
             {"Fitter: ", content_.fields.fitter},
             {"Date: ", content_.fields.date}});
        for (const auto& [name, text] : fields)
            if (!text.empty())
                people += (people.empty() ? "" : "     ") + (name + text);
        if (!people.empty())
            line(kSheetTextSize, false, people);
        if (!content_.fields.note.empty())
            line(kSheetTextSize, false, "Note: " + content_.fields.note);
        top_ += kSheetGap;
    }

    /// No higher than a chart with a line for each row of the table needs it.
    void paintCharts(double height) {
        const auto others = static_cast<double>(content_.charts.size()) - 1;
        const double lower = std::max(wanted(), kLeastCharts);
        const double upper = std::min(height - others * (lower + kSheetGap), kMostUpper);
        const bool stacked = others > 0 && upper >= kLeastUpper;
        Place size{kSheetAcross, upper};
        if (!stacked)
            size = {(kSheetAcross - others * kSheetGap) / (others + 1), std::min(height, lower)};
        Place corner{kSheetLeft, top_};
        for (const DrawChart& draw : content_.charts) {
            paintChart(draw, corner, size);
            top_ = corner.y + size.y;
            if (stacked)
                corner.y = top_ + kSheetGap;
            else
                corner.x += size.x + kSheetGap;
            if (stacked)
                size.y = lower;
        }
        top_ += kSheetGap;
    }

    void paintChart(const DrawChart& draw, Place corner, Place size) {
        ControlSet controls;
        PictureBox canvas(controls, "chart", kWhite, kBlack);
        canvas.setGeometry({0, 0, size.x * kTwipsPerInch, size.y * kTwipsPerInch});
        canvas.setTextMeasure([this](std::string_view text) {
            constexpr double kTwipsPerPoint = kTwipsPerInch / kPointsPerInch;
            target_.FontSize = kCanvasText / kTwipsPerPoint * ratio_;
            return target_.TextWidth(text) * kTwipsPerInch;
        });
        draw(canvas);
        target_.paintPicture(canvas, corner, size);
    }

    /// Height of a chart with a line for each row of the table.
    double wanted() const { return 0.8 + 0.2 * static_cast<double>(content_.table.size()); }

    Page& target_;
    double ratio_;
    const SheetContent& content_;
    SheetTable table_;
    double top_ = kSheetTop; ///< of what isn't used yet
};

} // namespace

std::string fieldsText(const SheetFields& fields) {
    std::string text;
    for (const auto field : kFieldLines)
        text += fields.*field + '\n';
    return text;
}

SheetFields fieldsOf(std::string_view text) {
    SheetFields fields;
    for (const auto field : kFieldLines) {
        fields.*field = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min((fields.*field).size() + 1, text.size()));
    }
    return fields;
}

void composeSheet(Page& target, double Ratio, const SheetContent& content) {
    SheetComposer(target, Ratio, content).compose();
}

} // namespace parabolt
