#include "data/shapes/ShapeCodec.h"
#include "tests/sample/installation/SharedInstallation.h"

#include <gtest/gtest.h>

#include <set>

namespace sample {
namespace {

struct Coverage {
    const char* polygons;
    const char* labels;
    const char* mappingColumn; ///< of TblLookup1141
};

class SystemMapCoverage : public testing::TestWithParam<Coverage> {
protected:
    const std::shared_ptr<Database>& map = sharedInstallation().map;
};

TEST_P(SystemMapCoverage, PolygonsReadBackWithinTheirBoxesAndAreNumberedOnce) {
    const auto rows = map->openRecordset(GetParam().polygons);
    ASSERT_GT(rows->RecordCount(), 10);
    std::set<std::int64_t> numbers;
    for (; !rows->EOF_(); rows->MoveNext()) {
        EXPECT_TRUE(numbers.insert(rows->value("POLYGONID").asInteger()).second);
        const auto shape = decodeShape(rows->value("NUMVERT").asInteger(), rows->value("VERTICES").asBytes(),
                                       rows->value("NUMPARTS").asInteger(), rows->value("PARTS").asBytes());
        ASSERT_TRUE(std::holds_alternative<Shape>(shape)) << rows->value("Name").asText();
        const ShapeBounds box = boundsOf(std::get<Shape>(shape));
        EXPECT_EQ(box.lowX, rows->value("BOUNDLOWX").asDouble());
        EXPECT_EQ(box.upY, rows->value("BOUNDUPPY").asDouble());
    }
}

TEST_P(SystemMapCoverage, EachAreaHasOnePolygonAndOneLabel) {
    const std::string polygons = GetParam().polygons;
    const std::string labels = GetParam().labels;
    EXPECT_EQ(askCount(map, "SELECT Count(*) FROM (SELECT Name FROM " + polygons +
                                " GROUP BY Name HAVING Count(*) > 1) AS D"),
              0);
    EXPECT_EQ(askCount(map, "SELECT Count(*) FROM " + polygons + " LEFT JOIN " + labels + " ON " + polygons +
                                ".Name = " + labels + ".Name WHERE " + labels + ".Name IS NULL"),
              0);
    EXPECT_EQ(map->openRecordset(labels)->RecordCount(), map->openRecordset(polygons)->RecordCount());
}

TEST_P(SystemMapCoverage, EachAreaOfACodeIsOnTheMap) {
    const std::string polygons = GetParam().polygons;
    const std::string column = GetParam().mappingColumn;
    const auto missing = map->openRecordset("SELECT DISTINCT TblLookup1141." + column +
                                            " FROM TblLookup1141 LEFT JOIN " + polygons + " ON TblLookup1141." +
                                            column + " = " + polygons + ".Name WHERE " + polygons + ".Name IS NULL");
    for (; !missing->EOF_(); missing->MoveNext()) {
        // Only callers without a place have areas that are no areas.
        const std::string name = missing->value(0).asText();
        const std::set<std::string> placeless{"MOBILE", "VOIP", "NO CLI", "OLO", "UNTRACEAB", "0"};
        EXPECT_TRUE(name.starts_with('.') || placeless.contains(name)) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(SystemMap, SystemMapCoverage,
                         testing::Values(Coverage{"PGN_TV", "PNT_TVNAMES", "TVArea"},
                                         Coverage{"PGN_CSG", "PNT_CSGNAMES", "CSG"},
                                         Coverage{"PGN_POSTCODEDISTRICT", "PNT_POSTCODEDISTRICTNAMES", "PostCode"},
                                         Coverage{"PGN_EXCHANGEAREA", "PNT_EXCHANGEAREANAMES", "Exchange"}),
                         [](const auto& row) { return std::string(row.param.mappingColumn); });

TEST(SystemMap, RegionsOfAnimationsAreThoseOfTheMap) {
    const auto& map = sharedInstallation().map;
    const auto regions = map->openRecordset("SELECT Name, NUMVERT FROM PGN_TV ORDER BY POLYGONID");
    const auto copies = map->openRecordset("SELECT Name, NUMVERT FROM PGN_TVREGIONS ORDER BY POLYGONID");
    ASSERT_EQ(regions->RecordCount(), copies->RecordCount());
    for (; !regions->EOF_(); regions->MoveNext(), copies->MoveNext()) {
        EXPECT_EQ(regions->value(0), copies->value(0));
        EXPECT_EQ(regions->value(1), copies->value(1));
    }
}

TEST(SystemMap, CsgsGoByNumbersOnlyTheRepublicByItsName) {
    EXPECT_EQ(askCount(sharedInstallation().map,
                       "SELECT Count(*) FROM PGN_CSG WHERE NOT IsNumeric(Name) AND Name <> 'Republic Of Ireland'"),
              0);
    EXPECT_EQ(askCount(sharedInstallation().map, "SELECT Count(*) FROM PGN_CSG WHERE Name = '0'"), 0);
}

TEST(SystemMap, CodesBeginWithThePrefixOfTheirExchange) {
    const auto& map = sharedInstallation().map;
    const std::int64_t geographic = askCount(map, "SELECT Count(*) FROM TblLookup1141 WHERE [1141] Like '[12]*'");
    EXPECT_EQ(askCount(map,
                       "SELECT Count(*) FROM TblLookup1141 INNER JOIN PGN_EXCHANGEAREA ON TblLookup1141.Exchange = "
                       "PGN_EXCHANGEAREA.Name WHERE TblLookup1141.[1141] Like PGN_EXCHANGEAREA.GROUP_1141 & '*'"),
              geographic);
}

TEST(SystemMap, LookupIsTheDeliveredReferenceAndTheGeographyOfTheProject) {
    const SharedInstallation& made = sharedInstallation();
    const auto lookup = made.map->openRecordset("TblLookup1141");
    const auto reference = made.map->openRecordset("TblReference1141");
    const auto project = made.project->openRecordset("TblGIS");
    ASSERT_EQ(lookup->RecordCount(), static_cast<long>(made.report.codes));
    ASSERT_EQ(reference->RecordCount(), lookup->RecordCount());
    ASSERT_EQ(project->RecordCount(), lookup->RecordCount());
    for (; !lookup->EOF_(); lookup->MoveNext(), reference->MoveNext(), project->MoveNext()) {
        for (int column = 0; column < lookup->fieldCount(); ++column) {
            ASSERT_EQ(lookup->value(column), reference->value(column));
            ASSERT_EQ(lookup->value(column), project->value(column));
        }
    }
}

TEST(SystemMap, PeopleAddUpToTheSameInRegionsAndDistricts) {
    const auto& map = sharedInstallation().map;
    const double inRegions = ask(map, "SELECT Sum(Population) FROM tblTVPopulationDensity").asDouble();
    const double inDistricts = ask(map, "SELECT Sum(Population) FROM tblPostCodePopulationDensity").asDouble();
    EXPECT_NEAR(inRegions, 68.3e6, 100);
    EXPECT_NEAR(inDistricts, inRegions, 3'000); // each is rounded
    EXPECT_EQ(askCount(map, "SELECT Count(*) FROM tblPostCodePopulationDensity LEFT JOIN PGN_POSTCODEDISTRICT ON "
                            "tblPostCodePopulationDensity.Reference = PGN_POSTCODEDISTRICT.Name WHERE "
                            "PGN_POSTCODEDISTRICT.Name IS NULL"),
              0);
}

TEST(SystemMap, NoProjectStandsInItAndItsVersionIsThatOfTheProject) {
    const SharedInstallation& made = sharedInstallation();
    const auto capture = made.map->openRecordset("SELECT ProjectName, Captured FROM TblDataCapture");
    ASSERT_EQ(capture->RecordCount(), 1);
    EXPECT_TRUE(capture->value(0).isNull());
    EXPECT_TRUE(capture->value(1).isNull());
    EXPECT_EQ(made.map->openRecordset("TblTV")->RecordCount(), 0);
    const double version = ask(made.map, "SELECT TOP 1 * FROM TblVersion ORDER BY version DESC").asDouble();
    EXPECT_EQ(ask(made.project, "SELECT MappingVersion FROM TblProjectInfo").asDouble(), version);
}

TEST(SystemMap, CatalogueNamesTheTableOfEachCoverage) {
    const auto& map = sharedInstallation().map;
    for (const char* name : {"TV", "CSG", "POSTCODEDISTRICT", "EXCHANGEAREA", "GROUPS", "BORDERS", "TVNAMES",
                             "CSGNAMES", "POSTCODEDISTRICTNAMES", "EXCHANGEAREANAMES", "BORDERNAMES"}) {
        const auto row = map->openRecordset("CCL_" + std::string(name));
        ASSERT_EQ(row->RecordCount(), 1) << name;
        const std::string table = row->value("ShapeTable").asText();
        EXPECT_EQ(map->openRecordset(table)->RecordCount(), row->value("ShapeCount").asInteger()) << name;
    }
}

TEST(SystemMap, LinksReachTheCustomerGroups) {
    const SharedInstallation& made = sharedInstallation();
    for (const auto& [link, table] : {std::pair{"TblGroup_Link", "TblGroups"}, std::pair{"TblName_Link", "TblName"},
                                      std::pair{"tblMappingGroupSetup_Link", "tblMappingGroupSetup"}})
        EXPECT_EQ(made.map->openRecordset(link)->RecordCount(), made.groups->openRecordset(table)->RecordCount())
            << link;
}

} // namespace
} // namespace sample
