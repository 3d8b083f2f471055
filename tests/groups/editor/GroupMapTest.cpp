#include "groups/editor/GroupMap.h"

#include "groups/editor/BoundaryAfterGroups.h"
#include "groups/editor/GroupColours.h"
#include "map/surface/MapSurface.h"
#include "tests/groups/editor/EditorTest.h"
#include "tests/map/SmallMap.h"

namespace {

using enum GroupAction;

class GroupMapOnFile : public EditorTest {
protected:
    GroupMapOnFile() {
        for (int region = 0; region < StoreInstallation::regions; ++region)
            addLabelPoint(*gdbSystem, "PNT_TVNAMES", region + 1, std::string(1, static_cast<char>('A' + region)),
                          region * 100.0 + 50, 50);
        surface_.setPixelSize({700, 100});
        setUpTwoGroups();
        enter();
        map_.emplace(surface_, *editor_);
    }
    Rows layerNames() const {
        Rows names;
        for (const Layer& layer : surface_.scene().layers)
            names.push_back(layer.LayerName);
        return names;
    }
    const Layer& layer(std::size_t at) const { return surface_.scene().layers.at(at); }
    /// In the upper left of a region, away from its name.
    QColor colourOfRegion(char region) const { return colourAt(surface_, (region - 'A') * 100.0 + 10, 85); }
    static QColor colourOfPlace(std::size_t place) { return QColor::fromRgb(groupColour(place)); }

