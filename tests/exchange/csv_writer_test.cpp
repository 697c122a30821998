#include "exchange/csv_writer.h"

#include <gtest/gtest.h>

namespace parabolt {
namespace {

TEST(CsvWriter, QuotesWhatNeedsItAndKeepsEachBitOfANumber) {
    CsvWriter csv;
    csv.field("Club").field("a \"7\", new").field("two\nlines").field("").endRow();
    csv.field(0.1).field(0.1F).field(-241.2345678901).field(1e300).empty().endRow();
    EXPECT_EQ(csv.text(), "Club,\"a \"\"7\"\", new\",\"two\nlines\",\r\n"
                          "0.1,0.1,-241.2345678901,1e+300,\r\n");
}

} // namespace
} // namespace parabolt
