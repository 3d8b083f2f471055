#include "map/form/MapTypeList.h"

#include "core/ModDeclarations.h"

#include <gtest/gtest.h>

namespace {

std::vector<long> codesOf(const std::vector<ListEntry>& entries) {
    std::vector<long> codes;
    for (const ListEntry& entry : entries)
        codes.push_back(entry.code);
    return codes;
}

using Codes = std::vector<long>;

TEST(MapTypeList, ListsStandInTheOrderOfTheWindow) {
    EXPECT_EQ(codesOf(mapTypeEntries()), (Codes{1, 2, 3, 4, 5, 9, 10, 8}));
    EXPECT_EQ(codesOf(boundaryEntries(false)), (Codes{0, 1, 3, 2}));
    EXPECT_EQ(codesOf(boundaryEntries(true)), (Codes{0, 1, 3, 2, 5}));
    EXPECT_EQ(boundaryEntries(true)[1].text, "CSG's");
}

TEST(MapTypeList, AveragesLeaveAndComeBackLast) {
    for (const char* type : {"Exchange", "CSG", "CustomerGroups"}) {
        const MapTypeChoice without = mapTypesOf(type, mapTypeEntries(), 9);
        EXPECT_EQ(codesOf(without.mapTypes), (Codes{1, 2, 3, 4, 5, 9, 10})) << type;
        EXPECT_FALSE(without.revertedToTotals);
        EXPECT_EQ(without.mapType, 9);
        EXPECT_EQ(codesOf(mapTypesOf("TVRegion", without.mapTypes, 9).mapTypes), codesOf(mapTypeEntries()));
        const MapTypeChoice reverted = mapTypesOf(type, mapTypeEntries(), 8);
        EXPECT_TRUE(reverted.revertedToTotals) << type;
        EXPECT_EQ(reverted.mapType, 1);
    }
    EXPECT_FALSE(mapTypesOf("PostcodeDistrict", mapTypeEntries(), 8).revertedToTotals);
}

TEST(MapTypeList, RatesNeedPopulationFiguresOfTheBoundary) {
    resetGlobals();
    EXPECT_FALSE(mapTypesOf("TVRegion", mapTypeEntries(), 1).densitiesEnabled);
    gbTVPopulation = true;
    EXPECT_TRUE(mapTypesOf("TVRegion", mapTypeEntries(), 1).densitiesEnabled);
    EXPECT_FALSE(mapTypesOf("TVRegion", mapTypeEntries(), 8).densitiesEnabled) << "averages have no rates";
    EXPECT_FALSE(mapTypesOf("PostcodeDistrict", mapTypeEntries(), 1).densitiesEnabled);
    EXPECT_FALSE(mapTypesOf("CSG", mapTypeEntries(), 1).densitiesEnabled);
    resetGlobals();
}

} // namespace
