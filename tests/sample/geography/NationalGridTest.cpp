#include "sample/geography/NationalGrid.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace sample;

TEST(NationalGrid, ProjectsOsgb36Exactly) {
    struct Row {
        std::string name;
        LatLon place;
        GridReference grid;
    };
    const std::vector<Row> rows{
        {"Caister water tower, the Ordnance Survey's worked example",
         {52.6575703056, 1.7179215806},
         {651409.903, 313177.270}},
        {"true origin", {49, -2}, {400000, -100000}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const GridReference grid = projectAiry(row.place);
        EXPECT_NEAR(grid.easting, row.grid.easting, 0.002);
        EXPECT_NEAR(grid.northing, row.grid.northing, 0.002);
    }
}

TEST(NationalGrid, TakesSatellitePositionsToTheMap) {
    struct Row {
        std::string name;
        LatLon place;
        MapPoint map;
        double tolerance; // map units: how well the figures are known
    };
    const std::vector<Row> rows{
        {"Caister water tower", {52.658007833, 1.716073973}, {65140.98, 31317.75}, 0.6},
        {"Royal Observatory, Greenwich, TQ 3888 7732", {51.47788, -0.00147}, {53888, 17732}, 2},
        {"summit of Ben Nevis, NN 1667 7128", {56.79685, -5.00354}, {21667, 77128}, 5},
        {"Great Skellig, as the PROJ library has it", {51.7707, -10.5405}, {-18873, 24263}, 10},
        {"Saint Helier, as the PROJ library has it", {49.21, -2.13}, {39053, -7665}, 10},
        {"Unst, as the PROJ library has it", {60.85, -0.87}, {46150.5, 121910.6}, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const MapPoint map = toMap(row.place);
        EXPECT_NEAR(map.x, row.map.x, row.tolerance);
        EXPECT_NEAR(map.y, row.map.y, row.tolerance);
    }
}

TEST(NationalGrid, ShiftBetweenDatumsIsTheSizeThatItIsOnTheGround) {
    // Two hundred metres in Cornwall, about a hundred in Norfolk.
    const LatLon cornwall = wgs84ToOsgb36({50.1, -5.3});
    EXPECT_NEAR((cornwall.latitude - 50.1) * 111200, -71, 10);
    EXPECT_NEAR((cornwall.longitude + 5.3) * 71500, 77, 15);
}
