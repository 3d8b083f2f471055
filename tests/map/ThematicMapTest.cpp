#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "map/surface/LayerSource.h"
#include "tests/map/MapOnFile.h"

#include <gtest/gtest.h>

namespace {

constexpr long TotalCalls = 1;
constexpr long Revenue = 5;
constexpr long Tv = 2;

class ThematicMapOnFile : public testing::Test, protected MapOnFile {
protected:
    ThematicMapOnFile() { tables.TV = "TblTV"; }

    std::vector<std::string> layerNames() const {
        std::vector<std::string> names;
        for (const Layer& layer : surface.scene().layers)
            names.push_back(layer.LayerName);
        return names;
    }

    /// Customer groups over TV regions: group "One" covers the West, the Middle belongs to no group.
    void addGroups();
};

void ThematicMapOnFile::addGroups() {
    addGroupTables("2");
    map.database().execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'West', 'One')");
    map.database().execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'Middle', Null)");
    addPolygon(map.database(), "PGN_GROUPS", 1, "One", {{squareRing(0, 0, 100)}}, "GROUPNAME");
    addPolygon(map.database(), "PGN_TV", 14, "Republic Of Ireland", {{squareRing(-100, 0, 100)}});
    addFigure(map.database(), "TblCustomerGroups", "GroupName", "One", "TotalCalls1", 900);
}

} // namespace

TEST_F(ThematicMapOnFile, TvRegionsByTotalCalls) {
    EXPECT_TRUE(thematic.CreateMap(Tv, TotalCalls, 1));

    EXPECT_EQ(layerNames(), (std::vector<std::string>{"Map Colour Key", "Map Labels"}));
    const Layer& layer = surface.scene().layers[0];
    EXPECT_EQ(layer.LayerJoins, "PGN_TV LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion");
    EXPECT_EQ(layer.LayerFields, "PGN_TV.NAME, TblTV.TVRegion, TblTV.TotalCalls1");
    EXPECT_EQ(layer.LayerSymbolExpression, "TblTV.TotalCalls1");
    EXPECT_EQ(LayerSource::parse(layer.LayerDataSource).path, gsSystemDBPath);
    ASSERT_EQ(layer.symbols.size(), 11u);
    EXPECT_EQ(layer.symbols[10].SymbolName, "960 + ");
    EXPECT_FALSE(layer.symbols[0].SymbolEnableLabels);

    EXPECT_EQ(colourAt(surface, 20, 20), bandColour(9)) << "West: 840 to 959";
    EXPECT_EQ(colourAt(surface, 120, 20), bandColour(1)) << "Middle: 1 to 4";
    EXPECT_EQ(colourAt(surface, 220, 20), bandColour(0)) << "East has no row";
    EXPECT_EQ(colourAt(surface, 150, 50), surface.style.sea);
    EXPECT_TRUE(map.installation.logLines().empty());
    EXPECT_TRUE(messages.texts.empty());
    EXPECT_TRUE(form.mapReady);
}

TEST_F(ThematicMapOnFile, KeyAndReadOutsTellWhatTheMapShows) {
    form.periods.MapStartDate[1] = parseDate("01/03/2025");
    form.periods.MapEndDate[1] = parseDate("31/03/2025");
    form.periods.MapEndTime[1] = parseDate("23:59:59");
    thematic.CreateMap(Tv, TotalCalls, 1);

    EXPECT_EQ(form.LblStatusValue, (std::array<std::string, 8>{"01/03/2025", "31/03/2025", "00:00:00", "23:59:59",
                                                               "West", "900", "Middle", "3"}));
    EXPECT_EQ(form.extremes[Tv].MapMaxName, "West");
    EXPECT_EQ(form.extremes[Tv].MapMaxValue, Money::fromDouble(900));
    ASSERT_EQ(key.sections().size(), 1u);
    EXPECT_EQ(key.sections()[0].title, "Map Colour Key");
    EXPECT_EQ(key.sections()[0].entries.size(), 11u);
    EXPECT_EQ(key.sections()[0].entries[1].name, "1 to 4");
}

