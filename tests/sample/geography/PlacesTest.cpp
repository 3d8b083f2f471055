#include "SharedGeography.h"
#include "sample/geography/NationalGrid.h"

#include <gtest/gtest.h>

using namespace sample;

namespace {

/// The one area at a place, its letters only: "AB24" gives "AB".
std::string postcodeArea(MapPoint place) {
    const std::vector<std::string> names = namesAt(sharedGeography().postcodeDistricts, place);
    return names.size() != 1 ? std::to_string(names.size()) + " areas"
                             : names.front().substr(0, names.front().find_first_of("0123456789"));
}

} // namespace

TEST(Places, LieInTheirAreas) {
    struct Row {
        std::string name;
        LatLon place;
        std::string postcodeArea, region, nation;
    };
    const std::vector<Row> rows{
        {"Aberdeen", {57.148, -2.100}, "AB", "North Scotland", "Scotland"},
        {"Stornoway", {58.215, -6.390}, "HS", "North Scotland", "Scotland"},
        {"Barra", {57.000, -7.470}, "HS", "North Scotland", "Scotland"},
        {"Lerwick", {60.160, -1.150}, "ZE", "North Scotland", "Scotland"},
        {"Unst", {60.750, -0.880}, "ZE", "North Scotland", "Scotland"},
        {"Kirkwall", {58.980, -2.960}, "KW", "North Scotland", "Scotland"},
        {"Hoy", {58.850, -3.300}, "KW", "North Scotland", "Scotland"},
        {"Glasgow", {55.861, -4.250}, "G", "Central Scotland", "Scotland"},
        {"Brodick", {55.570, -5.200}, "KA", "Central Scotland", "Scotland"},
        {"Hawick", {55.425, -2.787}, "TD", "Border", "Scotland"},
        {"Carlisle", {54.895, -2.936}, "CA", "Border", "England"},
        {"Newcastle", {54.973, -1.614}, "NE", "North East", "England"},
        {"Leeds", {53.797, -1.543}, "LS", "Yorkshire", "England"},
        {"Manchester", {53.480, -2.242}, "M", "North West", "England"},
        {"Birmingham", {52.480, -1.900}, "B", "Midlands", "England"},
        {"Norwich", {52.628, 1.297}, "NR", "East Of England", "England"},
        {"Holborn", {51.5175, -0.1200}, "WC", "London", "England"},
        {"Newport, Isle of Wight", {50.700, -1.290}, "PO", "South And South East", "England"},
        {"Truro", {50.263, -5.051}, "TR", "South West", "England"},
        {"Cardiff", {51.483, -3.178}, "CF", "Wales And West", "Wales"},
        {"Chepstow", {51.642, -2.685}, "NP", "Wales And West", "Wales"},
        {"Llangefni", {53.256, -4.310}, "LL", "Wales And West", "Wales"},
        {"Belfast", {54.597, -5.930}, "BT", "Northern Ireland", "Northern Ireland"},
        {"Enniskillen", {54.345, -7.640}, "BT", "Northern Ireland", "Northern Ireland"},
        {"Rathlin", {55.300, -6.220}, "BT", "Northern Ireland", "Northern Ireland"},
        {"Douglas", {54.160, -4.500}, "IM", "Border", "Isle Of Man"},
        {"Jersey", {49.210, -2.130}, "JE", "South West", "Channel Islands"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const MapPoint place = toMap(row.place);
        EXPECT_EQ(postcodeArea(place), row.postcodeArea);
        EXPECT_EQ(namesAt(sharedGeography().tvRegions, place), std::vector{row.region});
        EXPECT_EQ(namesAt(sharedGeography().borders, place), std::vector{row.nation});
        EXPECT_EQ(namesAt(sharedGeography().exchangeAreas, place).size(), 1u);
        EXPECT_EQ(namesAt(sharedGeography().csgs, place).size(), 1u);
    }
}

TEST(Places, ExchangesAndCsgsStandWhereTheirTownsAre) {
    struct Row {
        LatLon place;
        std::string exchange, csg;
    };
    const std::vector<Row> rows{
        {{57.150, -2.100}, "ABERDEEN", "Aberdeen"},
        {{52.240, -4.260}, "ABERAERON", "Aberaeron"},
        {{60.155, -1.155}, "LERWICK", "Lerwick"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.exchange);
        EXPECT_EQ(namesAt(sharedGeography().exchangeAreas, toMap(row.place)), std::vector{row.exchange});
        EXPECT_EQ(namesAt(sharedGeography().csgs, toMap(row.place)), std::vector{row.csg});
    }
}

TEST(Places, RepublicIsOneAreaOfEveryBoundary) {
    for (const Boundary& boundary : boundaries(sharedGeography())) {
        SCOPED_TRACE(boundary.name);
        for (const LatLon place : {LatLon{53.345, -6.280}, LatLon{51.900, -8.500}, LatLon{54.950, -7.740}})
            EXPECT_EQ(namesAt(boundary.areas, toMap(place)), std::vector<std::string>{"Republic Of Ireland"});
    }
}

TEST(Places, SeaBelongsToNobody) {
    for (const Boundary& boundary : boundaries(sharedGeography()))
        for (const LatLon place : {LatLon{53.7, -4.6}, LatLon{56.5, 0}, LatLon{50.0, -1.5}, LatLon{57.2, -6.8}})
            EXPECT_TRUE(namesAt(boundary.areas, toMap(place)).empty()) << boundary.name;
}
