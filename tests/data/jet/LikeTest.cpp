#include "data/jet/Like.h"

#include <gtest/gtest.h>

TEST(Like, MatchesPatternsWithoutCase) {
    const struct {
        const char* text;
        const char* pattern;
        bool matches;
    } cases[] = {
        {"London", "london", true},
        {"London ", "LONDON", true},
        {"London ", "LONDO?", false},
        {"London", "l*", true},
        {"London", "*ON", true},
        {"London", "*ndo*", true},
        {"London", "*x*", false},
        {"", "*", true},
        {"", "?", false},
        {"", "", true},
        {"a", "**", true},
        {"a*b", "a[*]b", true},
        {"axb", "a[*]b", false},
        {"a1", "a#", true},
        {"ab", "a#", false},
        {"k", "[a-m]", true},
        {"K", "[!a-m]", false},
        {"-", "[-a]", true},
        {"a]", "a]", true},
        {"[x", "[x", true},
        {"é", "?", true},
        {"É", "é*", true},
        {"aéb", "*É*", true},
        {"é", "[à-ï]", true},
        {"abcabd", "*abd", true},
        {"aaab", "*a*b", true},
        {"mississippi", "m*iss*pi", true},
        {"mississippi", "m*iss*x", false},
        {"Name (x)", "*(*)*", true},
        {"a", "a*a", false},
        {"x", "*long*", false},
    };
    for (const auto& row : cases)
        EXPECT_EQ(jet::isLike(row.text, row.pattern), row.matches) << row.text << " Like " << row.pattern;
}

TEST(Like, ManyRunsTakeNoLongTime) {
    std::string pattern;
    for (int i = 0; i < 30; ++i)
        pattern += "*a";
    EXPECT_FALSE(jet::isLike(std::string(3000, 'a') + "b", pattern + "*c"));
}

TEST(Like, PrefixesFromAnotherColumnMayHoldWildcards) {
    EXPECT_TRUE(jet::begins("01713334444", "0171"));
    EXPECT_FALSE(jet::begins("017", "0171"));
    EXPECT_TRUE(jet::begins("x", ""));
    EXPECT_TRUE(jet::begins("École", "éc"));
    EXPECT_TRUE(jet::begins("axc", "A?"));
}
