#include "sample/geography/EmbeddedCsv.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace sample;

namespace {

std::string complaint(const std::vector<std::string_view>& lines) {
    try {
        for (const CsvRecord& record : readCsv({"shops.csv", lines}, "Name,Size"))
            (void)record.number(1);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(EmbeddedCsv, ReadsRecordsBelowTheHeader) {
    const std::vector<std::string_view> lines{"# a comment", "Name,Size", "", "Plain,1.5", "\"a, \"\"b\"\"\",-2"};
    const std::vector<CsvRecord> records = readCsv({"shops.csv", lines}, "Name,Size");
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].fields[0], "Plain");
    EXPECT_EQ(records[0].number(1), 1.5);
    EXPECT_EQ(records[1].fields[0], "a, \"b\"");
    EXPECT_EQ(records[1].lineNumber, 5);
}

TEST(EmbeddedCsv, NamesFileAndLineOfAFault) {
    EXPECT_EQ(complaint({"Name,Height"}), "shops.csv line 1: the header is not Name,Size");
    EXPECT_EQ(complaint({"Name,Size", "# x", "a,1,2"}), "shops.csv line 3: has 3 fields, not 2");
    EXPECT_EQ(complaint({"Name,Size", "a,1x"}), "shops.csv line 2: \"1x\" is not a number");
    EXPECT_EQ(complaint({"Name,Size", "a,"}), "shops.csv line 2: \"\" is not a number");
    EXPECT_EQ(complaint({"Name,Size", "a,1"}), "");
}
