#include "report/form/DateRanges.h"
#include "report/form/SplitCSVData.h"
#include "report/form/Typing.h"

#include <gtest/gtest.h>

namespace {

using Fields = std::vector<std::string>;

TEST(SplitCSVData, CutsALineIntoFields) {
    struct Case {
        const char* name;
        std::string line, delimiter, encapsuler;
        Fields fields;
    };
    const Case cases[] = {
        {"two columns", "London,7000000", ",", "", {"London", "7000000"}},
        {"quotes go from everywhere", "\"Lon\"don\",\"7\"", ",", "\"", {"London", "7"}},
        {"a delimiter in quotes cuts all the same", "\"a,b\"", ",", "\"", {"a", "b"}},
        {"quotes stay where none were named", "\"a\"", ",", "", {"\"a\""}},
        {"empty fields at both ends", ",a,", ",", "", {"", "a", ""}},
        {"a longer delimiter", "a||b|c", "||", "", {"a", "b|c"}},
        {"a longer encapsuler", "<<a<<,<b", ",", "<<", {"a", "<b"}},
        {"no delimiter in the line", "alone", ";", "", {"alone"}},
        {"no delimiter at all", "a,b", "", "", {"a,b"}},
        {"an empty line", "", ",", "\"", {"as", "it", "was"}},
    };
    for (const Case& c : cases) {
        Fields fields{"as", "it", "was"};
        SplitCSVData(c.line, c.delimiter, c.encapsuler, fields);
        EXPECT_EQ(fields, c.fields) << c.name;
    }
}

TEST(Typing, InboundNumbersTakeDigitsAndLetters) {
    for (const char32_t allowed : {U'0', U'9', U'a', U'Z', char32_t{3}, char32_t{8}, char32_t{13}, char32_t{22}})
        EXPECT_TRUE(isInboundCharacter(allowed)) << static_cast<int>(allowed);
    for (const char32_t refused :
         {U' ', U'+', U'-', U'/', U':', U'@', U'[', U'`', U'{', U'é', char32_t{1}, char32_t{24}})
        EXPECT_FALSE(isInboundCharacter(refused)) << static_cast<int>(refused);
}

TEST(Typing, CompletesWithTheFirstRowThatBeginsSo) {
    const Fields rows{"", "Bristol", "bath", "Bath Spa", "Örebro"};
    EXPECT_EQ(rowBeginningWith(rows, "BA"), 2U);
    EXPECT_EQ(rowBeginningWith(rows, "b"), 1U);
    EXPECT_EQ(rowBeginningWith(rows, "bath s"), 3U);
    EXPECT_EQ(rowBeginningWith(rows, "ö"), 4U);
    EXPECT_EQ(rowBeginningWith(rows, "bathing"), std::nullopt);
    EXPECT_EQ(rowBeginningWith(rows, ""), std::nullopt) << "nothing was typed";
    EXPECT_TRUE(isRow(rows, "bath"));
    EXPECT_FALSE(isRow(rows, "BATH"));
    EXPECT_FALSE(isRow(rows, "bat"));
}

MultiMapParameters numberedRanges() {
    MultiMapParameters ranges;
    for (std::size_t i = 0; i < ranges.DTPicker1.size(); ++i)
        ranges.DTPicker1[i] = Date{static_cast<double>(i)};
    return ranges;
}

TEST(DateRanges, AColumnIsCopiedToAllMapsAndTheOthersStay) {
    for (int column = 0; column < pickersOfMap; ++column) {
        MultiMapParameters ranges = numberedRanges();
        ranges.OptPeriods = 0; // two maps are shown: the hidden ones take the value as well
        copyToAllMaps(ranges, column);
        for (int i = 0; i < mostMaps * pickersOfMap; ++i)
            EXPECT_EQ(ranges.DTPicker1[static_cast<std::size_t>(i)].days, i % pickersOfMap == column ? column : i) << i;
    }
}

TEST(DateRanges, ANewPeriodChangesDaysOnly) {
    MultiMapParameters ranges = numberedRanges();
    setDays(ranges, {Date{100}, Date{200}});
    for (int i = 0; i < mostMaps * pickersOfMap; ++i) {
        const double days = ranges.DTPicker1[static_cast<std::size_t>(i)].days;
        EXPECT_EQ(days, i % 4 == 0 ? 100 : i % 4 == 2 ? 200 : i) << i;
    }
}

} // namespace