    MapSurface surface_;
    std::optional<GroupMap> map_;
};

const QColor land(Qt::white);

TEST_F(GroupMapOnFile, ShowsMembersInTheColoursOfTheList) {
    map_->CreateMap();
    EXPECT_EQ(layerNames(), (Rows{"Basic Geography", "Groups", "Republic Of Ireland", "Map Labels"}));
    EXPECT_EQ(layer(0).LayerJoins,
              ",TblTV WHERE Left(CCL_TV.NAME, 20) = TblTV.TVRegion AND TblTV.TVRegion <> 'Republic Of Ireland'");
    EXPECT_EQ(layer(0).LayerLabelSource, "CCL_TV.NAME");
    EXPECT_EQ(layer(1).LayerJoins, ",tblTempGroups WHERE CCL_TV.NAME = tblTempGroups.Reference AND "
                                   "TblTempGroups.GroupName IS NOT NULL AND TblTempGroups.GroupName <> ''");
    EXPECT_EQ(layer(1).LayerSymbolExpression, "tblTempGroups.GroupName");
    EXPECT_EQ(layer(1).LayerLinkType, SymbolLink::Text);
    EXPECT_EQ(layer(2).LayerJoins, " WHERE CCL_TV.NAME = 'Republic Of Ireland'");
    EXPECT_EQ(layer(3).LayerCoverageName, "CCL_TVNAMES");
    EXPECT_EQ(layer(3).LayerFromZoomTrigger, 0);
    EXPECT_EQ(layer(3).LayerToZoomTrigger, 23831);
    EXPECT_EQ(layer(3).symbols[0].SymbolPointSymbol, "No Symbol");
    for (const Layer& each : surface_.scene().layers)
        EXPECT_FALSE(each.LayerShownInKey) << each.LayerName;
    EXPECT_EQ(map_->groupLayerCount(), 3);
    EXPECT_EQ(surface_.LayerIndex(), 0);
    EXPECT_FALSE(surface_.KeepDataSourcesOpen);

    EXPECT_EQ(colourOfRegion('A'), colourOfPlace(0));
    EXPECT_EQ(colourOfRegion('B'), colourOfPlace(0));
    EXPECT_EQ(colourOfRegion('C'), land);
    EXPECT_EQ(colourOfRegion('F'), colourOfPlace(1));
    EXPECT_EQ(colourOfRegion('G'), land) << "Ireland";
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(GroupMapOnFile, FollowsEveryEdit) {
    map_->CreateMap();
    select("SOUTH");
    editor_->changeArea(Add, "C", {});
    map_->redraw();
    EXPECT_EQ(colourOfRegion('C'), colourOfPlace(1));
    editor_->changeArea(Remove, "F", {});
    map_->redraw();
    EXPECT_EQ(colourOfRegion('F'), land);
    EXPECT_EQ(surface_.NumberOfLayers(), 4);
    add({"EAST"});
    editor_->changeAreas(Add, {"D", "E"}, {});
    map_->redraw();
    EXPECT_EQ(colourOfRegion('D'), colourOfPlace(2));
    select("NORTH");
    prompts_.answers = {PromptAnswer::Yes};
    ASSERT_EQ(editor_->deleteGroup(), EditorStep::Rebuild);
    map_->CreateMap();
    EXPECT_EQ(colourOfRegion('A'), land);
    EXPECT_EQ(colourOfRegion('C'), colourOfPlace(1)) << "EAST comes before SOUTH now";
    EXPECT_EQ(colourOfRegion('D'), colourOfPlace(0));
    editor_->cancel();
    map_->CreateMap();
    EXPECT_EQ(colourOfRegion('A'), colourOfPlace(0));
    EXPECT_EQ(colourOfRegion('D'), land);
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(GroupMapOnFile, MembersOfAGroupThatIsNotListedStayWhite) {
    gdbSystem->execute("DELETE FROM TblTempName WHERE Name = 'NORTH'");
    editor_->populate();
    map_->CreateMap();
    EXPECT_EQ(colourOfRegion('A'), land);
    EXPECT_EQ(colourOfRegion('F'), colourOfPlace(0));
}

TEST_F(GroupMapOnFile, OnlyTheFirstBuildShowsTheWholeMap) {
    map_->CreateMap();
    EXPECT_TRUE(surface_.showsWhole());
    surface_.setMapCenterX(150);
    surface_.setMapScale(200);
    surface_.setUIMode(MapTool::PolygonQuery);
    map_->CreateMap();
    map_->redraw();
    EXPECT_DOUBLE_EQ(surface_.MapCenterX(), 150);
    EXPECT_DOUBLE_EQ(surface_.MapScale(), 200);
    EXPECT_EQ(surface_.UIMode(), MapTool::PolygonQuery);
    EXPECT_FALSE(map_->building());
}

TEST_F(GroupMapOnFile, ZoomingOutPastTheWholeMapBringsItBack) {
    map_->CreateMap();
    const double whole = surface_.MapScale();
    surface_.setUIMode(MapTool::ZoomOut);
    surface_.setMapScale(15000);
    map_->mouseDown(1);
    EXPECT_DOUBLE_EQ(surface_.MapScale(), 15000);
    surface_.setMapScale(15001);
    map_->mouseDown(2);
    EXPECT_DOUBLE_EQ(surface_.MapScale(), 15001) << "not by the right button";
    map_->mouseDown(1);
    EXPECT_DOUBLE_EQ(surface_.MapScale(), whole);
    EXPECT_EQ(surface_.UIMode(), MapTool::ZoomOut);
    surface_.setUIMode(MapTool::Information);
    surface_.setMapScale(20000);
    map_->mouseDown(1);
    EXPECT_DOUBLE_EQ(surface_.MapScale(), 20000) << "nor with another tool";
}

TEST_F(GroupMapOnFile, LargeAreasAreNamedOnceAtEveryScale) {
    map_->CreateMap();
    const auto named = [&] {
        std::string layers;
        for (const Layer& each : surface_.scene().layers)
            layers += each.symbols.back().SymbolEnableLabels && isDrawnAt(each, surface_.MapScale()) ? '1' : '0';
        return layers;
    };
    EXPECT_EQ(named(), "0001");
    surface_.setMapScale(23832);
    map_->viewChanged();
    EXPECT_EQ(named(), "1110");
    EXPECT_EQ(surface_.LayerIndex(), 0);
    map_->CreateMap();
    EXPECT_EQ(named(), "1110");
    surface_.setMapScale(23831);
    map_->viewChanged();
    EXPECT_EQ(named(), "0001");
    surface_.setUIMode(MapTool::ZoomOut);
    map_->mouseDown(1);
    EXPECT_EQ(named(), "0001");
    EXPECT_FALSE(surface_.needsDraw());
}

TEST_F(GroupMapOnFile, SmallAreasAreNamedFromNearAlone) {
    map_->CreateMap();
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "PNT_POSTCODEDISTRICTNAMES");
    addPolygon(*gdbSystem, "PGN_POSTCODEDISTRICT", 1, "LS1", square(0, 0, 100));
    gdbSystem->execute("INSERT INTO TblPostCodeDistrict (PostCodeDistrict) VALUES ('LS1')");
    editor_->DataType = 3;
    map_->CreateMap();
    EXPECT_EQ(layer(0).LayerCoverageName, "CCL_POSTCODEDISTRICT");
    EXPECT_EQ(layer(3).LayerLabelSource, "PNT_PostCodeDistrictNAMES.NAME");
    for (std::size_t at = 0; at < 3; ++at)
        EXPECT_FALSE(layer(at).symbols.back().SymbolEnableLabels) << layer(at).LayerName;
    EXPECT_TRUE(layer(3).symbols.back().SymbolEnableLabels);
    EXPECT_EQ(colourOfRegion('A'), land);
    surface_.setMapScale(30000);
    map_->viewChanged();
    EXPECT_FALSE(layer(0).symbols.back().SymbolEnableLabels);
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(GroupMapOnFile, AsksForAnUnknownKindBeforeItIsBuilt) {
    gdbSystem->execute("DELETE FROM tblTempGroups");
    editor_->DataType = 0;
    prompts_.options = {1};
    map_->CreateMap();
    EXPECT_EQ(prompts_.modes, std::vector{OptionsMode::GroupTypeOrCancel});
    EXPECT_EQ(editor_->DataType, 2);
    EXPECT_EQ(layer(0).LayerCoverageName, "CCL_TV");
}

TEST_F(GroupMapOnFile, AnUnreadableLayerLeavesTheOthers) {
    map_->CreateMap();
    gdbSystem->execute("DROP TABLE tblTempGroups");
    map_->CreateMap();
    EXPECT_EQ(surface_.NumberOfLayers(), 4);
    EXPECT_EQ(colourOfRegion('A'), land);
    EXPECT_GE(installation_.logLinesWith("frmGroups_CreateMap"), 1);
    EXPECT_FALSE(map_->building());
}

TEST_F(GroupMapOnFile, EndsWithTheLowestLayerAlone) {
    surface_.setToolBarSetup(GroupMap::toolBarSetup());
    EXPECT_EQ(surface_.ToolBarSetup(), GroupMap::toolBarSetup());
    map_->CreateMap();
    surface_.setLayerIndex(1);
    map_->ClearMap();
    EXPECT_EQ(surface_.NumberOfSymbols(), 1);
    map_->toolBarClicked(static_cast<long>(MapTool::Pan));
    EXPECT_EQ(surface_.LayerIndex(), 1);
    map_->toolBarClicked(static_cast<long>(MapTool::ZoomToExtent));
    EXPECT_EQ(surface_.LayerIndex(), 0);
    map_->end();
    EXPECT_EQ(surface_.NumberOfLayers(), 1);
    EXPECT_EQ(map_->groupLayerCount(), 0);
}

TEST(BoundaryAfterTools, FollowsTheGroupsThatAreLeft) {
    struct Case {
        const char* before;
        bool groups;
        const char* after;
        long boundary;
        std::string_view entry;
    };
    for (const Case& item :
         {Case{"Exchange", false, "Exchange", 0, "Exchange Locations"}, Case{"CSG", true, "CSG", 1, "CSG's"},
          Case{"PostcodeDistrict", true, "PostcodeDistrict", 3, "Post Code Districts"},
          Case{"TVRegion", false, "TVRegion", 2, "TV Regions"},
          Case{"CustomerGroups", true, "CustomerGroups", 5, "Customer Groups"},
          Case{"CustomerGroups", false, "TVRegion", 2, "TV Regions"}}) {
        SCOPED_TRACE(item.before);
        const BoundaryAfterGroups after = boundaryAfterGroups(item.groups, item.before);
        EXPECT_EQ(after.entries.size(), item.groups ? 5U : 4U);
        EXPECT_EQ(after.boundaryType, item.after);
        EXPECT_EQ(after.boundary, item.boundary);
        ASSERT_LT(after.row, after.entries.size());
        EXPECT_EQ(after.entries[after.row].text, item.entry);
        EXPECT_EQ(after.entries[after.row].code, item.boundary);
    }
}

} // namespace