TEST_F(ThematicMapOnFile, MoneyCarriesItsSign) {
    map.database().execute("UPDATE TblTV SET Revenue1 = 8.5 WHERE TVRegion = 'West'");
    maxima.MaxRevenue = 8.5;
    thematic.CreateMap(Tv, Revenue, 1);

    EXPECT_EQ(key.sections()[0].title, "Map Colour Key(£)");
    EXPECT_EQ(key.sections()[0].entries[2].name, "£ 3 to £6");
    EXPECT_EQ(form.LblStatusValue[5], "£8.5");
    EXPECT_TRUE(messages.texts.empty()) << "the sign does not hide the number";
}

TEST_F(ThematicMapOnFile, WithoutCallsThereAreNoRecords) {
    map.database().execute("UPDATE TblTV SET TotalCalls1 = 0");
    maxima.MaxTotalCalls = 0;
    EXPECT_TRUE(thematic.CreateMap(Tv, TotalCalls, 1));
    EXPECT_EQ(messages.texts, std::vector<std::string>{"No Records Found"});
    EXPECT_EQ(key.sections()[0].entries.size(), 9u);

    form.AnimationActive = true;
    thematic.CreateMap(Tv, TotalCalls, 1);
    EXPECT_EQ(messages.texts.size(), 1u) << "an animation is not stopped by an empty frame";
}

TEST_F(ThematicMapOnFile, AnEmptyTableIsLikeNoCalls) {
    map.database().execute("DELETE FROM TblTV");
    EXPECT_TRUE(thematic.CreateMap(Tv, TotalCalls, 1));
    EXPECT_EQ(messages.texts, std::vector<std::string>{"No Records Found"});
    EXPECT_EQ(colourAt(surface, 20, 20), bandColour(0));
}

TEST_F(ThematicMapOnFile, ARebuildLeavesOneMap) {
    thematic.CreateMap(Tv, TotalCalls, 1);
    maxima.MaxTotalCalls = 9;
    thematic.CreateMap(Tv, TotalCalls, 1);
    EXPECT_EQ(surface.NumberOfLayers(), 2);
    EXPECT_EQ(surface.scene().layers[0].symbols.size(), 4u);
    EXPECT_EQ(surface.geometry().reads(), 2) << "polygons and label points, once each";
}

TEST_F(ThematicMapOnFile, ARequestToCloseEndsTheBuildAtOnce) {
    thematic.CreateMap(Tv, TotalCalls, 1);
    form.closeRequested = true;
    form.mapReady = false;
    EXPECT_TRUE(thematic.CreateMap(Tv, TotalCalls, 1));
    EXPECT_FALSE(form.closeRequested);
    EXPECT_FALSE(form.mapReady);
    EXPECT_TRUE(form.CmdExitEnabled);
    EXPECT_EQ(surface.NumberOfLayers(), 1);
}

TEST_F(ThematicMapOnFile, TheViewIsCapturedOnceAndRestoredOnRequest) {
    thematic.CreateMap(Tv, TotalCalls, 1);
    const double wholeScale = surface.MapScale();
    EXPECT_EQ(form.savedView.centerX, 150);
    EXPECT_EQ(form.savedView.scale, wholeScale);

    surface.setMapScale(40);
    thematic.CreateMap(Tv, Revenue, 1);
    EXPECT_EQ(surface.MapScale(), 40) << "another map type does not move the map";

    form.extentCaptured = false;
    form.keepView = true;
    thematic.CreateMap(Tv, TotalCalls, 1);
    EXPECT_EQ(surface.MapScale(), wholeScale);
}

TEST_F(ThematicMapOnFile, FailuresAreLoggedAndTheRestIsBuilt) {
    tables.TV = "TblNowhere";
    EXPECT_TRUE(thematic.CreateMap(Tv, TotalCalls, 1));
    EXPECT_EQ(surface.NumberOfLayers(), 2);
    EXPECT_EQ(key.sections().size(), 1u);
    EXPECT_GE(map.installation.logLinesWith("\"FrmMap_CreateMap\""), 3);
    EXPECT_TRUE(form.CmdExitEnabled);
}

