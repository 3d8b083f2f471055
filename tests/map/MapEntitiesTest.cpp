#include "core/ModDeclarations.h"
#include "tests/map/MapOnFile.h"

#include <gtest/gtest.h>

namespace {

class MapEntities : public testing::Test, protected MapOnFile {
protected:
    MapEntities() {
        tables.TV = "TblTV";
        thematic.CreateMap(2, 1, 1);
        surface.setLayerIndex(0);
        surface.DrawMapFinished = [this] { ++draws; };
    }
    int draws = 0;
};

} // namespace

TEST_F(MapEntities, AnAreaIsBroughtIntoTheMiddle) {
    thematic.HighlightEntity(13);
    EXPECT_EQ(surface.MapCenterX(), 250);
    EXPECT_EQ(surface.MapCenterY(), 50);
    EXPECT_EQ(draws, 1);
    EXPECT_EQ(surface.picture().pixelColor(150, 50), bandColour(0));

    thematic.HighlightEntity(99);
    EXPECT_EQ(surface.MapCenterX(), 250);
    EXPECT_EQ(draws, 1);
    EXPECT_TRUE(map.installation.logLines().empty());
}

TEST_F(MapEntities, ValuesOfRegionsAreWrittenAndTheRestStays) {
    map.database().execute("CREATE TABLE tblValues (RegionID Long, [Value] Double)");
    map.database().execute("INSERT INTO tblValues VALUES (11, 1)");
    map.database().execute("INSERT INTO tblValues VALUES (12, 2)");
    map.database().execute("CREATE TABLE TblInput (RegionID Long, [Value] Double)");
    map.database().execute("INSERT INTO TblInput VALUES (12, 77.5)");
    map.database().execute("INSERT INTO TblInput VALUES (99, 5)");

    const auto input = map.database().openRecordset("SELECT * FROM TblInput");
    thematic.ApplyValues(*input);

    EXPECT_EQ(rowsOf(map.database(), "SELECT RegionID, [Value] FROM tblValues ORDER BY RegionID"),
              (std::vector<std::string>{"11|1", "12|77.5"}));
    EXPECT_EQ(draws, 1);
    EXPECT_TRUE(map.installation.logLines().empty());
}

TEST_F(MapEntities, AMapReadsItsValuesAnewAfterTheyAreApplied) {
    map.database().execute("UPDATE TblTV SET TotalCalls1 = 900 WHERE TVRegion = 'Middle'");
    const auto nothing = map.database().openRecordset("SELECT * FROM TblTV WHERE 1 = 0");
    thematic.ApplyValues(*nothing); // without tblValues: that is logged
    EXPECT_EQ(colourAt(surface, 120, 20), bandColour(9));
    EXPECT_EQ(map.installation.logLinesWith("\"FrmMap_ApplyValues\""), 1);
}
