#pragma once

#include "printing/page.h"

#include <cstdint>
#include <string_view>

namespace parabolt {

/// Writes on a page by line and column. The cell of this grid is the figure "7" in the fixed font
/// at a standard size; lines and columns count from 0 and may be fractions. Set the page, then the
/// standard size, then write. For pages laid out like a typewriter's; the report counts in inches
/// and does without it.
class clsDrvPrinter {
public:
    /// How `PrintText` lies to the current column.
    enum TextPlace : std::int32_t {
        Left = 0,    ///< starts there
        Centred = 1, ///< is centred on it
        Right = 2,   ///< ends there; so does any other value
    };

    Page* PntObject() const { return page_; }
    /// The page must outlive its use here. Nothing is measured until the standard size is set.
    void PntObject(Page& vNewValue);

    void LineNo(double pntLineNo) { curY_ = LineNotoCurY(pntLineNo); }
    void ColNo(double pntColNo) { curX_ = ColNotoCurX(pntColNo); }

    /// Whole lines and columns of the page; 0 as long as the cell isn't measured.
    std::int16_t MaxLines() const;
    std::int16_t MaxCols() const;

    double StdFontSize() const { return stdFontSize_; }
    /// Measures the cell at this size in points, and leaves the fixed font on the page at the size
    /// that it had.
    void StdFontSize(double vNewValue);

    /// Writes a text at the current line and column in the page's present font. Neither moves.
    void PrintText(std::int32_t Alignment, std::string_view strText) const;

    /// Size of the text to come, in points. The grid stays.
    double CurTextFontSize() const { return page_->FontSize; }
    void CurTextFontSize(double vNewValue) { page_->FontSize = vNewValue; }

    double LineNotoCurY(double pLineNo) const { return pLineNo * lineHeight_; }
    double ColNotoCurX(double pColNo) const { return pColNo * colWidth_; }

    std::int16_t DrawWidth() const { return drawWidth_; }
    /// Width of lines in pixels of a printer. A screen has three times coarser ones.
    void DrawWidth(std::int16_t vNewValue);

private:
    Page* page_ = nullptr;
    double stdFontSize_ = 0;
    double lineHeight_ = 0; ///< of a cell, in the page's units
    double colWidth_ = 0;
    double curX_ = 0;
    double curY_ = 0;
    std::int16_t drawWidth_ = 0;
};

} // namespace parabolt
