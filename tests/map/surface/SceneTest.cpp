#include "map/surface/SymbolChoice.h"

#include <gtest/gtest.h>

namespace {

Symbol range(Value from, Value to) {
    Symbol symbol;
    symbol.SymbolNumericRangeFrom = std::move(from);
    symbol.SymbolNumericRangeTo = std::move(to);
    return symbol;
}

Symbol text(const char* equals) {
    Symbol symbol;
    symbol.SymbolStringEquals = equals;
    return symbol;
}

Layer numericLayer() {
    Layer layer;
    layer.LayerLinkType = SymbolLink::NumericRange;
    layer.symbols = {range(0, 0), range(Money{10000}, Money{50000}), range("5", 9), range(" 9", 100000000)};
    return layer;
}

struct Match {
    std::string name;
    Value value;
    std::size_t symbol;
};

class NumericMatch : public testing::TestWithParam<Match> {};

} // namespace

TEST_P(NumericMatch, PicksTheBand) {
    EXPECT_EQ(SymbolChoice(numericLayer()).of(GetParam().value), GetParam().symbol);
}

INSTANTIATE_TEST_SUITE_P(Values, NumericMatch,
                         testing::Values(Match{"Null", Value(), 0}, Match{"ExactlyTheOneValue", 0, 0},
                                         Match{"BetweenTheBands", 0.5, 0}, Match{"LowerBoundIsInside", 1, 1},
                                         Match{"JustBelowTheUpperBound", 4.9999, 1}, Match{"UpperBoundIsOutside", 5, 2},
                                         Match{"Money", Money{60000}, 2}, Match{"NumberInText", "7", 2},
                                         Match{"OpenBand", 99999999.5, 3}, Match{"TopOfTheOpenBand", 100000000, 0},
                                         Match{"Negative", -3, 0}, Match{"NoNumber", "seven", 0}),
                         [](const auto& row) { return row.param.name; });

TEST(Scene, TextsMatchWithoutCase) {
    Layer layer;
    layer.LayerLinkType = SymbolLink::Text;
    layer.symbols = {text("North"), text("South"), text("10")};

    EXPECT_EQ(SymbolChoice(layer).of("SOUTH"), 1u);
    EXPECT_EQ(SymbolChoice(layer).of(10), 2u);
    EXPECT_EQ(SymbolChoice(layer).of("West"), 0u);
    EXPECT_EQ(SymbolChoice(layer).of(Value()), 0u);
}

TEST(Scene, ALayerIsDrawnBetweenItsZoomTriggers) {
    Layer layer;
    EXPECT_TRUE(isDrawnAt(layer, 1e6)) << "without triggers at any scale";
    layer.LayerToZoomTrigger = 23831;
    EXPECT_TRUE(isDrawnAt(layer, 23831));
    EXPECT_FALSE(isDrawnAt(layer, 23832));
    layer.LayerFromZoomTrigger = 100;
    EXPECT_FALSE(isDrawnAt(layer, 99));
    layer.LayerFromZoomTrigger = 0;
    layer.LayerVisible = false;
    EXPECT_FALSE(isDrawnAt(layer, 50));
}

TEST(Scene, ColoursChangeTheOrderOfTheirParts) {
    EXPECT_EQ(swapRedAndBlue(0xBA2212), 0x1222BAu);
    EXPECT_EQ(swapRedAndBlue(swapRedAndBlue(0x123456)), 0x123456u);
}
