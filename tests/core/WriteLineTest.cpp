#include "core/WriteLine.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

TEST(WriteLine, WritesValuesAsDataFilesHoldThem) {
    EXPECT_EQ(WriteLine().text("More files ..").str(), R"("More files ..")");
    EXPECT_EQ(WriteLine().text("").number(-7).text("b").str(), R"("",-7,"b")");
    EXPECT_EQ(WriteLine().text(R"(the name "x", quoted)").str(), R"("the name "x", quoted")");
    EXPECT_EQ(WriteLine().text("first\r\nsecond\nthird\rfourth").str(), R"("first second third fourth")");
}

TEST(WriteLine, WritesDatesAsLiterals) {
    std::tm parts{};
    parts.tm_year = 2025 - 1900;
    parts.tm_mon = 11;
    parts.tm_mday = 3;
    parts.tm_hour = 7;
    parts.tm_min = 5;
    parts.tm_sec = 9;
    parts.tm_isdst = -1;
    const auto time = std::chrono::system_clock::from_time_t(std::mktime(&parts));
    EXPECT_EQ(WriteLine().dateTime(time).number(1).str(), "#2025-12-03 07:05:09#,1");
}

TEST(StripQuotes, RemovesEveryDoubleQuote) {
    EXPECT_EQ(StripQuotes(R"("a"b"")"), "ab");
}

} // namespace
