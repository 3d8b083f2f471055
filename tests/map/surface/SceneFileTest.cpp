#include "map/surface/SceneFile.h"

#include "core/RuntimeError.h"
#include "map/surface/MapSurface.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

/// A scene in which no property has its first value.
Scene fullScene() {
    Scene scene;
    Layer layer;
    layer.LayerName = "Map Colour Key(£)";
    layer.LayerSourceType = 2;
    layer.LayerDataSource = "Provider=x;Data Source=/a b;MS Access;pwd=secret;";
    layer.LayerCoverageName = "CCL_TV";
    layer.LayerInterpretation = CoverageKind::LabelPoints;
    layer.LayerJoins = "PGN_TV LEFT JOIN TblTV ON …";
    layer.LayerFields = "a.b, c.d";
    layer.LayerSymbolExpression = "a.b";
    layer.LayerLinkType = SymbolLink::Text;
    layer.LayerLabelSource = "a.c";
    layer.LayerVisible = false;
    layer.LayerShownInKey = false;
    layer.LayerCheckForOverlap = true;
    layer.LayerFromZoomTrigger = 7;
    layer.LayerToZoomTrigger = 23831;
    Symbol symbol;
    symbol.SymbolName = " 3 to 6";
    symbol.SymbolNumericRangeFrom = Money{30000};
    symbol.SymbolNumericRangeTo = 7;
    symbol.SymbolStringEquals = "x";
    symbol.SymbolPolygonColor = 0x123456;
    symbol.SymbolFilled = false;
    symbol.SymbolPolygonBorderColor = 0x654321;
    symbol.SymbolPointSymbol = "No Symbol";
    symbol.SymbolPointColor = 5;
    symbol.SymbolEnableLabels = true;
    symbol.SymbolLabelFont = {"Calibri", 9.5};
    symbol.SymbolLabelColor = 6;
    symbol.SymbolLabelJustification = LabelJustification::Right;
    symbol.SymbolLabelBaseline = LabelBaseline::Top;
    layer.symbols = {symbol, Symbol()};
    scene.layers.push_back(layer);
    return scene;
}

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

long errorOf(const std::string& path) {
    try {
        loadScene(path);
    } catch (const RuntimeError& error) {
        EXPECT_NE(error.description().find(path), std::string::npos) << error.description();
        return error.number();
    }
    return 0;
}

} // namespace

TEST(SceneFile, EveryPropertyComesBack) {
    const TemporaryFolder folder;
    saveScene(fullScene(), folder.file("first.bin"));
    const Scene back = loadScene(folder.file("first.bin"));
    saveScene(back, folder.file("second.bin"));

    ASSERT_EQ(back.layers.size(), 2u);
    EXPECT_EQ(back.layers[1].LayerName, "Map Colour Key(£)");
    EXPECT_EQ(back.layers[1].LayerToZoomTrigger, 23831);
    ASSERT_EQ(back.layers[1].symbols.size(), 2u);
    EXPECT_EQ(back.layers[1].symbols[0].SymbolNumericRangeFrom.asDouble(), 3.0);
    EXPECT_TRUE(back.layers[1].symbols[1].SymbolNumericRangeFrom.isNull());
    EXPECT_EQ(back.layers[1].symbols[0].SymbolLabelBaseline, LabelBaseline::Top);
    EXPECT_EQ(bytesOf(folder.file("first.bin")), bytesOf(folder.file("second.bin")));
}

TEST(SceneFile, DamagedFilesAreRefusedByName) {
    const TemporaryFolder folder;
    const std::string path = folder.file("EmptyMap.bin");
    EXPECT_EQ(errorOf(path), 53);
    saveScene(fullScene(), path);
    const std::string good = bytesOf(path);
    for (const std::string& bytes : {std::string(), std::string("no map"), good.substr(0, good.size() / 2),
                                     good.substr(0, good.size() - 1), std::string(5000, '\xFF')}) {
        write(path, bytes);
        EXPECT_EQ(errorOf(path), 321) << bytes.size() << " bytes";
    }
    EXPECT_THROW(saveScene(Scene(), folder.file("none/EmptyMap.bin")), RuntimeError);
}

TEST(SceneFile, ASurfaceTakesItsLayersFromAFile) {
    const TemporaryFolder folder;
    MapSurface surface;
    surface.SaveMapFile(folder.file("EmptyMap.bin"));
    surface.layer().LayerName = "changed";
    surface.AddLayer();
    surface.setLayerIndex(1);
    surface.AddSymbol();
    surface.LoadMapFile(folder.file("EmptyMap.bin"));
    EXPECT_EQ(surface.NumberOfLayers(), 1);
    EXPECT_EQ(surface.LayerIndex(), 0);
    EXPECT_EQ(surface.layer().LayerName, "");

    surface.layer().LayerName = "kept";
    EXPECT_THROW(surface.LoadMapFile(folder.file("none.bin")), RuntimeError);
    EXPECT_EQ(surface.layer().LayerName, "kept");
}
