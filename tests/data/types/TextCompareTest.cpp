#include "core/RuntimeError.h"
#include "data/types/Value.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(TextOrder, IgnoresCaseAndTrailingBlanksOnly) {
    EXPECT_TRUE(equalText("Mobile", "MOBILE  "));
    EXPECT_TRUE(equalText("", "   "));
    EXPECT_TRUE(equalText("Caf\xC3\xA9", "CAF\xC3\x89"));
    EXPECT_FALSE(equalText(" Mobile", "Mobile"));
    EXPECT_LT(compareText("AB10", "AB2"), 0);
    EXPECT_GT(compareText("AB", "A"), 0);
    EXPECT_LT(compareText("Z", "\xC3\x80"), 0);
}

TEST(TextOrder, FoldedTextsAreEqualExactlyWhereTheOrderSaysSo) {
    std::mt19937 random(7);
    const std::string alphabet = "aAbB \xC3\xA9\xC3\x89\xFF.";
    const auto word = [&] {
        std::string text;
        for (auto length = random() % 5; length > 0; --length)
            text += alphabet[random() % alphabet.size()];
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::string a = word();
        const std::string b = word();
        ASSERT_EQ(compareText(a, b) == 0, foldText(a) == foldText(b)) << "'" << a << "' and '" << b << "'";
        ASSERT_EQ(compareText(a, b) < 0, compareText(b, a) > 0) << "'" << a << "' and '" << b << "'";
    }
}

TEST(Values, NumbersAreWrittenInTheirShortestText) {
    EXPECT_EQ(shortestText(0.1), "0.1");
    EXPECT_EQ(shortestText(2.9), "2.9");
    EXPECT_EQ(shortestText(72000), "72000");
    EXPECT_EQ(shortestText(-0.0), "0");
    EXPECT_EQ(shortestText(0.01625), "0.01625");
    EXPECT_EQ(shortestText(1e20), "1E+20");
}

TEST(Values, ConversionsRefuseWhatIsNoNumber) {
    EXPECT_EQ(Value(" 12.5 ").asDouble(), 12.5);
    EXPECT_EQ(Value(2.5).asInteger(), 2) << "halves go to the even neighbour";
    EXPECT_EQ(Value(3.5).asInteger(), 4);
    EXPECT_EQ(Value(true).asDouble(), -1.0);
    EXPECT_THROW(Value("12a").asDouble(), RuntimeError);
    EXPECT_THROW(Value("nan").asDouble(), RuntimeError);
    EXPECT_THROW(Value().asDouble(), RuntimeError);
    EXPECT_THROW(Value(3e9).asLong(), RuntimeError);
    EXPECT_EQ(Money::fromDouble(0.00005).tenThousandths, 0);
    EXPECT_EQ(Money::fromDouble(1.23456).tenThousandths, 12346);
    EXPECT_THROW(Money::fromDouble(1e18), RuntimeError);
}

} // namespace
