#include "map/surface/MapPainter.h"
#include "tests/map/surface/DrawnSquares.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// One pixel for each map unit; the low left corner of the map's first 100 units is the view's.
Camera squareCamera() {
    Camera camera;
    camera.setPixelSize({100, 100});
    camera.setScale(100);
    camera.setCenter({50, 50});
    return camera;
}

Symbol fill(MapColourCode colour) {
    Symbol symbol;
    symbol.SymbolPolygonColor = colour;
    return symbol;
}

constexpr MapColourCode Red = 0x0000FF; // 0x00BBGGRR
constexpr MapColourCode Green = 0x00FF00;

/// A picture of one layer of polygons, all drawn with its first symbol.
struct LayerFixture {
    DrawnMap map;

    void add(std::vector<MapShape> shapes, const Symbol& symbol) { addLayer(map, std::move(shapes), symbol); }
    QImage paint(const Camera& camera) {
        MapPainter painter;
        return paint(camera, painter);
    }
    QImage paint(const Camera& camera, MapPainter& painter) {
        map.camera = camera;
        return painter.paint(map, MapStyle());
    }
    /// The colour at a point of the map as squareCamera() shows it.
    QColor at(double x, double y) {
        return paint(squareCamera()).pixelColor(static_cast<int>(x), 99 - static_cast<int>(y));
    }
};

const QColor Sea = MapStyle().sea;

} // namespace

TEST(MapPainter, FillsAPolygonInItsColourAndLeavesTheSea) {
    LayerFixture map;
    map.add({polygon(1, {square(10, 10, 50)})}, fill(Red));
    EXPECT_EQ(map.at(30, 30), QColor(Qt::red));
    EXPECT_EQ(map.at(80, 80), Sea);
    EXPECT_EQ(map.at(30, 80), Sea) << "y runs upwards";
}

TEST(MapPainter, AHoleShowsWhatLiesBelow) {
    LayerFixture map;
    map.add({polygon(1, {square(40, 40, 40)})}, fill(Green));
    map.add({polygon(1, {square(10, 10, 80), square(30, 30, 30)})}, fill(Red));
    EXPECT_EQ(map.at(20, 20), QColor(Qt::red));
    EXPECT_EQ(map.at(35, 35), Sea);
    EXPECT_EQ(map.at(50, 50), QColor(0, 255, 0)) << "the layer below";
    EXPECT_EQ(map.at(75, 75), QColor(Qt::red)) << "a later layer paints over an earlier one";
}

TEST(MapPainter, HolesStayHolesWhateverWayTheyRun) {
    LayerFixture map;
    ShapeRing reversed = square(30, 30, 30);
    std::reverse(reversed.begin(), reversed.end());
    map.add({polygon(1, {square(10, 10, 80), reversed})}, fill(Red));
    EXPECT_EQ(map.at(45, 45), Sea);
}

TEST(MapPainter, AnUnfilledPolygonIsWhiteLandWithAnOutline) {
    LayerFixture map;
    Symbol outlined = fill(Red);
    outlined.SymbolFilled = false;
    map.add({polygon(1, {square(10, 10, 50)})}, outlined);
    EXPECT_EQ(map.at(30, 30), QColor(Qt::white));
    EXPECT_NE(map.at(10, 30), QColor(Qt::white));
    EXPECT_NE(map.at(10, 30), Sea);
}

TEST(MapPainter, NeighboursLeaveNoGapBetweenThem) {
    LayerFixture map;
    const double border = 40.37; // falls between two pixels
    map.add({polygon(1, {{{10, 10}, {border, 10}, {border, 90}, {10, 90}, {10, 10}}}),
             polygon(2, {{{border, 10}, {90, 10}, {90, 90}, {border, 90}, {border, 10}}})},
            fill(Red));
    for (int x = 15; x < 85; ++x)
        EXPECT_GT(map.at(x, 50).red(), 130) << "the sea shines through at " << x;
    for (int x = 15; x < 85; ++x)
        EXPECT_LT(map.at(x, 50).green(), 200) << "the sea shines through at " << x;
}

TEST(MapPainter, DrawsTheSameWhetherClippedOrNot) {
    LayerFixture map;
    map.add({polygon(1, {square(-5000000, 20, 10000000)}), polygon(2, {square(10, -30, 40)})}, fill(Red));
    EXPECT_EQ(map.at(70, 60), QColor(Qt::red)) << "far larger than the view";
    EXPECT_EQ(map.at(70, 10), Sea);
    EXPECT_EQ(map.at(20, 5), QColor(Qt::red));
}

TEST(MapPainter, AVeryCloseViewShowsTheInsideOfAPolygon) {
    LayerFixture map;
    map.add({polygon(1, {square(0, 0, 120000)})}, fill(Red));
    Camera camera = squareCamera();
    camera.setScale(Camera::SmallestScale);
    camera.setCenter({60000, 60000});
    EXPECT_EQ(map.paint(camera).pixelColor(50, 50), QColor(Qt::red));
}

