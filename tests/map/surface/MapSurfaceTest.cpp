#include "map/surface/MapSurface.h"

#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "map/surface/LayerSource.h"
#include "tests/map/SmallMap.h"

#include <gtest/gtest.h>

namespace {

constexpr MapColourCode Few = 0x00FFFF;  // yellow, as 0x00BBGGRR
constexpr MapColourCode Many = 0x0000FF; // red
constexpr MapColourCode None = 0xFF0000; // blue

/// A surface over the small map's TV regions: blue without calls, yellow from 1, red from 100.
class MapSurfaceOnFile : public testing::Test {
protected:
    MapSurfaceOnFile() {
        surface.setPixelSize({300, 100});
        Layer& layer = surface.layer();
        layer.LayerName = "Calls";
        layer.LayerDataSource = LayerSource{gsSystemDBPath, std::string(SystemMapPassword)}.text();
        layer.LayerCoverageName = "ccl_tv";
        layer.LayerJoins = "PGN_TV LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion";
        layer.LayerFields = "PGN_TV.NAME, TblTV.TVRegion, TblTV.TotalCalls1";
        layer.LayerSymbolExpression = "TblTV.TotalCalls1";
        surface.symbol().SymbolPolygonColor = None;
        addBand(1, 100, Few);
        addBand(100, 100000000, Many);
        surface.CentreMapOn(150, 50);
        surface.setMapScale(300);
    }

    void addBand(double from, double to, MapColourCode colour) {
        surface.AddSymbol();
        surface.setSymbolIndex(surface.NumberOfSymbols() - 1);
        surface.symbol().SymbolNumericRangeFrom = from;
        surface.symbol().SymbolNumericRangeTo = to;
        surface.symbol().SymbolPolygonColor = colour;
    }

    QColor at(double x, double y) const { return colourAt(surface, x, y); }

    SmallMap map;
    MapSurface surface;
};

} // namespace

TEST_F(MapSurfaceOnFile, ColoursEachAreaByItsFigure) {
    surface.DrawMap();
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(120, 50), QColor(Qt::yellow));
    EXPECT_EQ(at(250, 50), QColor(Qt::blue)) << "no figure: the first symbol";
    EXPECT_EQ(at(150, 50), surface.style.sea) << "the hole";
}

TEST_F(MapSurfaceOnFile, NamesJoinOnTheirFirstFiftyCharacters) {
    const std::string longName(50, 'x');
    map.database().execute("ALTER TABLE PGN_TV ALTER COLUMN NAME Text(100)");
    addPolygon(map.database(), "PGN_TV", 14, longName + " and more", {{squareRing(300, 0, 100)}});
    addFigure(map.database(), "TblTV", "TVRegion", longName, "TotalCalls1", 500);
    surface.CentreMapOn(300, 50);
    surface.DrawMap();
    EXPECT_EQ(at(350, 50), QColor(Qt::red));
}

TEST_F(MapSurfaceOnFile, FiguresAreReadAgainOnceTheSourceIsClosedAndShapesAreNot) {
    surface.DrawMap();
    map.database().execute("UPDATE TblTV SET TotalCalls1 = 5 WHERE TVRegion = 'West'");
    surface.CloseLayerSource(0);
    surface.DrawMap();
    EXPECT_EQ(at(50, 50), QColor(Qt::yellow));
    EXPECT_EQ(surface.geometry().reads(), 1);
}

TEST_F(MapSurfaceOnFile, ChangedShapesAreReadAgain) {
    surface.DrawMap();
    map.database().execute("DELETE FROM PGN_TV WHERE NAME = 'West'");
    addPolygon(map.database(), "PGN_TV", 11, "West", {{squareRing(0, 0, 30)}});
    surface.CloseLayerSource(0);
    surface.DrawMap();
    EXPECT_EQ(at(20, 20), QColor(Qt::red));
    EXPECT_EQ(at(50, 50), surface.style.sea);
    EXPECT_EQ(surface.geometry().reads(), 2);
}

TEST_F(MapSurfaceOnFile, ADamagedPolygonIsNamedInTheLogAndTheOthersAreDrawn) {
    map.database().execute("UPDATE PGN_TV SET NUMVERT = 100000 WHERE NAME = 'Middle'");
    map.database().execute("UPDATE PGN_TV SET VERTICES = Null WHERE NAME = 'East'");
    surface.DrawMap();
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(120, 50), surface.style.sea);
    EXPECT_EQ(map.installation.logLinesWith("\"\"Middle\"\" (12) of PGN_TV") +
                  map.installation.logLinesWith("\"Middle\" (12) of PGN_TV"),
              1);
    EXPECT_EQ(map.installation.logLines().size(), 2u);
    surface.CloseLayerSource(0);
    surface.DrawMap();
    EXPECT_EQ(map.installation.logLines().size(), 2u) << "told once, not at every draw";
}

TEST_F(MapSurfaceOnFile, ALayerThatCannotBeReadDoesNotStopTheOthers) {
    surface.AddLayer();
    surface.setLayerIndex(1);
    surface.layer() = surface.scene().layers[0];
    surface.layer().LayerName = "Broken";
    surface.layer().LayerJoins = "PGN_TV LEFT JOIN TblNowhere ON PGN_TV.NAME = TblNowhere.TVRegion";
    int finished = 0;
    surface.DrawMapFinished = [&] { ++finished; };
    try {
        surface.DrawMap();
        FAIL() << "the error was kept back";
    } catch (const RuntimeError& error) {
        EXPECT_NE(error.description().find("\"Broken\""), std::string::npos) << error.description();
    }
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
}

