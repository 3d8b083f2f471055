#include "map/form/LabelRule.h"

#include <gtest/gtest.h>

namespace {

CurrentTables inUse(std::string CurrentTables::*boundary) {
    CurrentTables tables;
    tables.*boundary = "Tbl";
    return tables;
}

TEST(LabelRule, NamesOfSmallAreasAppearBelowTheirOwnScale) {
    const std::pair<std::string CurrentTables::*, double> cases[] = {
        {&CurrentTables::CSG, 30000}, {&CurrentTables::ExchangeArea, 3000}, {&CurrentTables::PostCodeDistrict, 10000}};
    for (const auto& [boundary, scale] : cases) {
        const CurrentTables tables = inUse(boundary);
        EXPECT_TRUE(labelsAfterClick(tables, scale - 1));
        EXPECT_FALSE(labelsAfterClick(tables, scale));
        EXPECT_TRUE(labelsAfterToolBarClick(tables, scale - 1, false, false));
        EXPECT_FALSE(labelsAfterToolBarClick(tables, scale, false, true));
        EXPECT_FALSE(labelsAfterToolBarClick(tables, scale - 1, true, true)) << "to the full extent they go";
    }
}

TEST(LabelRule, RegionsAreAlwaysNamed) {
    const CurrentTables regions = inUse(&CurrentTables::TV);
    EXPECT_TRUE(labelsAfterClick(regions, 100000));
    EXPECT_TRUE(labelsAfterToolBarClick(regions, 100000, true, false));
    CurrentTables both = regions;
    both.CSG = "Tbl";
    EXPECT_FALSE(labelsAfterClick(both, 100000)) << "a click asks for the small areas first";
    EXPECT_TRUE(labelsAfterToolBarClick(both, 100000, false, false)) << "the tool bar for the regions";
}

TEST(LabelRule, WithoutAnyTableAClickShowsThemAndTheToolBarChangesNothing) {
    EXPECT_TRUE(labelsAfterClick({}, 100000));
    EXPECT_TRUE(labelsAfterToolBarClick({}, 100000, true, true));
    EXPECT_FALSE(labelsAfterToolBarClick({}, 1, false, false));
}

} // namespace