TEST_F(ThematicMapOnFile, GroupsByAMeasureThatTheyDoNotHaveAreStillLand) {
    addGroups();
    thematic.CreateMap(5, 8, 1);
    surface.CentreMapOn(100, 50);
    surface.setMapScale(400);
    surface.setLayerIndex(1);
    EXPECT_EQ(surface.layer().LayerFields, "PGN_TV.NAME, TblTV.TVRegion");
    ignoreErrors([&] { surface.DrawMap(); });
    EXPECT_EQ(colourAt(surface, 120, 20), QColor(Qt::white));
}

TEST_F(ThematicMapOnFile, AnUnknownBoundaryDrawsNothing) {
    for (long boundary : {4, 6, -1}) {
        EXPECT_TRUE(thematic.CreateMap(boundary, TotalCalls, 1));
        EXPECT_EQ(surface.scene().layers[0].LayerCoverageName, "");
        EXPECT_EQ(surface.picture().pixelColor(150, 50), surface.style.sea);
    }
}

TEST_F(ThematicMapOnFile, AnUnknownMapTypeHasNoBands) {
    EXPECT_TRUE(thematic.CreateMap(Tv, 7, 1));
    EXPECT_EQ(surface.scene().layers[0].symbols.size(), 1u);
}

TEST_F(ThematicMapOnFile, PopulationRatesAreOfferedWhereThereArePopulations) {
    gbTVPopulation = true;
    thematic.CreateMap(Tv, TotalCalls, 1);
    EXPECT_TRUE(form.chkDensitiesEnabled);
    thematic.CreateMap(1, TotalCalls, 1);
    EXPECT_TRUE(form.chkDensitiesEnabled) << "unchanged";
    thematic.CreateMap(0, TotalCalls, 1);
    EXPECT_FALSE(form.chkDensitiesEnabled);
}

TEST_F(ThematicMapOnFile, NamesOfSmallAreasWaitForTheLabelFlag) {
    const auto labelsOf = [&](long boundary) {
        surface.setLayerIndex(0);
        thematic.AddLabelLayer(boundary);
        EXPECT_EQ(surface.layer().LayerName, "Map Labels");
        return surface.layer().LayerVisible;
    };
    EXPECT_TRUE(labelsOf(Tv));
    for (long boundary : {0, 1, 3}) {
        tables.clear();
        *tables.of(boundary) = "TblAny";
        EXPECT_FALSE(labelsOf(boundary)) << boundary;
        form.labelFlag = true;
        EXPECT_TRUE(labelsOf(boundary)) << boundary;
        form.labelFlag = false;
    }
    EXPECT_EQ(form.layerCount, surface.NumberOfLayers());
}

TEST_F(ThematicMapOnFile, CustomerGroupsLieOverWhiteLandWithoutAGroup) {
    addGroups();
    thematic.CreateMap(5, TotalCalls, 1);

    EXPECT_EQ(layerNames(),
              (std::vector<std::string>{"Map Colour Key", "Non Group Geography", "Republic Of Ireland", "Map Labels"}));
    surface.CentreMapOn(100, 50);
    surface.setMapScale(400);
    surface.DrawMap();
    EXPECT_EQ(colourAt(surface, 50, 50), bandColour(9));
    EXPECT_EQ(colourAt(surface, 120, 20), QColor(Qt::white)) << "in no group";
    EXPECT_EQ(colourAt(surface, -50, 50), QColor(Qt::white)) << "Ireland";
    EXPECT_EQ(colourAt(surface, 250, 20), surface.style.sea) << "of another account";
    EXPECT_EQ(key.sections().size(), 1u);
    EXPECT_TRUE(form.groupLabelsVisible);
    EXPECT_EQ(form.groupBaseGeography, 2);
    EXPECT_EQ(tables.TV, "TblTV");
    EXPECT_TRUE(map.installation.logLines().empty());
}