TEST_F(MapSurfaceOnFile, BadSourcesAreErrorsWithTheirNumbers) {
    const auto numberFor = [&](const std::string& dataSource, const std::string& coverage) -> long {
        surface.layer().LayerDataSource = dataSource;
        surface.layer().LayerCoverageName = coverage;
        surface.layer().LayerJoins.clear();
        surface.layer().LayerFields.clear();
        surface.layer().LayerSymbolExpression.clear();
        try {
            surface.DrawMap();
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    };
    const std::string good = surface.layer().LayerDataSource;
    EXPECT_EQ(numberFor(good, "CCL_TV"), 0);
    EXPECT_EQ(numberFor(good, ""), 0) << "a layer without a coverage draws nothing";
    EXPECT_EQ(numberFor(good, "CCL_NOWHERE"), 3078);
    EXPECT_EQ(numberFor("", "CCL_TV"), 3024);
    EXPECT_EQ(numberFor(LayerSource{map.installation.file("none.mdb"), "x"}.text(), "CCL_TV"), 3024);
}

TEST_F(MapSurfaceOnFile, ZoomToExtentShowsTheWholeLayer) {
    surface.setMapScale(5);
    surface.ZoomToExtent();
    EXPECT_EQ(surface.MapCenterX(), 150);
    EXPECT_EQ(surface.MapCenterY(), 50);
    EXPECT_TRUE(surface.camera().visibleMap().contains(QRectF(0, 0, 300, 100)));
    map.database().execute("DELETE FROM PGN_TV");
    surface.CloseLayerSource(0);
    EXPECT_THROW(surface.ZoomToExtent(), RuntimeError);
    EXPECT_EQ(surface.MapCenterX(), 150);
}

TEST_F(MapSurfaceOnFile, AreasThatChangePlacesAreReadAgain) {
    surface.DrawMap();
    map.database().execute("UPDATE PGN_TV SET POLYGONID = 99 WHERE POLYGONID = 11");
    map.database().execute("UPDATE PGN_TV SET POLYGONID = 11 WHERE POLYGONID = 13");
    map.database().execute("UPDATE PGN_TV SET POLYGONID = 13 WHERE POLYGONID = 99");
    surface.CloseLayerSource(0);
    surface.DrawMap();
    EXPECT_EQ(at(50, 50), QColor(Qt::red)) << "West has its figure by name";
    EXPECT_EQ(surface.geometry().reads(), 2);
    const auto west = areaAt(surface.drawn(), {50, 50});
    ASSERT_TRUE(west);
    EXPECT_EQ(shapeOf(surface.drawn(), *west).id, 13);
}

TEST_F(MapSurfaceOnFile, ACommaJoinWithItsOwnConditionDrawsItsAreasOnly) {
    surface.layer().LayerJoins = "PGN_TV,TblTV WHERE PGN_TV.NAME = TblTV.TVRegion AND TblTV.TotalCalls1 > 5";
    surface.DrawMap();
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(120, 50), surface.style.sea);
}

TEST_F(MapSurfaceOnFile, TheLayersRowsCanBeRead) {
    const auto rows = surface.LayerRecordset();
    rows->FindFirst("PolygonID = 12");
    ASSERT_FALSE(rows->NoMatch());
    EXPECT_EQ(rows->value("CenterX").asDouble(), 150);
    EXPECT_EQ(rows->value("CenterY").asDouble(), 50);
}

TEST(MapSurface, LayersAndSymbolsAreCountedAndChosen) {
    MapSurface surface;
    EXPECT_EQ(surface.NumberOfLayers(), 1);
    EXPECT_EQ(surface.NumberOfSymbols(), 1);
    surface.AddLayer();
    EXPECT_EQ(surface.LayerIndex(), 0) << "what is added is not made current";
    surface.setLayerIndex(1);
    surface.AddSymbol();
    surface.AddSymbol();
    EXPECT_EQ(surface.NumberOfSymbols(), 3);
    surface.setSymbolIndex(2);
    surface.symbol().SymbolName = "third";
    surface.setSymbolIndex(0);
    surface.DeleteSymbol();
    surface.DeleteSymbol();
    EXPECT_EQ(surface.symbol().SymbolName, "third");
    EXPECT_THROW(surface.DeleteSymbol(), RuntimeError);
    surface.DeleteLayer();
    EXPECT_EQ(surface.LayerIndex(), 0);
    EXPECT_THROW(surface.DeleteLayer(), RuntimeError);
}

TEST(MapSurface, IndicesOutsideAreRefused) {
    MapSurface surface;
    for (int index : {-1, 1, 1000}) {
        EXPECT_THROW(surface.setLayerIndex(index), RuntimeError);
        EXPECT_THROW(surface.setSymbolIndex(index), RuntimeError);
        EXPECT_THROW(surface.CloseLayerSource(index), RuntimeError);
    }
}

TEST(MapSurface, AnEmptySurfaceDrawsTheSea) {
    MapSurface surface;
    surface.setPixelSize({20, 10});
    surface.DrawMap();
    EXPECT_EQ(surface.picture().size(), QSize(20, 10));
    EXPECT_EQ(surface.picture().pixelColor(10, 5), surface.style.sea);
}