TEST(MapPainter, RecolouringUsesTheNewColours) {
    LayerFixture map;
    map.add({polygon(1, {square(10, 10, 50)})}, fill(Red));
    MapPainter painter;
    map.paint(squareCamera(), painter);
    map.map.scene.layers[0].symbols[0] = fill(Green);
    const QImage second = map.paint(squareCamera(), painter);
    EXPECT_EQ(second.pixelColor(30, 70), QColor(0, 255, 0));
    Camera moved = squareCamera();
    moved.setCenter({80, 50});
    EXPECT_EQ(map.paint(moved, painter).pixelColor(60, 70), Sea);
}

TEST(MapPainter, LayersOutsideTheirZoomOrHiddenAreNotDrawn) {
    LayerFixture map;
    map.add({polygon(1, {square(10, 10, 50)})}, fill(Red));
    map.map.scene.layers[0].LayerToZoomTrigger = 99;
    EXPECT_EQ(map.at(30, 30), Sea);
    map.map.scene.layers[0].LayerToZoomTrigger = 100;
    EXPECT_EQ(map.at(30, 30), QColor(Qt::red));
    map.map.scene.layers[0].LayerVisible = false;
    EXPECT_EQ(map.at(30, 30), Sea);
}

TEST(MapPainter, LabelsAreDarkOnALightRim) {
    LayerFixture map;
    Symbol symbol = fill(Red);
    symbol.SymbolEnableLabels = true;
    symbol.SymbolLabelFont = {"DejaVu Sans", 20};
    map.add({polygon(1, {square(10, 10, 80)})}, symbol);
    map.map.contents[0].shapes[0].label = "H";
    const QImage picture = map.paint(squareCamera());
    int dark = 0, light = 0;
    for (int y = 25; y < 75; ++y) {
        for (int x = 25; x < 75; ++x) {
            const QColor colour = picture.pixelColor(x, y);
            dark += colour.red() < 60;
            light += colour.red() > 200 && colour.green() > 150;
        }
    }
    EXPECT_GT(dark, 30);
    EXPECT_GT(light, 30);
    map.map.scene.layers[0].symbols[0].SymbolEnableLabels = false;
    EXPECT_EQ(map.at(50, 50), QColor(Qt::red));
}

namespace {

/// Hundreds of ragged areas side by side, some of them far larger than a tile of the picture.
LayerFixture raggedMap() {
    LayerFixture map;
    std::uint32_t seed = 7;
    const auto random = [&] { return (seed = seed * 1664525U + 1013904223U) / 4294967296.0; };
    std::vector<MapShape> shapes;
    for (int row = 0; row < 20; ++row) {
        for (int column = 0; column < 20; ++column) {
            ShapeRing ring;
            for (int i = 0; i < 120; ++i) {
                const double angle = i * 0.05235987755982989, reach = (row % 7 == 3 ? 30.0 : 6.0) + 3.0 * random();
                ring.push_back({column * 10 + reach * std::cos(angle), row * 10 + reach * std::sin(angle)});
            }
            ring.push_back(ring.front());
            shapes.push_back(polygon(row * 20 + column, {ring}));
        }
    }
    map.add(std::move(shapes), fill(Red));
    for (std::size_t i = 0; i < map.map.contents[0].shapes.size(); ++i)
        map.map.contents[0].shapes[i].symbol = i % 3;
    map.map.scene.layers[0].symbols = {fill(Red), fill(Green), fill(0xFF8040)};
    return map;
}

Camera wideCamera(QPointF centre, double scale = 150) {
    Camera camera;
    camera.setPixelSize({400, 300});
    camera.setScale(scale);
    camera.setCenter(centre);
    return camera;
}

/// Pixels that differ by more than the rounding of a half-covered one.
int differentPixels(const QImage& a, const QImage& b) {
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y), other = b.pixelColor(x, y);
            different += std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                             std::abs(one.blue() - other.blue()) >
                         12;
        }
    }
    return different;
}

} // namespace

TEST(MapPainter, TheSameMapGivesTheSamePictureWhateverWasDrawnBefore) {
    LayerFixture map = raggedMap();
    const Camera view = wideCamera({100, 100});
    const QImage fresh = map.paint(view);
    MapPainter used;
    map.paint(wideCamera({70, 120}), used);
    map.paint(wideCamera({70, 120}, 20), used);
    map.paint(wideCamera({130, 90}), used);
    for (int turn = 0; turn < 3; ++turn)
        EXPECT_EQ(map.paint(view, used), fresh);
}

TEST(MapPainter, APictureThatIsMovedIsTheOneThatWouldBeDrawnAnew) {
    LayerFixture map = raggedMap();
    for (const QPoint step :
         {QPoint(12, 8), QPoint(-1, 0), QPoint(0, -250), QPoint(-30, 40), QPoint(399, 0), QPoint(5000, 0)}) {
        MapPainter painter;
        const Camera before = wideCamera({100, 100});
        const QImage picture = map.paint(before, painter);
        map.map.camera.moveBy(step);
        const QImage moved = painter.paintMoved(picture, before, map.map, MapStyle());
        EXPECT_LE(differentPixels(moved, map.paint(map.map.camera)), 6) << step.x() << ", " << step.y();
    }
}
