#include "map/BandSymbols.h"

#include "map/ClassBreaks.h"
#include "map/surface/MapSurface.h"
#include "map/surface/SymbolChoice.h"
#include "ui/cColours_CS.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> namesOf(const MapSurface& surface) {
    std::vector<std::string> names;
    for (const Symbol& symbol : surface.scene().layers[0].symbols)
        names.push_back(symbol.SymbolName);
    return names;
}

} // namespace

TEST(BandSymbols, TextsBecomeBandsOfThatText) {
    MapSurface surface;
    buildBandSymbols(surface, {"Rural", "Town", "City"}, "", true);

    EXPECT_EQ(namesOf(surface), (std::vector<std::string>{"Rural", "Town", "City"}));
    const Layer& layer = surface.layer();
    EXPECT_EQ(layer.LayerLinkType, SymbolLink::Text);
    EXPECT_EQ(layer.symbols[1].SymbolPolygonColor, swapRedAndBlue(cColours_CS().MapColour(1)));
    EXPECT_TRUE(layer.symbols[1].SymbolFilled);
    EXPECT_FALSE(layer.symbols[2].SymbolFilled) << "the symbol left last";
    EXPECT_FALSE(layer.symbols[0].SymbolEnableLabels);
    const SymbolChoice choice(layer);
    EXPECT_EQ(choice.of(Value("town")), 1u);
    EXPECT_EQ(choice.of(Value("Sea")), 0u);
}

TEST(BandSymbols, MoreTextsThanColoursAreBandsAllTheSame) {
    MapSurface surface;
    buildBandSymbols(surface, std::vector<std::string>(20, "x"), "", false);
    ASSERT_EQ(surface.NumberOfSymbols(), 20);
    EXPECT_EQ(surface.layer().symbols[19].SymbolPolygonColor, surface.layer().symbols[10].SymbolPolygonColor);
}

TEST(BandSymbols, ABandIsFromInclusiveToExclusive) {
    MapSurface surface;
    buildBandSymbols(surface, splitBandList(bandList(9)), "", false); // 0 | 1 to 2 | 3 to 6 | 7 +
    const SymbolChoice choice(surface.layer());
    const std::pair<Value, std::size_t> cases[] = {
        {Value(0L), 0},         {Value(1L), 1},     {Value(2L), 1},   {Value(2.999), 1}, {Value(3L), 2},
        {Value(6L), 2},         {Value(6.9999), 2}, {Value(7L), 3},   {Value(15L), 3},   {Value(99999999), 3},
        {Value(100000000L), 0}, {Value(0.4), 0},    {Value(" 7"), 3}, {Value(), 0},      {Value("none"), 0},
    };
    for (const auto& [value, band] : cases)
        EXPECT_EQ(choice.of(value), band) << value.asText();
}

TEST(BandSymbols, WithoutCallsEverythingIsInTheFirstBand) {
    MapSurface surface;
    buildBandSymbols(surface, splitBandList(bandList(0)), "", false);
    ASSERT_EQ(surface.NumberOfSymbols(), 9);
    const SymbolChoice choice(surface.layer());
    EXPECT_EQ(choice.of(Value(0L)), 0u);
    EXPECT_EQ(choice.of(Value()), 0u);
}

TEST(BandSymbols, OnlyLabelledLayersKeepTheNamesOfTheirAreas) {
    for (bool labelled : {false, true}) {
        MapSurface surface;
        surface.symbol().SymbolEnableLabels = true;
        buildBandSymbols(surface, {"1", " 3"}, "£", labelled);
        EXPECT_EQ(surface.layer().symbols[0].SymbolEnableLabels, labelled);
        EXPECT_EQ(namesOf(surface), (std::vector<std::string>{"£0", "£1 to £2", "£ 3 + "}));
    }
}
