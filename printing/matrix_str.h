#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace parabolt {

/// A block of monospaced text that is written field by field, in any order, and taken as a whole.
/// Rows and columns count from 1; a column is one character of the code page, and a character that
/// the code page lacks becomes a "?". Texts go in and come out as UTF-8. The block grows as fields
/// need it.
class clsMatrixStr {
public:
    /// How a field lies to its column.
    enum Align : std::int32_t {
        Left = 0,    ///< the column is the first of the value
        Right = 1,   ///< the column is the last of the value
        Centred = 2, ///< the column is the middle one of the value
    };

    void Clear();

    /// A whole row with its trailing blanks; empty for a row above `MaxRows`.
    std::string GetField(std::int16_t vintRow) const;

    /// Writes a value over what stands in its columns. A value that doesn't fit to the left of its
    /// last column keeps its beginning and loses its end. Any other alignment than those above
    /// writes nothing; `MaxRows` rises in every case. Throws `std::overflow_error` for a last
    /// column beyond 16 bits and `std::out_of_range` for a row below 0.
    void Field(std::int32_t veumAlign, std::int16_t vintCol, std::int16_t vintRow,
               std::string_view vvntValue);

    /// The highest row in use; 0 when the block is empty.
    std::int16_t MaxRows() const { return static_cast<std::int16_t>(rows_.size() - 1); }

    /// All rows without their trailing blanks, each followed by a carriage return and line feed.
    std::string OutForm() const;

private:
    std::vector<std::string> rows_ = {{}}; ///< in the code page; element 0 stays empty
};

} // namespace parabolt
